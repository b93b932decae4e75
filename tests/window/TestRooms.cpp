#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "RoomsPage.h"
#include "WindowWalk.h"
#include "base/Text.h"

namespace {

using rooms_page::Row;
using rooms_page::Table;

const std::filesystem::path kSource = BRINDLEPOST_SOURCE_DIR;

std::string WrittenPage() {
    std::ifstream page(kSource / "docs" / "rooms.md");
    std::ostringstream text;
    text << page.rdbuf();
    return text.str();
}

bool HasHeader(const std::string& room) {
    static const std::vector<std::string> folders = {"session", "library", "player",
                                                     "web",     "places",  "window"};
    return std::any_of(folders.begin(), folders.end(), [&room](const std::string& folder) {
        return std::filesystem::exists(kSource / folder / (room + ".h"));
    });
}

bool HasNoRoom(const Row& row) {
    return row.rooms == std::vector<std::string>{rooms_page::kMenuTree};
}

/// The data sources that the groups declare, by name, as often as they are there.
std::multiset<std::string> DeclaredSources() {
    static const std::regex declaration{R"re(store::DataSource dat\w+\{"(\w+)"\})re"};
    std::multiset<std::string> names;
    for (const char* folder : {"session", "library", "player", "web", "places", "window"}) {
        for (const auto& file : std::filesystem::directory_iterator(kSource / folder)) {
            if (file.path().extension() != ".h") continue;
            std::ifstream header(file.path());
            for (std::string line; std::getline(header, line);) {
                std::smatch found;
                if (std::regex_search(line, found, declaration)) names.insert(found[1]);
            }
        }
    }
    return names;
}

class RoomsTest : public testing::Test, protected rooms_page::RunningProgram {
protected:
    const std::vector<Table> tables = rooms_page::TablesOf(program.windows);
};

TEST_F(RoomsTest, ThePageIsWhatTheWindowsTell) {
    EXPECT_EQ(WrittenPage(), rooms_page::PageOf(tables)) << "print_rooms --write writes it";
}

TEST_F(RoomsTest, EveryWindowHasATable) {
    std::vector<std::string> windows;
    for (const controls::Form* window : program.windows.All())
        windows.push_back(window->Name());
    std::vector<std::string> with_table;
    with_table.reserve(std::size(tables));
    for (const Table& table : tables)
        with_table.push_back(table.window);

    EXPECT_EQ(with_table, windows);
}

TEST_F(RoomsTest, EveryControlIsInTheGroupOfARoom) {
    for (const Table& table : tables) {
        for (const Row& row : table.rows) {
            EXPECT_FALSE(row.group.empty()) << row.control << " of " << table.window;
            // The main window is a struct of groups: no control is its own.
            EXPECT_EQ(row.group == "BrowserForm", row.control == "frmBrowser") << row.control;
        }
    }
}

// A data source is no control, so no walk over the windows meets it.
TEST_F(RoomsTest, EveryDataSourceHasARow) {
    std::multiset<std::string> with_row;
    for (const Table& table : tables) {
        for (const Row& row : table.rows)
            if (base::StartsWith(row.control, "dat")) with_row.insert(row.control);
    }

    EXPECT_EQ(with_row, DeclaredSources());
    EXPECT_FALSE(with_row.empty());
}

TEST_F(RoomsTest, NoControlHasTwoRowsInATable) {
    for (const Table& table : tables) {
        std::set<std::string> rows;
        for (const Row& row : table.rows)
            EXPECT_TRUE(rows.insert(row.control).second) << row.control << " of " << table.window;
    }
}

TEST_F(RoomsTest, EveryRoomIsThere) {
    for (const Table& table : tables) {
        for (const Row& row : table.rows) {
            EXPECT_FALSE(row.rooms.empty()) << row.control << " of " << table.window;
            if (HasNoRoom(row)) continue;
            for (const std::string& room : row.rooms)
                EXPECT_TRUE(HasHeader(room)) << room << " of " << row.control;
        }
    }
}

TEST_F(RoomsTest, NobodyListensToWhatHasNoRoom) {
    for (const Table& table : tables) {
        for (const Row& row : table.rows) {
            if (!HasNoRoom(row)) continue;
            EXPECT_TRUE(row.events.empty()) << row.control << " of " << table.window;
        }
    }
}

TEST_F(RoomsTest, EveryMenuEntryIsAnswered) {
    for (const controls::Control* control : window_tests::ControlsOf(program.Browser())) {
        const auto* entry = dynamic_cast<const controls::Menu*>(control);
        if (entry == nullptr || entry->IsSeparator() || !entry->Entries().empty()) continue;
        EXPECT_TRUE(entry->Click.IsClaimed()) << entry->Name();
    }
}

}  // namespace
