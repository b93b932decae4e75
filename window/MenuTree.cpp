#include "window/MenuTree.h"

#include <array>
#include <cassert>
#include <vector>

namespace window {
namespace {

using Menu = WindowMenu;

// Misspelt captions are the program's own and stay.
constexpr auto kMenuTree = std::to_array<MenuRow>({
    {0, &Menu::mnuFile, "File"},
    {1, &Menu::mnuNew, "New"},
    {2, &Menu::mnuWebTab, "Web Tab"},
    {2, &Menu::mnuFav, "Favourite"},
    {2, &Menu::mnuNewPlayList, "Play list"},
    {1, &Menu::mnuSep1, "-"},
    {1, &Menu::mnuOpen, "Open"},
    {2, &Menu::mnuOpenMediaFile, "Media File"},
    {2, &Menu::mnuWebsite, "Website"},
    {1, &Menu::mnuClose, "Close"},
    {2, &Menu::mnuCloseCurrentTab, "Current Tab"},
    {2, &Menu::mnuCloseAllTabs, "All Tabs"},
    {1, &Menu::mnuSep2, "-"},
    {1, &Menu::mnuAdd, "Add"},
    {2, &Menu::mnuAddToLibrary, "Media to Library"},
    {2, &Menu::mnuAddToFavourites, "Site to Favoruite"},
    {1, &Menu::mnuRemove, "Remove"},
    {2, &Menu::mnuRemoveSong, "Selected Song From Play List"},
    {2, &Menu::mnuRemoveCueList, "Song From Cue List"},
    {1, &Menu::mnuDelete, "Delete"},
    {2, &Menu::mnuRemoveFav, "Site from Favourites"},
    {2, &Menu::mnuRemoveFavGroup, "Favourites Group"},
    {2, &Menu::mnuHistory, "History"},
    {1, &Menu::mnuSep3, "-"},
    {1, &Menu::mnuLogout, "Log Out"},
    {1, &Menu::mnuExit, "Exit"},
    {0, &Menu::mnuEdit, "Edit"},
    {1, &Menu::mnuEditFavs, "Favourites"},
    {1, &Menu::mnuEditPlaylists, "Playlists"},
    {0, &Menu::mnuView, "View"},
    {1, &Menu::mnuFullScreen, "Full Screen"},
    {1, &Menu::mnuViewMusicTab, "Music Tab"},
    {1, &Menu::mnuViewFavs, "Favourites"},
    {0, &Menu::mnuOptions, "Options"},
    {1, &Menu::mnuSetAutoRefresh, "Set Auto Refresh"},
    {1, &Menu::mnuRefreshAll, "Refresh All"},
    {1, &Menu::mnuSep4, "-"},
    {1, &Menu::mnuGoForward, "Go Forward"},
    {1, &Menu::mnuGoBack, "Go Back"},
    {1, &Menu::mnuSeperator9, "-"},
    {1, &Menu::mnuPreferences, "Preferences"},
    {0, &Menu::mnuSearch, "Search"},
    {1, &Menu::mnuWebSearch, "Web Search"},
    {1, &Menu::mnuSongSearch, "Song Search"},
    {2, &Menu::mnuSearchArtist, "Artist"},
    {2, &Menu::mnuSearchTitle, "Title"},
    {2, &Menu::mnuSep12, "-"},
    {2, &Menu::mnuSearchFilename, "Filename"},
    {2, &Menu::mnuSep17, "-"},
    {2, &Menu::mnuSearchBroad, "Broad Search"},
    {1, &Menu::mnuSep9, "-"},
    {1, &Menu::mnuLyricSearch, "Current Song Lyrics"},
    {0, &Menu::mnuMusicPlayer, "Music Player"},
    {1, &Menu::mnuCueSong, "Cue Song"},
    {1, &Menu::mnuMusicPlayerControls, "Controls"},
    {2, &Menu::mnuPlay, "Play"},
    {2, &Menu::mnuPause, "Pause"},
    {2, &Menu::mnuStop, "Stop"},
    {1, &Menu::mnuMusicPlayMode, "Play Mode"},
    {2, &Menu::mnuRepeat, "Repeat 1"},
    {2, &Menu::mnuShuffle, "Shuffle"},
    {1, &Menu::mnuSep5, "-"},
    {1, &Menu::mnuVolume, "Volume"},
    {2, &Menu::mnuIncreaseVolume, "Increase"},
    {2, &Menu::mnuDecreaseVolume, "Decrease"},
    {2, &Menu::mnuMusicMute, "Mute"},
    {1, &Menu::mnuSongSpeed, "Song Speed"},
    {2, &Menu::mnuIncreaseSpeed, "Increase"},
    {2, &Menu::mnuDecreaseSpeed, "Decrease"},
    {2, &Menu::mnuNormalSpeed, "Normal"},
    {1, &Menu::mnuSep6, "-"},
    {1, &Menu::mnuSpecial, "Special"},
    {2, &Menu::mnuVolumePanning, "Volume Panning"},
    {3, &Menu::mnuPanInstant, "Instant"},
    {3, &Menu::mnuPanQuick, "Quick"},
    {3, &Menu::mnuPanMedium, "Medium"},
    {3, &Menu::mnuPanLong, "Long"},
    {3, &Menu::mnuSep16, "-"},
    {3, &Menu::mnuPanOff, "Off"},
    {2, &Menu::mnuCrossfade, "Crossfade Songs"},
    {3, &Menu::mnuQuickFade, "Quick"},
    {3, &Menu::mnuMediumFade, "Medium"},
    {3, &Menu::mnuLongFade, "Long"},
    {3, &Menu::mnuSep15, "-"},
    {3, &Menu::mnuFadeOff, "Off"},
    {2, &Menu::mnuVisualisations, "Visualisations"},
    {3, &Menu::mnuStrobe, "Strobe Light"},
    {3, &Menu::mnuParty, "Party Light"},
    {3, &Menu::mnuMood, "Mood Light"},
    {3, &Menu::mnuSep13, "-"},
    {3, &Menu::mnuAnim, "Animation"},
    {3, &Menu::mnuSep14, "-"},
    {3, &Menu::mnuNone, "None"},
    {1, &Menu::mnuMusicJustTracks, "Just Show Tracks"},
    {1, &Menu::mnuCleanUp, "Clean-up Duplicates"},
    {1, &Menu::mnuSep7, "-"},
    {1, &Menu::mnuSoundTest, "Sound Test"},
    {0, &Menu::mnuTab, "Tab"},
    {1, &Menu::mnuNewTabTab, "New Tab"},
    {1, &Menu::mnuSep10, "-"},
    {1, &Menu::mnuSep11, "-"},
    {1, &Menu::mnuMusicTabTab, "Music Tab"},
    {0, &Menu::mnuHelp, "Help"},
    {1, &Menu::mnuOnlineHelp, "Online Help"},
    {1, &Menu::mnuCheckUpdates, "Check for Updates"},
    {1, &Menu::mnuSep8, "-"},
    {1, &Menu::mnuAbout, "About"},
});

}  // namespace

std::span<const MenuRow> MenuTree() {
    return kMenuTree;
}

void BuildMenuTree(WindowMenu& menus, controls::Form& window) {
    std::vector<controls::Menu*> bar;
    std::vector<controls::Menu*> path;
    for (const MenuRow& row : MenuTree()) {
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
