#include "library/LibraryControls.h"

#include <algorithm>

#include "controls/Arrange.h"

namespace library {
namespace {

using controls::Px;

/// Whole pixels of a panel that its inside may take, at most `wanted`: a panel shows a margin around it.
int Inside(double panel, int wanted) {
    constexpr int kMargin = 8;
    return std::min(wanted, static_cast<int>(panel / controls::kTwipsPerPixel) - 2 * kMargin);
}

}  // namespace

LibraryListControls::LibraryListControls() {
    lblPlayLists.SetLook("heading");
    lblArtists.SetLook("heading");
    lstPlayLists.SetAccessibleName("Playlists");
    lstArtists.SetAccessibleName("Artists");
    lstTracks.SetAccessibleName("Tracks");
    lblTrackCount.SetLook("muted");
    lblTrackCount.SetAlign(controls::Alignment::Right);
    lblTrackCount.SetAccessibleName("Tracks shown");
    Hide(lstMaybe, lstMusicTest, lstTop20);
}

PlayListControls::PlayListControls() {
    fraAddToPlaylist.Add(imgBG2, fraPlayListCenter);
    fraPlayListCenter.Add(lblAddToPlaylist, lblSongToAdd, txtSongToAdd, lblAddPlayListSongID,
                          lblChoosePlaylist, lstAddToPlaylist, imgAddToPlaylist);
    fraPlayListCenter.Add(imgOk, imgOkOver, imgCancel, imgCancelOver, imgDeletePlayList,
                          imgDeletePlayListOver);
    Hide(fraAddToPlaylist, lblAddPlayListSongID, lblEntryCount2);
    Hide(imgOkOver, imgCancelOver, imgDeletePlayListOver);

    imgBG2.SetLook("ground");
    fraPlayListCenter.SetLook("panel");
    lblAddToPlaylist.SetLook("heading");
    lblSongToAdd.SetLook("muted");
    lblChoosePlaylist.SetLook("muted");
    txtSongToAdd.SetAccessibleName("Song to add");
    lstAddToPlaylist.SetAccessibleName("Playlist to add the song to");
    lstAddToPlaylist.SetHint("No playlists yet");
    NameTwins(imgAddSong, imgAddSongOver, "Add song to a playlist");
    NameTwins(imgRemoveSong, imgRemoveSongOver, "Remove song");
    for (controls::Image* image : {&imgOk, &imgOkOver, &imgAddToPlaylist})
        image->SetAccessibleName("Add to playlist");
    for (controls::Image* image : {&imgCancel, &imgCancelOver})
        image->SetAccessibleName("Cancel");
    for (controls::Image* image : {&imgDeletePlayList, &imgDeletePlayListOver}) {
        image->SetAccessibleName("Delete playlist");
    }
}

void PlayListControls::SizeCenter(double panel_width, double panel_height) {
    const int width = Inside(panel_width, 448);
    const int height = Inside(panel_height, 400);
    const int inner = width - 32;
    const int buttons = height - 44;
    fraPlayListCenter.SetWidth(Px(width));
    fraPlayListCenter.SetHeight(Px(height));
    Place(lblAddToPlaylist, 16, 16, inner, 16);
    Place(lblSongToAdd, 16, 48, inner, 16);
    Place(txtSongToAdd, 16, 68, inner - 128, 28);
    Place(imgAddToPlaylist, 16 + inner - 120, 68, 120, 28);
    Place(lblChoosePlaylist, 16, 112, inner, 16);
    Place(lstAddToPlaylist, 16, 132, inner, buttons - 148);
    PlaceTwins(16, buttons, 120, 28, imgDeletePlayList, imgDeletePlayListOver);
    PlaceTwins(width - 206, buttons, 86, 28, imgOk, imgOkOver);
    PlaceTwins(width - 112, buttons, 96, 28, imgCancel, imgCancelOver);
}

SearchControls::SearchControls() {
    fraSearch.Add(txtSearch, cmdAddToLibrary, tmrSearch);
    // Each of the two has its own ground and edge.
    fraSearch.SetLook("bare");
    txtSearch.SetAccessibleName("Search tracks");
    cmdAddToLibrary.SetAccessibleName("Add media to the library");
}

OpenedMediaControls::OpenedMediaControls() {
    Hide(Label5, Label6);
}

TrackImportControls::TrackImportControls() {
    Hide(lstTracksToAdd, lstartist, lsttitle);
}

CleanUpControls::CleanUpControls() {
    Hide(lstCleanup, lstcleanupremove);
}

TaskPanelControls::TaskPanelControls() {
    fraTask.Add(imgTaskBG, fraTaskCenter);
    fraTaskCenter.Add(lblTask, lblFound, lblFoundNo, lblDuplicatesRemoved, lblDuplicatesNoRemoved, pbTask,
                      lblStatus);
    Hide(fraTask);

    imgTaskBG.SetLook("ground");
    fraTaskCenter.SetLook("panel");
    lblFound.SetLook("muted");
    lblDuplicatesRemoved.SetLook("muted");
    for (controls::Label* counter : {&lblFoundNo, &lblDuplicatesNoRemoved}) {
        counter->SetLook("accent");
        counter->SetAlign(controls::Alignment::Right);
    }
    lblStatus.SetLook("muted");
    pbTask.SetAccessibleName("Progress of the task");
}

void TaskPanelControls::SizeCenter(double panel_width) {
    const int width = Inside(panel_width, 448);
    const int inner = width - 48;
    fraTaskCenter.SetWidth(Px(width));
    fraTaskCenter.SetHeight(Px(192));
    Place(lblTask, 24, 20, inner, 20);
    Place(lblFound, 24, 56, inner - 120, 20);
    Place(lblFoundNo, 24 + inner - 120, 56, 120, 20);
    Place(lblDuplicatesRemoved, 24, 80, inner - 120, 20);
    Place(lblDuplicatesNoRemoved, 24 + inner - 120, 80, 120, 20);
    Place(pbTask, 24, 120, inner, 12);
    Place(lblStatus, 24, 148, inner, 20);
}

}  // namespace library
