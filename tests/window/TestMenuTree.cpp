#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "window/MenuTree.h"

namespace {

using Names = std::vector<std::string>;

struct Entry {
    int depth;
    std::string name;
    std::string caption;
    bool operator==(const Entry&) const = default;
};

void PrintTo(const Entry& entry, std::ostream* out) {
    *out << entry.depth << ' ' << entry.name << " \"" << entry.caption << '"';
}

void Collect(const controls::Menu& entry, int depth, std::vector<Entry>& into) {
    into.push_back({depth, entry.Name(), entry.Caption()});
    for (const controls::Menu* below : entry.Entries())
        Collect(*below, depth + 1, into);
}

class MenuTreeTest : public testing::Test {
protected:
    MenuTreeTest() { window::BuildMenuTree(menus, window); }

    const controls::Menu& EntryOf(const window::MenuRow& row) const { return menus.*row.entry; }

    controls::Form window{"frmBrowser", "Brindlepost"};
    window::WindowMenu menus;
};

TEST_F(MenuTreeTest, EveryEntryOfTheWindowHasOneRow) {
    std::set<const controls::Menu*> entries;
    for (const window::MenuRow& row : window::MenuTree())
        entries.insert(&EntryOf(row));

    EXPECT_EQ(entries.size(), window::MenuTree().size());
    EXPECT_EQ(entries.size() * sizeof(controls::Menu), sizeof(window::WindowMenu));
}

TEST_F(MenuTreeTest, NamesAreUnique) {
    std::set<std::string> names;
    for (const window::MenuRow& row : window::MenuTree())
        EXPECT_TRUE(names.insert(EntryOf(row).Name()).second) << EntryOf(row).Name();
}

TEST_F(MenuTreeTest, ARowIsAtMostOneDeeperThanTheRowAboveIt) {
    int above = -1;
    for (const window::MenuRow& row : window::MenuTree()) {
        EXPECT_GE(row.depth, 0) << row.caption;
        EXPECT_LE(row.depth, above + 1) << row.caption;
        above = row.depth;
    }
}

TEST_F(MenuTreeTest, EveryRowHasACaption) {
    for (const window::MenuRow& row : window::MenuTree())
        EXPECT_FALSE(row.caption.empty()) << EntryOf(row).Name();
}

TEST_F(MenuTreeTest, OnlyWhatIsCalledASeparatorIsOne) {
    for (const window::MenuRow& row : window::MenuTree())
        EXPECT_EQ(EntryOf(row).Name().starts_with("mnuSep"), EntryOf(row).IsSeparator())
            << EntryOf(row).Name();
}

TEST_F(MenuTreeTest, TheMenusOfTheWindowAreTheRows) {
    std::vector<Entry> rows;
    for (const window::MenuRow& row : window::MenuTree())
        rows.push_back({row.depth, EntryOf(row).Name(), std::string(row.caption)});

    std::vector<Entry> tree;
    for (const controls::Menu* menu : window.MenuBar())
        Collect(*menu, 0, tree);

    EXPECT_EQ(tree, rows);
}

TEST_F(MenuTreeTest, TheMenuBarGoesFromFileToHelp) {
    Names bar;
    for (const controls::Menu* menu : window.MenuBar())
        bar.push_back(menu->Caption());

    EXPECT_EQ(bar, (Names{"File", "Edit", "View", "Options", "Search", "Music Player", "Tab", "Help"}));
}

TEST_F(MenuTreeTest, OddCaptionsStayAsTheyAre) {
    EXPECT_EQ(menus.mnuAddToFavourites.Caption(), "Site to Favoruite");
    EXPECT_EQ(menus.mnuNewPlayList.Caption(), "Play list");
    EXPECT_EQ(menus.mnuRemoveSong.Caption(), "Selected Song From Play List");
    EXPECT_EQ(menus.mnuEditPlaylists.Caption(), "Playlists");
    EXPECT_EQ(menus.mnuRemoveFav.Caption(), "Site from Favourites");
    EXPECT_EQ(menus.mnuRepeat.Caption(), "Repeat 1");
    EXPECT_EQ(menus.mnuCleanUp.Caption(), "Clean-up Duplicates");
    EXPECT_EQ(menus.mnuSeperator9.Name(), "mnuSeperator9");
}

TEST_F(MenuTreeTest, OnlyPanningOffAndTheQuickFadeStartWithACheckMark) {
    std::set<std::string> checked;
    for (const window::MenuRow& row : window::MenuTree())
        if (EntryOf(row).Checked()) checked.insert(EntryOf(row).Name());

    EXPECT_EQ(checked, (std::set<std::string>{"mnuPanOff", "mnuQuickFade"}));
}

TEST_F(MenuTreeTest, LogOutAndExitStartDisabled) {
    std::set<std::string> disabled;
    for (const window::MenuRow& row : window::MenuTree())
        if (!EntryOf(row).Enabled()) disabled.insert(EntryOf(row).Name());

    EXPECT_EQ(disabled, (std::set<std::string>{"mnuExit", "mnuLogout"}));
}

TEST_F(MenuTreeTest, TheStrobeLightWarnsOfFlashingLight) {
    EXPECT_EQ(menus.mnuStrobe.ToolTipText(),
              "Warning: flashing light, which can cause seizures in some people");
}

}  // namespace
