#include "controls/Menu.h"

#include <algorithm>
#include <cassert>

namespace controls {

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
