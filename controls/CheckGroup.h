// Menu entries of which one is checked, as the lengths of the crossfade.
//
// A group only keeps the check marks: what a choice does, and whether an entry is checked at the start,
// belongs to its room. Other code may still check an entry on its own; then the first checked one counts.
#pragma once

#include <concepts>
#include <vector>

#include "controls/Menu.h"

namespace controls {

class CheckGroup {
public:
    /// The entries must outlive the group.
    template <std::same_as<Menu>... Entries>
    explicit CheckGroup(Entries&... entries) : entries_{&entries...} {}

    /// Checks an entry of the group and unchecks the others.
    void Check(Menu& entry);
    void UncheckAll();
    /// The first checked entry, in the order of the constructor; null if none is checked.
    Menu* Checked() const;

private:
    std::vector<Menu*> entries_;
};

}  // namespace controls
