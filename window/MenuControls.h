// The entries of the main window's menus, and the table that makes a tree of them.
#pragma once

#include <array>
#include <string_view>

#include "controls/Menu.h"
#include "controls/Surfaces.h"

namespace window {

/// Every entry under its name; captions come from the table below.
struct MenuControls {
    controls::Menu mnuFile{"mnuFile"};
    controls::Menu mnuNew{"mnuNew"};
    controls::Menu mnuWebTab{"mnuWebTab"};
    controls::Menu mnuFav{"mnuFav"};
    controls::Menu mnuNewPlayList{"mnuNewPlayList"};
    controls::Menu mnuSep1{"mnuSep1"};
    controls::Menu mnuOpen{"mnuOpen"};
    controls::Menu mnuOpenMediaFile{"mnuOpenMediaFile"};
    controls::Menu mnuWebsite{"mnuWebsite"};
    controls::Menu mnuClose{"mnuClose"};
    controls::Menu mnuCloseCurrentTab{"mnuCloseCurrentTab"};
    controls::Menu mnuCloseAllTabs{"mnuCloseAllTabs"};
    controls::Menu mnuSep2{"mnuSep2"};
    controls::Menu mnuAdd{"mnuAdd"};
    controls::Menu mnuAddToLibrary{"mnuAddToLibrary"};
    controls::Menu mnuAddToFavourites{"mnuAddToFavourites"};
    controls::Menu mnuRemove{"mnuRemove"};
    controls::Menu mnuRemoveSong{"mnuRemoveSong"};
    controls::Menu mnuRemoveCueList{"mnuRemoveCueList"};
    controls::Menu mnuDelete{"mnuDelete"};
    controls::Menu mnuRemoveFav{"mnuRemoveFav"};
    controls::Menu mnuRemoveFavGroup{"mnuRemoveFavGroup"};
    controls::Menu mnuHistory{"mnuHistory"};
    controls::Menu mnuSep3{"mnuSep3"};
    controls::Menu mnuLogout{"mnuLogout"};
    controls::Menu mnuExit{"mnuExit"};
    controls::Menu mnuEdit{"mnuEdit"};
    controls::Menu mnuEditFavs{"mnuEditFavs"};
    controls::Menu mnuEditPlaylists{"mnuEditPlaylists"};
    controls::Menu mnuView{"mnuView"};
    controls::Menu mnuFullScreen{"mnuFullScreen"};
    controls::Menu mnuViewMusicTab{"mnuViewMusicTab"};
    controls::Menu mnuViewFavs{"mnuViewFavs"};
    controls::Menu mnuOptions{"mnuOptions"};
    controls::Menu mnuSetAutoRefresh{"mnuSetAutoRefresh"};
    controls::Menu mnuRefreshAll{"mnuRefreshAll"};
    controls::Menu mnuSep4{"mnuSep4"};
    controls::Menu mnuGoForward{"mnuGoForward"};
    controls::Menu mnuGoBack{"mnuGoBack"};
    controls::Menu mnuSeperator9{"mnuSeperator9"};
    controls::Menu mnuPreferences{"mnuPreferences"};
    controls::Menu mnuSearch{"mnuSearch"};
    controls::Menu mnuWebSearch{"mnuWebSearch"};
    controls::Menu mnuSongSearch{"mnuSongSearch"};
    controls::Menu mnuSearchArtist{"mnuSearchArtist"};
    controls::Menu mnuSearchTitle{"mnuSearchTitle"};
    controls::Menu mnuSep12{"mnuSep12"};
    controls::Menu mnuSearchFilename{"mnuSearchFilename"};
    controls::Menu mnuSep17{"mnuSep17"};
    controls::Menu mnuSearchBroad{"mnuSearchBroad"};
    controls::Menu mnuSep9{"mnuSep9"};
    controls::Menu mnuLyricSearch{"mnuLyricSearch"};
    controls::Menu mnuMusicPlayer{"mnuMusicPlayer"};
    controls::Menu mnuCueSong{"mnuCueSong"};
    controls::Menu mnuMusicPlayerControls{"mnuMusicPlayerControls"};
    controls::Menu mnuPlay{"mnuPlay"};
    controls::Menu mnuPause{"mnuPause"};
    controls::Menu mnuStop{"mnuStop"};
    controls::Menu mnuMusicPlayMode{"mnuMusicPlayMode"};
    controls::Menu mnuRepeat{"mnuRepeat"};
    controls::Menu mnuShuffle{"mnuShuffle"};
    controls::Menu mnuSep5{"mnuSep5"};
    controls::Menu mnuVolume{"mnuVolume"};
    controls::Menu mnuIncreaseVolume{"mnuIncreaseVolume"};
    controls::Menu mnuDecreaseVolume{"mnuDecreaseVolume"};
    controls::Menu mnuMusicMute{"mnuMusicMute"};
    controls::Menu mnuSongSpeed{"mnuSongSpeed"};
    controls::Menu mnuIncreaseSpeed{"mnuIncreaseSpeed"};
    controls::Menu mnuDecreaseSpeed{"mnuDecreaseSpeed"};
    controls::Menu mnuNormalSpeed{"mnuNormalSpeed"};
    controls::Menu mnuSep6{"mnuSep6"};
    controls::Menu mnuSpecial{"mnuSpecial"};
    controls::Menu mnuVolumePanning{"mnuVolumePanning"};
    controls::Menu mnuPanInstant{"mnuPanInstant"};
    controls::Menu mnuPanQuick{"mnuPanQuick"};
    controls::Menu mnuPanMedium{"mnuPanMedium"};
    controls::Menu mnuPanLong{"mnuPanLong"};
    controls::Menu mnuSep16{"mnuSep16"};
    controls::Menu mnuPanOff{"mnuPanOff"};
    controls::Menu mnuCrossfade{"mnuCrossfade"};
    controls::Menu mnuQuickFade{"mnuQuickFade"};
    controls::Menu mnuMediumFade{"mnuMediumFade"};
    controls::Menu mnuLongFade{"mnuLongFade"};
    controls::Menu mnuSep15{"mnuSep15"};
    controls::Menu mnuFadeOff{"mnuFadeOff"};
    controls::Menu mnuVisualisations{"mnuVisualisations"};
    controls::Menu mnuStrobe{"mnuStrobe"};
    controls::Menu mnuParty{"mnuParty"};
    controls::Menu mnuMood{"mnuMood"};
    controls::Menu mnuSep13{"mnuSep13"};
    controls::Menu mnuAnim{"mnuAnim"};
    controls::Menu mnuSep14{"mnuSep14"};
    controls::Menu mnuNone{"mnuNone"};
    controls::Menu mnuMusicJustTracks{"mnuMusicJustTracks"};
    controls::Menu mnuCleanUp{"mnuCleanUp"};
    controls::Menu mnuSep7{"mnuSep7"};
    controls::Menu mnuSoundTest{"mnuSoundTest"};
    controls::Menu mnuTab{"mnuTab"};
    controls::Menu mnuNewTabTab{"mnuNewTabTab"};
    controls::Menu mnuSep10{"mnuSep10"};
    controls::Menu mnuSep11{"mnuSep11"};
    controls::Menu mnuMusicTabTab{"mnuMusicTabTab"};
    controls::Menu mnuHelp{"mnuHelp"};
    controls::Menu mnuOnlineHelp{"mnuOnlineHelp"};
    controls::Menu mnuCheckUpdates{"mnuCheckUpdates"};
    controls::Menu mnuSep8{"mnuSep8"};
    controls::Menu mnuAbout{"mnuAbout"};
};

/// One entry: how deep it stands (0 is the menu bar), which it is, and its caption ("-" is a separator).
struct MenuRow {
    int depth;
    controls::Menu MenuControls::*entry;
    std::string_view caption;
};

/// The menu tree, top to bottom. Misspelt captions are the program's own and stay.
inline constexpr std::array kMenuTree = {
    MenuRow{0, &MenuControls::mnuFile, "File"},
    MenuRow{1, &MenuControls::mnuNew, "New"},
    MenuRow{2, &MenuControls::mnuWebTab, "Web Tab"},
    MenuRow{2, &MenuControls::mnuFav, "Favourite"},
    MenuRow{2, &MenuControls::mnuNewPlayList, "Play list"},
    MenuRow{1, &MenuControls::mnuSep1, "-"},
    MenuRow{1, &MenuControls::mnuOpen, "Open"},
    MenuRow{2, &MenuControls::mnuOpenMediaFile, "Media File"},
    MenuRow{2, &MenuControls::mnuWebsite, "Website"},
    MenuRow{1, &MenuControls::mnuClose, "Close"},
    MenuRow{2, &MenuControls::mnuCloseCurrentTab, "Current Tab"},
    MenuRow{2, &MenuControls::mnuCloseAllTabs, "All Tabs"},
    MenuRow{1, &MenuControls::mnuSep2, "-"},
    MenuRow{1, &MenuControls::mnuAdd, "Add"},
    MenuRow{2, &MenuControls::mnuAddToLibrary, "Media to Library"},
    MenuRow{2, &MenuControls::mnuAddToFavourites, "Site to Favoruite"},
    MenuRow{1, &MenuControls::mnuRemove, "Remove"},
    MenuRow{2, &MenuControls::mnuRemoveSong, "Selected Song From Play List"},
    MenuRow{2, &MenuControls::mnuRemoveCueList, "Song From Cue List"},
    MenuRow{1, &MenuControls::mnuDelete, "Delete"},
    MenuRow{2, &MenuControls::mnuRemoveFav, "Site from Favourites"},
    MenuRow{2, &MenuControls::mnuRemoveFavGroup, "Favourites Group"},
    MenuRow{2, &MenuControls::mnuHistory, "History"},
    MenuRow{1, &MenuControls::mnuSep3, "-"},
    MenuRow{1, &MenuControls::mnuLogout, "Log Out"},
    MenuRow{1, &MenuControls::mnuExit, "Exit"},
    MenuRow{0, &MenuControls::mnuEdit, "Edit"},
    MenuRow{1, &MenuControls::mnuEditFavs, "Favourites"},
    MenuRow{1, &MenuControls::mnuEditPlaylists, "Playlists"},
    MenuRow{0, &MenuControls::mnuView, "View"},
    MenuRow{1, &MenuControls::mnuFullScreen, "Full Screen"},
    MenuRow{1, &MenuControls::mnuViewMusicTab, "Music Tab"},
    MenuRow{1, &MenuControls::mnuViewFavs, "Favourites"},
    MenuRow{0, &MenuControls::mnuOptions, "Options"},
    MenuRow{1, &MenuControls::mnuSetAutoRefresh, "Set Auto Refresh"},
    MenuRow{1, &MenuControls::mnuRefreshAll, "Refresh All"},
    MenuRow{1, &MenuControls::mnuSep4, "-"},
    MenuRow{1, &MenuControls::mnuGoForward, "Go Forward"},
    MenuRow{1, &MenuControls::mnuGoBack, "Go Back"},
    MenuRow{1, &MenuControls::mnuSeperator9, "-"},
    MenuRow{1, &MenuControls::mnuPreferences, "Preferences"},
    MenuRow{0, &MenuControls::mnuSearch, "Search"},
    MenuRow{1, &MenuControls::mnuWebSearch, "Web Search"},
    MenuRow{1, &MenuControls::mnuSongSearch, "Song Search"},
    MenuRow{2, &MenuControls::mnuSearchArtist, "Artist"},
    MenuRow{2, &MenuControls::mnuSearchTitle, "Title"},
    MenuRow{2, &MenuControls::mnuSep12, "-"},
    MenuRow{2, &MenuControls::mnuSearchFilename, "Filename"},
    MenuRow{2, &MenuControls::mnuSep17, "-"},
    MenuRow{2, &MenuControls::mnuSearchBroad, "Broad Search"},
    MenuRow{1, &MenuControls::mnuSep9, "-"},
    MenuRow{1, &MenuControls::mnuLyricSearch, "Current Song Lyrics"},
    MenuRow{0, &MenuControls::mnuMusicPlayer, "Music Player"},
    MenuRow{1, &MenuControls::mnuCueSong, "Cue Song"},
    MenuRow{1, &MenuControls::mnuMusicPlayerControls, "Controls"},
    MenuRow{2, &MenuControls::mnuPlay, "Play"},
    MenuRow{2, &MenuControls::mnuPause, "Pause"},
    MenuRow{2, &MenuControls::mnuStop, "Stop"},
    MenuRow{1, &MenuControls::mnuMusicPlayMode, "Play Mode"},
    MenuRow{2, &MenuControls::mnuRepeat, "Repeat 1"},
    MenuRow{2, &MenuControls::mnuShuffle, "Shuffle"},
    MenuRow{1, &MenuControls::mnuSep5, "-"},
    MenuRow{1, &MenuControls::mnuVolume, "Volume"},
    MenuRow{2, &MenuControls::mnuIncreaseVolume, "Increase"},
    MenuRow{2, &MenuControls::mnuDecreaseVolume, "Decrease"},
    MenuRow{2, &MenuControls::mnuMusicMute, "Mute"},
    MenuRow{1, &MenuControls::mnuSongSpeed, "Song Speed"},
    MenuRow{2, &MenuControls::mnuIncreaseSpeed, "Increase"},
    MenuRow{2, &MenuControls::mnuDecreaseSpeed, "Decrease"},
    MenuRow{2, &MenuControls::mnuNormalSpeed, "Normal"},
    MenuRow{1, &MenuControls::mnuSep6, "-"},
    MenuRow{1, &MenuControls::mnuSpecial, "Special"},
    MenuRow{2, &MenuControls::mnuVolumePanning, "Volume Panning"},
    MenuRow{3, &MenuControls::mnuPanInstant, "Instant"},
    MenuRow{3, &MenuControls::mnuPanQuick, "Quick"},
    MenuRow{3, &MenuControls::mnuPanMedium, "Medium"},
    MenuRow{3, &MenuControls::mnuPanLong, "Long"},
    MenuRow{3, &MenuControls::mnuSep16, "-"},
    MenuRow{3, &MenuControls::mnuPanOff, "Off"},
    MenuRow{2, &MenuControls::mnuCrossfade, "Crossfade Songs"},
    MenuRow{3, &MenuControls::mnuQuickFade, "Quick"},
    MenuRow{3, &MenuControls::mnuMediumFade, "Medium"},
    MenuRow{3, &MenuControls::mnuLongFade, "Long"},
    MenuRow{3, &MenuControls::mnuSep15, "-"},
    MenuRow{3, &MenuControls::mnuFadeOff, "Off"},
    MenuRow{2, &MenuControls::mnuVisualisations, "Visualisations"},
    MenuRow{3, &MenuControls::mnuStrobe, "Strobe Light"},
    MenuRow{3, &MenuControls::mnuParty, "Party Light"},
    MenuRow{3, &MenuControls::mnuMood, "Mood Light"},
    MenuRow{3, &MenuControls::mnuSep13, "-"},
    MenuRow{3, &MenuControls::mnuAnim, "Animation"},
    MenuRow{3, &MenuControls::mnuSep14, "-"},
    MenuRow{3, &MenuControls::mnuNone, "None"},
    MenuRow{1, &MenuControls::mnuMusicJustTracks, "Just Show Tracks"},
    MenuRow{1, &MenuControls::mnuCleanUp, "Clean-up Duplicates"},
    MenuRow{1, &MenuControls::mnuSep7, "-"},
    MenuRow{1, &MenuControls::mnuSoundTest, "Sound Test"},
    MenuRow{0, &MenuControls::mnuTab, "Tab"},
    MenuRow{1, &MenuControls::mnuNewTabTab, "New Tab"},
    MenuRow{1, &MenuControls::mnuSep10, "-"},
    MenuRow{1, &MenuControls::mnuSep11, "-"},
    MenuRow{1, &MenuControls::mnuMusicTabTab, "Music Tab"},
    MenuRow{0, &MenuControls::mnuHelp, "Help"},
    MenuRow{1, &MenuControls::mnuOnlineHelp, "Online Help"},
    MenuRow{1, &MenuControls::mnuCheckUpdates, "Check for Updates"},
    MenuRow{1, &MenuControls::mnuSep8, "-"},
    MenuRow{1, &MenuControls::mnuAbout, "About"},
};

/// Gives the entries their captions, hangs each under its parent and puts the menus into the window's menu
/// bar. "Log Out" and "Exit" start disabled; panning is off and the quick fade on.
void BuildMenuTree(MenuControls& menus, controls::Form& window);

}  // namespace window
