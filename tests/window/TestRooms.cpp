#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "WindowWalk.h"
#include "base/Text.h"
#include "scenario/Program.h"

namespace {

const std::filesystem::path kSource = BRINDLEPOST_SOURCE_DIR;
const std::string kNotBuilt = "not built";
const std::string kMenuTree = "menu tree";

struct Row {
    std::string control;
    std::string group;
    std::string room;
    std::string events;
};

using Table = std::vector<Row>;

std::string Cell(const std::string& text) {
    return base::Replace(std::string(base::Trim(text)), "`", "");
}

/// The tables of the page, by their window.
std::map<std::string, Table> ReadPage() {
    std::map<std::string, Table> tables;
    std::ifstream page(kSource / "docs" / "rooms.md");
    std::string window;
    for (std::string line; std::getline(page, line);) {
        if (base::StartsWith(line, "## ")) window = line.substr(3);
        if (!base::StartsWith(line, "| `")) continue;
        const std::vector<std::string> cells = base::Split(line, "|");
        if (cells.size() == 6) {
            tables[window].push_back({Cell(cells[1]), Cell(cells[2]), Cell(cells[3]), Cell(cells[4])});
        }
    }
    return tables;
}

std::vector<std::string> Listed(const std::string& cell) {
    std::vector<std::string> names;
    for (const std::string& name : base::Split(cell, ","))
        if (!base::Trim(name).empty()) names.emplace_back(base::Trim(name));
    return names;
}

std::string Joined(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}

bool HasHeader(const std::string& room) {
    static const std::vector<std::string> kFolders = {"session", "library", "player",
                                                      "web",     "places",  "window"};
    return std::any_of(kFolders.begin(), kFolders.end(), [&room](const std::string& folder) {
        return std::filesystem::exists(kSource / folder / (room + ".h"));
    });
}

class RoomsTest : public testing::Test {
protected:
    RoomsTest() {
        // With one tab, every control array has a member that somebody listens to.
        computer.AddUser("Ann", "pw");
        program.StartAndLogIn("Ann", "pw");
        program.GoTo("example.org");
    }

    /// The control of that name, of an array the member that is used.
    std::map<std::string, const controls::Control*> ByName(const controls::Form& window) {
        std::map<std::string, const controls::Control*> named;
        for (const controls::Control* control : walk::ControlsOf(window)) {
            const auto [at, is_new] = named.emplace(control->Name(), control);
            EXPECT_TRUE(is_new || control->Index() >= 0) << "two controls are called " << control->Name();
            if (control->Index() > 0) at->second = control;
        }
        return named;
    }

    scenario::Computer computer;
    scenario::Program program{computer};
    const std::map<std::string, Table> page = ReadPage();
};

TEST_F(RoomsTest, EveryWindowHasATableAndEveryTableAWindow) {
    std::set<std::string> windows;
    for (const controls::Form* window : program.windows.All())
        windows.insert(window->Name());
    std::set<std::string> tables;
    for (const auto& [window, table] : page)
        tables.insert(window);

    EXPECT_EQ(tables, windows);
}

TEST_F(RoomsTest, EveryControlHasItsRow) {
    for (const controls::Form* window : program.windows.All()) {
        std::set<std::string> rows;
        for (const Row& row : page.at(window->Name()))
            rows.insert(row.control);
        for (const auto& [name, control] : ByName(*window))
            EXPECT_TRUE(rows.contains(name)) << name << " of " << window->Name();
    }
}

TEST_F(RoomsTest, NoControlHasTwoRowsInATable) {
    for (const auto& [window, table] : page) {
        std::set<std::string> rows;
        for (const Row& row : table)
            EXPECT_TRUE(rows.insert(row.control).second) << row.control << " of " << window;
    }
}

TEST_F(RoomsTest, EveryRowHasItsControl) {
    for (const controls::Form* window : program.windows.All()) {
        const auto named = ByName(*window);
        for (const Row& row : page.at(window->Name())) {
            if (base::StartsWith(row.control, "dat")) continue;
            EXPECT_TRUE(named.contains(row.control)) << row.control << " of " << window->Name();
        }
    }
}

TEST_F(RoomsTest, EveryRoomIsThere) {
    for (const auto& [window, table] : page) {
        for (const Row& row : table) {
            EXPECT_FALSE(row.group.empty()) << row.control << " of " << window;
            if (row.room == kNotBuilt || row.room == kMenuTree) continue;
            const std::vector<std::string> rooms = Listed(row.room);
            EXPECT_FALSE(rooms.empty()) << row.control << " of " << window;
            for (const std::string& room : rooms)
                EXPECT_TRUE(HasHeader(room)) << room << " of " << row.control;
        }
    }
}

TEST_F(RoomsTest, EveryRowTellsWhatIsListenedTo) {
    for (const controls::Form* window : program.windows.All()) {
        const auto named = ByName(*window);
        for (const Row& row : page.at(window->Name())) {
            const auto control = named.find(row.control);
            if (control == named.end()) continue;
            EXPECT_EQ(row.events, Joined(walk::ClaimedEvents(*control->second)))
                << row.control << " of " << window->Name();
        }
    }
}

TEST_F(RoomsTest, NobodyListensToWhatIsNotBuilt) {
    for (const auto& [window, table] : page) {
        for (const Row& row : table) {
            if (row.room != kNotBuilt && row.room != kMenuTree) continue;
            EXPECT_TRUE(row.events.empty()) << row.control << " of " << window;
        }
    }
}

TEST_F(RoomsTest, TheMenuEntriesThatNobodyAnswersAreThoseThatAreNotBuilt) {
    std::set<std::string> unanswered;
    for (const controls::Control* control : walk::ControlsOf(program.Browser())) {
        const auto* entry = dynamic_cast<const controls::Menu*>(control);
        if (entry == nullptr || entry->IsSeparator() || !entry->Entries().empty()) continue;
        if (!entry->Click.IsClaimed()) unanswered.insert(entry->Name());
    }
    std::set<std::string> not_built;
    for (const Row& row : page.at("frmBrowser"))
        if (base::StartsWith(row.control, "mnu") && row.room == kNotBuilt) not_built.insert(row.control);

    EXPECT_EQ(unanswered, not_built);
}

}  // namespace
