// A menu entry: a caption with a check mark, and the entries below it. "-" is a separator.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/Control.h"

namespace controls {

class Menu : public Control {
public:
    explicit Menu(std::string_view name, std::string_view caption = {})
        : Control(Kind::Menu, name), caption_(caption) {}

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption) { Assign(caption_, caption, Property::Caption); }
    bool Checked() const { return checked_; }
    /// Sets the check mark; no Click.
    void SetChecked(bool checked) {
        if (Assign(checked_, checked, Property::Checked)) Change.Raise();
    }
    bool IsSeparator() const { return caption_ == "-"; }

    const std::vector<Menu*>& Entries() const { return entries_; }
    /// Adds an entry at the end, or before row `at`.
    void AddEntry(Menu& entry, int at = -1);

    Event<> Change;  ///< the check mark was set or taken away

private:
    std::string caption_;
    bool checked_ = false;
    std::vector<Menu*> entries_;
};

}  // namespace controls
