#include "forms/AccessKeys.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QShortcutEvent>
#include <algorithm>
#include <optional>
#include <vector>

#include "forms/Runtime.h"
#include "forms/TabStrip.h"

namespace sorvane::forms {

namespace {

// What the key leads to: the widget that takes the focus, and is clicked if it is a button.
QWidget* TargetOf(QWidget& widget, const QKeySequence& key) {
    QWidget* target = nullptr;
    if (const auto* button = qobject_cast<QAbstractButton*>(&widget); button && button->shortcut() == key)
        target = &widget;
    if (const auto* label = qobject_cast<QLabel*>(&widget);
        label && QKeySequence::mnemonic(label->text()) == key)
        target = label->buddy();
    return target && widget.isVisible() && target->isVisible() && target->isEnabled() ? target : nullptr;
}

void Activate(QWidget& target, bool clicks) {
    const Runtime& runtime = Runtime::Current();
    const int shown = runtime.Shown();
    target.setFocus(Qt::ShortcutFocusReason);
    auto* button = qobject_cast<QAbstractButton*>(&target);
    if (clicks && button && runtime.Shown() == shown && button->isEnabled() && button->isVisible())
        button->click();
}

bool ActivateTab(const QWidget& window, const QKeySequence& key) {
    for (auto* strip : window.findChildren<QTabWidget*>()) {
        auto* tabs = dynamic_cast<TabStrip*>(strip);
        for (int i = 0; tabs && tabs->isVisible() && i < tabs->count(); ++i)
            if (QKeySequence::mnemonic(tabs->tabText(i)) == key && tabs->isTabEnabled(i)) {
                tabs->SetTab(i);
                return true;
            }
    }
    return false;
}

}  // namespace

bool HandleAccessKey(QWidget& receiver, QEvent& event) {
    if (event.type() != QEvent::Shortcut) return false;
    const QKeySequence key = static_cast<QShortcutEvent&>(event).key();
    QWidget* window = receiver.window();
    std::vector<QWidget*> targets;
    for (auto* widget : window->findChildren<QWidget*>())
        if (QWidget* target = TargetOf(*widget, key)) targets.push_back(target);
    if (targets.empty()) return ActivateTab(*window, key);
    const auto focus = std::find(targets.begin(), targets.end(), window->focusWidget());
    const auto next = focus == targets.end() ? targets.begin() : std::next(focus);
    QWidget& target = next == targets.end() ? *targets.front() : **next;
    Activate(target, targets.size() == 1);
    return true;
}

}  // namespace sorvane::forms
