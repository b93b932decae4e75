#include "library/LibraryControls.h"

#include <algorithm>

namespace library {
namespace {

constexpr double kPixel = controls::kTwipsPerPixel;

void PlacePixels(controls::Control& control, int left, int top, int width, int height) {
    control.Move(left * kPixel, top * kPixel, width * kPixel, height * kPixel);
}

/// Whole pixels of a panel that its inside may take, at most `wanted`: a panel shows a margin around it.
int Inside(double panel, int wanted) {
    constexpr int kMargin = 8;
    return std::min(wanted, static_cast<int>(panel / kPixel) - 2 * kMargin);
}

template <class... Hidden>
void Hide(Hidden&... controls) {
    (controls.SetVisible(false), ...);
}

void PlaceTwin(controls::Image& plain, controls::Image& over, int left, int top, int width, int height) {
    PlacePixels(plain, left, top, width, height);
    PlacePixels(over, left, top, width, height);
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
    Hide(fraAddToPlaylist, lblAddPlayListSongID, lblEntryCount2, imgAddSongOver, imgRemoveSongOver);
    Hide(imgOkOver, imgCancelOver, imgDeletePlayListOver);

    imgBG2.SetLook("ground");
    fraPlayListCenter.SetLook("panel");
    lblAddToPlaylist.SetLook("heading");
    lblSongToAdd.SetLook("muted");
    lblChoosePlaylist.SetLook("muted");
    txtSongToAdd.SetAccessibleName("Song to add");
    lstAddToPlaylist.SetAccessibleName("Playlist to add the song to");
    lstAddToPlaylist.SetHint("No playlists yet");
    for (controls::Image* image : {&imgAddSong, &imgAddSongOver}) {
        image->SetAccessibleName("Add song to a playlist");
        image->SetToolTipText("Add song to a playlist");
    }
    for (controls::Image* image : {&imgRemoveSong, &imgRemoveSongOver}) {
        image->SetAccessibleName("Remove song");
        image->SetToolTipText("Remove song");
    }
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
    fraPlayListCenter.SetWidth(width * kPixel);
    fraPlayListCenter.SetHeight(height * kPixel);
    PlacePixels(lblAddToPlaylist, 16, 16, inner, 16);
    PlacePixels(lblSongToAdd, 16, 48, inner, 16);
    PlacePixels(txtSongToAdd, 16, 68, inner - 128, 28);
    PlacePixels(imgAddToPlaylist, 16 + inner - 120, 68, 120, 28);
    PlacePixels(lblChoosePlaylist, 16, 112, inner, 16);
    PlacePixels(lstAddToPlaylist, 16, 132, inner, buttons - 148);
    PlaceTwin(imgDeletePlayList, imgDeletePlayListOver, 16, buttons, 120, 28);
    PlaceTwin(imgOk, imgOkOver, width - 206, buttons, 86, 28);
    PlaceTwin(imgCancel, imgCancelOver, width - 112, buttons, 96, 28);
}

SearchControls::SearchControls() {
    fraSearch.Add(txtSearch, cmdAddToLibrary, tmrSearch);
    txtSearch.SetAccessibleName("Search tracks");
    cmdAddToLibrary.SetAccessibleName("Add media to the library");
}

OpenedMediaControls::OpenedMediaControls() {
    Hide(Label5, Label6);
}

TrackImportControls::TrackImportControls() {
    Hide(lstTracksToAdd, lstartist, lsttitle);
}

TaskControls::TaskControls() {
    fraTask.Add(imgTaskBG, fraTaskCenter);
    fraTaskCenter.Add(lblTask, lblFound, lblFoundNo, lblDuplicatesRemoved, lblDuplicatesNoRemoved, pbTask,
                      lblStatus);
    Hide(fraTask, lstCleanup, lstcleanupremove);

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

void TaskControls::SizeCenter(double panel_width) {
    const int width = Inside(panel_width, 448);
    const int inner = width - 48;
    fraTaskCenter.SetWidth(width * kPixel);
    fraTaskCenter.SetHeight(192 * kPixel);
    PlacePixels(lblTask, 24, 20, inner, 20);
    PlacePixels(lblFound, 24, 56, inner - 120, 20);
    PlacePixels(lblFoundNo, 24 + inner - 120, 56, 120, 20);
    PlacePixels(lblDuplicatesRemoved, 24, 80, inner - 120, 20);
    PlacePixels(lblDuplicatesNoRemoved, 24 + inner - 120, 80, 120, 20);
    PlacePixels(pbTask, 24, 120, inner, 12);
    PlacePixels(lblStatus, 24, 148, inner, 20);
}

}  // namespace library
