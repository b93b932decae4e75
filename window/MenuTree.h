// The menus of the main window: which entry is where, and what it is called.
#pragma once

#include <span>
#include <string_view>

#include "controls/Form.h"
#include "controls/Menu.h"
#include "window/WindowMenu.h"

namespace window {

/// One entry: how deep it is (0 is the menu bar), which it is, and its caption ("-" is a separator).
struct MenuRow {
    int depth;
    controls::Menu WindowMenu::* entry;
    std::string_view caption;
};

/// Every entry, top to bottom.
std::span<const MenuRow> MenuTree();

/// Gives the entries their captions, hangs each under its parent and puts the menus into the window's menu
/// bar. "Log Out" and "Exit" start disabled; panning is off and the quick fade on.
void BuildMenuTree(WindowMenu& menus, controls::Form& window);

}  // namespace window
