#include "window/MenuControls.h"

#include <cassert>
#include <vector>

namespace window {

void BuildMenuTree(MenuControls& menus, controls::Form& window) {
    std::vector<controls::Menu*> bar;
    std::vector<controls::Menu*> path;
    for (const MenuRow& row : kMenuTree) {
        controls::Menu& entry = menus.*row.entry;
        entry.SetCaption(row.caption);
        const auto depth = static_cast<std::size_t>(row.depth);
        assert(depth <= path.size());
        path.resize(depth);
        if (path.empty()) {
            bar.push_back(&entry);
        } else {
            path.back()->AddEntry(entry);
        }
        path.push_back(&entry);
    }
    menus.mnuLogout.SetEnabled(false);
    menus.mnuExit.SetEnabled(false);
    menus.mnuPanOff.SetChecked(true);
    menus.mnuQuickFade.SetChecked(true);
    menus.mnuStrobe.SetToolTipText("Warning: flashing light, which can cause seizures in some people");
    window.SetMenuBar(std::move(bar));
}

}  // namespace window
