#include "window/MenuGroups.h"

namespace window {

player::PlayerMenu PlayerMenuOf(MenuControls& menus) {
    return {
        {menus.mnuPlay, menus.mnuPause, menus.mnuStop},
        {menus.mnuRepeat, menus.mnuShuffle},
        {menus.mnuCueSong, menus.mnuRemoveCueList},
        {menus.mnuCrossfade, menus.mnuQuickFade, menus.mnuMediumFade, menus.mnuLongFade, menus.mnuFadeOff},
        {menus.mnuIncreaseVolume, menus.mnuDecreaseVolume, menus.mnuMusicMute},
        {menus.mnuIncreaseSpeed, menus.mnuDecreaseSpeed, menus.mnuNormalSpeed},
        {menus.mnuPanInstant, menus.mnuPanQuick, menus.mnuPanMedium, menus.mnuPanLong, menus.mnuPanOff},
        {menus.mnuStrobe, menus.mnuParty, menus.mnuMood, menus.mnuAnim, menus.mnuNone},
        menus.mnuFullScreen,
        menus.mnuSoundTest};
}

web::WebMenu WebMenuOf(MenuControls& menus) {
    return {menus.mnuTab,          menus.mnuSep11,           menus.mnuNewTabTab,    menus.mnuMusicTabTab,
            menus.mnuViewMusicTab, menus.mnuCloseCurrentTab, menus.mnuCloseAllTabs, menus.mnuWebTab,
            menus.mnuWebsite,      menus.mnuWebSearch,       menus.mnuLyricSearch,  menus.mnuOnlineHelp,
            menus.mnuCheckUpdates, menus.mnuSetAutoRefresh,  menus.mnuRefreshAll,   menus.mnuGoForward,
            menus.mnuGoBack};
}

places::FavouritesMenu FavouritesMenuOf(MenuControls& menus) {
    return {menus.mnuFav,       menus.mnuAddToFavourites, menus.mnuEditFavs,
            menus.mnuRemoveFav, menus.mnuRemoveFavGroup,  menus.mnuViewFavs};
}

library::PlayListMenu PlayListMenuOf(MenuControls& menus) {
    return {menus.mnuNewPlayList, menus.mnuRemoveSong};
}

library::SearchMenu SearchMenuOf(MenuControls& menus) {
    return {menus.mnuSearchBroad, menus.mnuSearchTitle, menus.mnuSearchArtist, menus.mnuSearchFilename};
}

session::SettingsControls SettingsControlsOf(BrowserForm& window, store::DataSource& datHistory) {
    MenuControls& menus = window.menus;
    return {menus.mnuRepeat,
            menus.mnuShuffle,
            menus.mnuSearchBroad,
            menus.mnuSearchTitle,
            menus.mnuSearchArtist,
            menus.mnuSearchFilename,
            window.web.refresh.txtRefresh,
            window.web.address.cmbType,
            datHistory,
            window.favourites.datFav};
}

session::OptionBoxes OptionBoxesOf(InfoForm& info) {
    return {info.chkSettings, info.chkHomePages,  info.chkMSN,        info.chkCustom,
            info.chkSaveMSN,  info.chkMultiLogin, info.chkAutoLogin,  info.chkHistory,
            info.chkGoogle,   info.chkFile,       info.chkSubFolders, info.cmdNewUser};
}

}  // namespace window
