#include "controls/Menu.h"

#include <algorithm>
#include <cassert>

namespace controls {

void Menu::SetCaption(std::string_view caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Report(Property::Caption);
}

void Menu::SetChecked(bool checked) {
    if (checked_ == checked) return;
    checked_ = checked;
    Report(Property::Checked);
}

void Menu::AddEntry(Menu& entry, int at) {
    assert(std::find(entries_.begin(), entries_.end(), &entry) == entries_.end());
    if (at < 0 || at >= static_cast<int>(entries_.size())) {
        entries_.push_back(&entry);
    } else {
        entries_.insert(entries_.begin() + at, &entry);
    }
    Report(Property::Items);
}

}  // namespace controls
