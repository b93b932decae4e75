#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "window/MenuControls.h"

namespace {

struct ExpectedEntry {
    int depth;
    std::string name;
    std::string caption;
};

const std::vector<ExpectedEntry> kExpected = {
    {0, "mnuFile", "File"},
    {1, "mnuNew", "New"},
    {2, "mnuWebTab", "Web Tab"},
    {2, "mnuFav", "Favourite"},
    {2, "mnuNewPlayList", "Play list"},
    {1, "mnuSep1", "-"},
    {1, "mnuOpen", "Open"},
    {2, "mnuOpenMediaFile", "Media File"},
    {2, "mnuWebsite", "Website"},
    {1, "mnuClose", "Close"},
    {2, "mnuCloseCurrentTab", "Current Tab"},
    {2, "mnuCloseAllTabs", "All Tabs"},
    {1, "mnuSep2", "-"},
    {1, "mnuAdd", "Add"},
    {2, "mnuAddToLibrary", "Media to Library"},
    {2, "mnuAddToFavourites", "Site to Favoruite"},
    {1, "mnuRemove", "Remove"},
    {2, "mnuRemoveSong", "Selected Song From Play List"},
    {2, "mnuRemoveCueList", "Song From Cue List"},
    {1, "mnuDelete", "Delete"},
    {2, "mnuRemoveFav", "Site from Favourites"},
    {2, "mnuRemoveFavGroup", "Favourites Group"},
    {2, "mnuHistory", "History"},
    {1, "mnuSep3", "-"},
    {1, "mnuLogout", "Log Out"},
    {1, "mnuExit", "Exit"},
    {0, "mnuEdit", "Edit"},
    {1, "mnuEditFavs", "Favourites"},
    {1, "mnuEditPlaylists", "Playlists"},
    {0, "mnuView", "View"},
    {1, "mnuFullScreen", "Full Screen"},
    {1, "mnuViewMusicTab", "Music Tab"},
    {1, "mnuViewFavs", "Favourites"},
    {0, "mnuOptions", "Options"},
    {1, "mnuSetAutoRefresh", "Set Auto Refresh"},
    {1, "mnuRefreshAll", "Refresh All"},
    {1, "mnuSep4", "-"},
    {1, "mnuGoForward", "Go Forward"},
    {1, "mnuGoBack", "Go Back"},
    {1, "mnuSeperator9", "-"},
    {1, "mnuPreferences", "Preferences"},
    {0, "mnuSearch", "Search"},
    {1, "mnuWebSearch", "Web Search"},
    {1, "mnuSongSearch", "Song Search"},
    {2, "mnuSearchArtist", "Artist"},
    {2, "mnuSearchTitle", "Title"},
    {2, "mnuSep12", "-"},
    {2, "mnuSearchFilename", "Filename"},
    {2, "mnuSep17", "-"},
    {2, "mnuSearchBroad", "Broad Search"},
    {1, "mnuSep9", "-"},
    {1, "mnuLyricSearch", "Current Song Lyrics"},
    {0, "mnuMusicPlayer", "Music Player"},
    {1, "mnuCueSong", "Cue Song"},
    {1, "mnuMusicPlayerControls", "Controls"},
    {2, "mnuPlay", "Play"},
    {2, "mnuPause", "Pause"},
    {2, "mnuStop", "Stop"},
    {1, "mnuMusicPlayMode", "Play Mode"},
    {2, "mnuRepeat", "Repeat 1"},
    {2, "mnuShuffle", "Shuffle"},
    {1, "mnuSep5", "-"},
    {1, "mnuVolume", "Volume"},
    {2, "mnuIncreaseVolume", "Increase"},
    {2, "mnuDecreaseVolume", "Decrease"},
    {2, "mnuMusicMute", "Mute"},
    {1, "mnuSongSpeed", "Song Speed"},
    {2, "mnuIncreaseSpeed", "Increase"},
    {2, "mnuDecreaseSpeed", "Decrease"},
    {2, "mnuNormalSpeed", "Normal"},
    {1, "mnuSep6", "-"},
    {1, "mnuSpecial", "Special"},
    {2, "mnuVolumePanning", "Volume Panning"},
    {3, "mnuPanInstant", "Instant"},
    {3, "mnuPanQuick", "Quick"},
    {3, "mnuPanMedium", "Medium"},
    {3, "mnuPanLong", "Long"},
    {3, "mnuSep16", "-"},
    {3, "mnuPanOff", "Off"},
    {2, "mnuCrossfade", "Crossfade Songs"},
    {3, "mnuQuickFade", "Quick"},
    {3, "mnuMediumFade", "Medium"},
    {3, "mnuLongFade", "Long"},
    {3, "mnuSep15", "-"},
    {3, "mnuFadeOff", "Off"},
    {2, "mnuVisualisations", "Visualisations"},
    {3, "mnuStrobe", "Strobe Light"},
    {3, "mnuParty", "Party Light"},
    {3, "mnuMood", "Mood Light"},
    {3, "mnuSep13", "-"},
    {3, "mnuAnim", "Animation"},
    {3, "mnuSep14", "-"},
    {3, "mnuNone", "None"},
    {1, "mnuMusicJustTracks", "Just Show Tracks"},
    {1, "mnuCleanUp", "Clean-up Duplicates"},
    {1, "mnuSep7", "-"},
    {1, "mnuSoundTest", "Sound Test"},
    {0, "mnuTab", "Tab"},
    {1, "mnuNewTabTab", "New Tab"},
    {1, "mnuSep10", "-"},
    {1, "mnuSep11", "-"},
    {1, "mnuMusicTabTab", "Music Tab"},
    {0, "mnuHelp", "Help"},
    {1, "mnuOnlineHelp", "Online Help"},
    {1, "mnuCheckUpdates", "Check for Updates"},
    {1, "mnuSep8", "-"},
    {1, "mnuAbout", "About"},
};

void Collect(const controls::Menu& entry, int depth, std::vector<ExpectedEntry>& into) {
    into.push_back({depth, entry.Name(), entry.Caption()});
    for (const controls::Menu* below : entry.Entries())
        Collect(*below, depth + 1, into);
}

class MenuControlsTest : public testing::Test {
protected:
    MenuControlsTest() { window::BuildMenuTree(menus, window); }

