// A box with a check mark and a caption.
#pragma once

#include <string>
#include <string_view>

#include "controls/Control.h"

namespace controls {

class CheckBox : public Control {
public:
    CheckBox(std::string_view name, std::string_view caption)
        : Control(Kind::CheckBox, name), caption_(caption) {}
    const std::string& Caption() const { return caption_; }
    bool Checked() const { return checked_; }
    /// Raises Click if it changes, as the user's click does.
    void SetChecked(bool checked) {
        if (Assign(checked_, checked, Property::Checked)) Click.Raise();
    }

private:
    std::string caption_;
    bool checked_ = false;
};

}  // namespace controls
