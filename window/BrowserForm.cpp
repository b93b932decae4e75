#include "window/BrowserForm.h"

#include "controls/Arrange.h"
#include "window/MenuTree.h"

namespace window {
namespace {

// As large as the window starts: 1180 by 780 pixels with its menu.
constexpr double kStartWidth = controls::Px(1180);
constexpr double kStartHeight = controls::Px(754);

}  // namespace

BrowserForm::BrowserForm() : Form("frmBrowser", "Brindlepost") {
    BuildMenuTree(menus, *this);
    SetContentSize(kStartWidth, kStartHeight);
    Add(chrome.imgFormBG, chrome.imgBG, chrome.imgRowBG);
    web.PutInto(*this);
    hand_off.PutInto(*this);
    Add(chrome.fraMusicTab);
    FillMusicPane();
    FillPanels();
    AddHidden();
}

void BrowserForm::FillMusicPane() {
    controls::Frame& pane = chrome.fraMusicTab;
    pane.Add(chrome.imgMusicTabBG, chrome.lblMusicBG);
    pane.Add(library.lists.lblPlayLists, library.lists.lstPlayLists, library.lists.lblArtists,
             library.lists.lstArtists, library.search.fraSearch, library.lists.lstTracks,
             library.lists.lblTrackCount);
    pane.Add(library.playlists.imgAddSong, library.playlists.imgAddSongOver, library.playlists.imgRemoveSong,
             library.playlists.imgRemoveSongOver);
    player.PutInto(pane, *this);
    player.transport.fraControls.Add(chrome.lblVolumeLabel);
}

void BrowserForm::FillPanels() {
    favourites.PutInto(*this);
    Add(player.video.picVideo, chrome.lblCopyright, library.playlists.fraAddToPlaylist, library.task.fraTask);
}

void BrowserForm::AddHidden() {
    Add(library.lists.lstMaybe, library.lists.lstMusicTest, library.lists.lstTop20,
        library.playlists.lblEntryCount2, library.opened.Label5, library.opened.Label6,
        library.track_import.lstTracksToAdd, library.track_import.lstartist, library.track_import.lsttitle,
        library.task.lstCleanup, library.task.lstcleanupremove);
}

}  // namespace window
