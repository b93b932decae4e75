// The page that lists the rooms, as the live windows tell it.
//
// A control's group is found by its address: the smallest of the known groups that it is a member of. Which
// room a group has is the one thing that is written down, in RoomsPage.cpp.
#pragma once

#include <string>
#include <vector>

#include "scenario/Program.h"

namespace rooms_page {

/// No room: the control stands in its place and nothing answers it yet.
/// No room: the entry only opens others, or is a separator.
inline constexpr const char* kMenuTree = "menu tree";

struct Row {
    std::string control;
    std::string group;               ///< empty if it is a member of no known group
    std::vector<std::string> rooms;  ///< or one of the two texts above
    std::vector<std::string> events;
};

struct Table {
    std::string window;
    std::vector<Row> rows;
};

/// One table a window. Of a control array one loaded member speaks for all.
std::vector<Table> TablesOf(window::Windows& windows);

/// The page's text.
std::string PageOf(const std::vector<Table>& tables);

/// Logs somebody in and opens a tab, so that every control array has a member that somebody listens to.
struct RunningProgram {
    RunningProgram();

    scenario::Computer computer;
    scenario::Program program{computer};
};

}  // namespace rooms_page
