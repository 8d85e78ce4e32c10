#include "forms/Control.h"

#include <QComboBox>

#include "forms/Runtime.h"
#include "forms/Utf8.h"

namespace sorvane::forms {

Control::Control(QWidget& widget, std::string_view name) : widget_(widget) {
    widget.setObjectName(ToQt(name));
}

std::string Control::Name() const { return ToUtf8(widget_.objectName()); }

bool Control::Visible() const {
    return !(widget_.testAttribute(Qt::WA_WState_ExplicitShowHide) && widget_.isHidden());
}

void Control::SetVisible(bool visible) {
    if (!visible) Runtime::Current().WithoutFocus(widget_, [this] { widget_.hide(); });
    else if (widget_.parentWidget()) widget_.show();
    else  // not laid out yet: it will be shown with its container, not as a window of its own
        widget_.setAttribute(Qt::WA_WState_ExplicitShowHide, false);
}

bool Control::Enabled() const { return !widget_.testAttribute(Qt::WA_ForceDisabled); }

void Control::SetEnabled(bool enabled) {
    if (enabled) widget_.setEnabled(true);
    else Runtime::Current().WithoutFocus(widget_, [this] { widget_.setEnabled(false); });
}

void Control::SetFocus() { Runtime::Current().SetFocus(widget_); }

bool Control::HasFocus() const { return Of(widget_.window()->focusWidget()) == this; }

void Control::SetAccessibleName(std::string_view text) {
    widget_.setAccessibleName(ToQt(text));
    // Where Qt gives a list that opens its value for a name, it is told here what the list is for.
    if (qobject_cast<QComboBox*>(&widget_)) widget_.setAccessibleDescription(ToQt(text));
}

void Control::SetTabStop(bool stop) { widget_.setFocusPolicy(stop ? Qt::StrongFocus : Qt::ClickFocus); }

Control* Control::Of(QWidget* widget) {
    for (; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget())
        if (auto* control = dynamic_cast<Control*>(widget)) return control;
    return nullptr;
}

void Control::Fire(const std::function<void()>& handler) {
    if (handler) Runtime::Current().Handle(handler);
}

}  // namespace sorvane::forms
