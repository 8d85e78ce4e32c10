#include "shell/ui/Dress.h"

#include <stdexcept>
#include <string>

#include "forms/CheckBox.h"
#include "forms/Label.h"
#include "forms/OptionButton.h"
#include "forms/TextBox.h"

namespace sorvane {

namespace {

template <class... Classes>
bool SetCaptionOf(forms::Control& control, std::string_view text) {
    const auto set = [&](auto* captioned) {
        if (captioned) captioned->SetCaption(text);
        return captioned != nullptr;
    };
    return (set(dynamic_cast<Classes*>(&control)) || ...);
}

bool SetMaxLengthOf(forms::Control& control, int characters) {
    auto* field = dynamic_cast<forms::TextBox*>(&control);
    if (field) field->SetMaxLength(characters);
    return field != nullptr;
}

bool Apply(const Setting& setting, forms::Control& control) {
    switch (setting.property) {
        case Setting::Property::Visible:
            control.SetVisible(setting.number != 0);
            return true;
        case Setting::Property::Enabled:
            control.SetEnabled(setting.number != 0);
            return true;
        case Setting::Property::Caption:
            return SetCaptionOf<forms::Label, forms::CheckBox, forms::OptionButton>(control, setting.text);
        case Setting::Property::MaxLength:
            return SetMaxLengthOf(control, setting.number);
    }
    return false;
}

}  // namespace

void Dress(forms::Window& window, const std::vector<Setting>& settings) {
    for (const Setting& setting : settings)
        for (const std::string& name : ControlsOf(setting)) {
            auto* widget = window.findChild<QWidget*>(QString::fromStdString(name));
            auto* control = dynamic_cast<forms::Control*>(widget);
            if (!control || !Apply(setting, *control))
                throw std::logic_error(window.Name() + " can't be dressed: " + name);
        }
}

}  // namespace sorvane
