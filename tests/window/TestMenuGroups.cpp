#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "window/MenuGroups.h"

namespace {

// A group is filled by place, so every member is compared with the entry that it is called after.
#define EXPECT_PICKED(group, member) EXPECT_EQ(&(group).member, &menus.member)

class MenuGroupsTest : public testing::Test {
protected:
    window::BrowserForm window;
    window::MenuControls& menus = window.menus;
};

TEST_F(MenuGroupsTest, ThePlayerGetsItsEntries) {
    const player::PlayerMenu menu = window::PlayerMenuOf(menus);

    EXPECT_PICKED(menu.buttons, mnuPlay);
    EXPECT_PICKED(menu.buttons, mnuPause);
    EXPECT_PICKED(menu.buttons, mnuStop);
    EXPECT_PICKED(menu.mode, mnuRepeat);
    EXPECT_PICKED(menu.mode, mnuShuffle);
    EXPECT_PICKED(menu.cue, mnuCueSong);
    EXPECT_PICKED(menu.cue, mnuRemoveCueList);
    EXPECT_PICKED(menu.fade, mnuCrossfade);
    EXPECT_PICKED(menu.fade, mnuQuickFade);
    EXPECT_PICKED(menu.fade, mnuMediumFade);
    EXPECT_PICKED(menu.fade, mnuLongFade);
    EXPECT_PICKED(menu.fade, mnuFadeOff);
    EXPECT_PICKED(menu.volume, mnuIncreaseVolume);
    EXPECT_PICKED(menu.volume, mnuDecreaseVolume);
    EXPECT_PICKED(menu.volume, mnuMusicMute);
    EXPECT_PICKED(menu.speed, mnuIncreaseSpeed);
    EXPECT_PICKED(menu.speed, mnuDecreaseSpeed);
    EXPECT_PICKED(menu.speed, mnuNormalSpeed);
    EXPECT_PICKED(menu.panning, mnuPanInstant);
    EXPECT_PICKED(menu.panning, mnuPanQuick);
    EXPECT_PICKED(menu.panning, mnuPanMedium);
    EXPECT_PICKED(menu.panning, mnuPanLong);
    EXPECT_PICKED(menu.panning, mnuPanOff);
}

TEST_F(MenuGroupsTest, ThePlayerGetsItsLightShowsAndDialogs) {
    const player::PlayerMenu menu = window::PlayerMenuOf(menus);

    EXPECT_PICKED(menu.visual, mnuStrobe);
    EXPECT_PICKED(menu.visual, mnuParty);
    EXPECT_PICKED(menu.visual, mnuMood);
    EXPECT_PICKED(menu.visual, mnuAnim);
    EXPECT_PICKED(menu.visual, mnuNone);
    EXPECT_PICKED(menu, mnuFullScreen);
    EXPECT_PICKED(menu, mnuSoundTest);
}

TEST_F(MenuGroupsTest, TheWebGetsItsEntries) {
    const web::WebMenu menu = window::WebMenuOf(menus);

    EXPECT_PICKED(menu, mnuTab);
    EXPECT_PICKED(menu, mnuSep11);
    EXPECT_PICKED(menu, mnuNewTabTab);
    EXPECT_PICKED(menu, mnuMusicTabTab);
    EXPECT_PICKED(menu, mnuViewMusicTab);
    EXPECT_PICKED(menu, mnuCloseCurrentTab);
    EXPECT_PICKED(menu, mnuCloseAllTabs);
    EXPECT_PICKED(menu, mnuWebTab);
    EXPECT_PICKED(menu, mnuWebsite);
    EXPECT_PICKED(menu, mnuWebSearch);
    EXPECT_PICKED(menu, mnuLyricSearch);
    EXPECT_PICKED(menu, mnuOnlineHelp);
    EXPECT_PICKED(menu, mnuCheckUpdates);
    EXPECT_PICKED(menu, mnuSetAutoRefresh);
    EXPECT_PICKED(menu, mnuRefreshAll);
    EXPECT_PICKED(menu, mnuGoForward);
    EXPECT_PICKED(menu, mnuGoBack);
}

TEST_F(MenuGroupsTest, TheFavouritesGetTheirEntries) {
    const places::FavouritesMenu menu = window::FavouritesMenuOf(menus);

    EXPECT_PICKED(menu, mnuFav);
    EXPECT_PICKED(menu, mnuAddToFavourites);
    EXPECT_PICKED(menu, mnuEditFavs);
    EXPECT_PICKED(menu, mnuRemoveFav);
    EXPECT_PICKED(menu, mnuRemoveFavGroup);
    EXPECT_PICKED(menu, mnuViewFavs);
}

TEST_F(MenuGroupsTest, TheLibraryGetsItsEntries) {
    const library::PlayListMenu playlists = window::PlayListMenuOf(menus);
    const library::SearchMenu search = window::SearchMenuOf(menus);

    EXPECT_PICKED(playlists, mnuNewPlayList);
    EXPECT_PICKED(playlists, mnuRemoveSong);
    EXPECT_PICKED(search, mnuSearchBroad);
    EXPECT_PICKED(search, mnuSearchTitle);
    EXPECT_PICKED(search, mnuSearchArtist);
    EXPECT_PICKED(search, mnuSearchFilename);
}

TEST_F(MenuGroupsTest, TheSettingsGetTheControlsThatTheyRestore) {
    store::DataSource datHistory{"datHistory"};

    const session::SettingsControls settings = window::SettingsControlsOf(window, datHistory);

    EXPECT_PICKED(settings, mnuRepeat);
    EXPECT_PICKED(settings, mnuShuffle);
    EXPECT_PICKED(settings, mnuSearchBroad);
    EXPECT_PICKED(settings, mnuSearchTitle);
    EXPECT_PICKED(settings, mnuSearchArtist);
    EXPECT_PICKED(settings, mnuSearchFilename);
    EXPECT_EQ(&settings.txtRefresh, &window.web.refresh.txtRefresh);
    EXPECT_EQ(&settings.cmbType, &window.web.address.cmbType);
    EXPECT_EQ(&settings.datHistory, &datHistory);
    EXPECT_EQ(&settings.datFav, &window.favourites.datFav);
}

TEST_F(MenuGroupsTest, TheOptionsGetTheirBoxes) {
    window::InfoForm info;

    const session::OptionBoxes boxes = window::OptionBoxesOf(info);

    EXPECT_EQ(&boxes.chkSettings, &info.chkSettings);
    EXPECT_EQ(&boxes.chkHomePages, &info.chkHomePages);
    EXPECT_EQ(&boxes.chkMSN, &info.chkMSN);
    EXPECT_EQ(&boxes.chkCustom, &info.chkCustom);
    EXPECT_EQ(&boxes.chkSaveMSN, &info.chkSaveMSN);
    EXPECT_EQ(&boxes.chkMultiLogin, &info.chkMultiLogin);
    EXPECT_EQ(&boxes.chkAutoLogin, &info.chkAutoLogin);
    EXPECT_EQ(&boxes.chkHistory, &info.chkHistory);
    EXPECT_EQ(&boxes.chkGoogle, &info.chkGoogle);
    EXPECT_EQ(&boxes.chkFile, &info.chkFile);
    EXPECT_EQ(&boxes.chkSubFolders, &info.chkSubFolders);
    EXPECT_EQ(&boxes.cmdNewUser, &info.cmdNewUser);
}

}  // namespace