    std::vector<ExpectedEntry> Tree() const {
        std::vector<ExpectedEntry> tree;
        for (const controls::Menu* menu : window.MenuBar())
            Collect(*menu, 0, tree);
        return tree;
    }

    controls::Form window{"frmBrowser", "Brindlepost"};
    window::MenuControls menus;
};

TEST_F(MenuControlsTest, TheTreeHasEveryEntryInItsPlaceWithItsCaption) {
    const std::vector<ExpectedEntry> tree = Tree();

    ASSERT_EQ(tree.size(), kExpected.size());
    for (std::size_t i = 0; i < tree.size(); ++i) {
        SCOPED_TRACE(kExpected[i].name);
        EXPECT_EQ(tree[i].depth, kExpected[i].depth);
        EXPECT_EQ(tree[i].name, kExpected[i].name);
        EXPECT_EQ(tree[i].caption, kExpected[i].caption);
    }
}

TEST_F(MenuControlsTest, TheTableNamesEveryMemberOnce) {
    std::set<const controls::Menu*> members;
    for (const window::MenuRow& row : window::kMenuTree)
        members.insert(&(menus.*row.entry));

    EXPECT_EQ(members.size(), window::kMenuTree.size());
    EXPECT_EQ(members.size() * sizeof(controls::Menu), sizeof(window::MenuControls));
}

TEST_F(MenuControlsTest, OnlyPanningOffAndTheQuickFadeStartWithACheckMark) {
    std::set<std::string> checked;
    for (const window::MenuRow& row : window::kMenuTree) {
        const controls::Menu& entry = menus.*row.entry;
        if (entry.Checked()) checked.insert(entry.Name());
    }

    EXPECT_EQ(checked, (std::set<std::string>{"mnuPanOff", "mnuQuickFade"}));
}

TEST_F(MenuControlsTest, LogOutAndExitStartDisabled) {
    std::set<std::string> disabled;
    for (const window::MenuRow& row : window::kMenuTree) {
        const controls::Menu& entry = menus.*row.entry;
        if (!entry.Enabled()) disabled.insert(entry.Name());
    }

    EXPECT_EQ(disabled, (std::set<std::string>{"mnuExit", "mnuLogout"}));
}

TEST_F(MenuControlsTest, TheStrobeLightWarnsOfFlashingLight) {
    EXPECT_EQ(menus.mnuStrobe.ToolTipText(),
              "Warning: flashing light, which can cause seizures in some people");
}

}  // namespace
