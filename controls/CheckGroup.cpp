#include "controls/CheckGroup.h"

#include <algorithm>
#include <cassert>

namespace controls {

void CheckGroup::Check(Menu& entry) {
    assert(std::find(entries_.begin(), entries_.end(), &entry) != entries_.end());
    UncheckAll();
    entry.SetChecked(true);
}

void CheckGroup::UncheckAll() {
    for (Menu* entry : entries_)
        entry->SetChecked(false);
}

Menu* CheckGroup::Checked() const {
    const auto checked =
        std::find_if(entries_.begin(), entries_.end(), [](const Menu* entry) { return entry->Checked(); });
    return checked == entries_.end() ? nullptr : *checked;
}

}  // namespace controls
