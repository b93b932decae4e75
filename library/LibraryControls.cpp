#include "library/LibraryControls.h"

namespace library {
namespace {

constexpr double kPixel = controls::kTwipsPerPixel;

void PlacePixels(controls::Control& control, int left, int top, int width, int height) {
    control.Move(left * kPixel, top * kPixel, width * kPixel, height * kPixel);
}

template <class... Hidden>
void Hide(Hidden&... controls) {
    (controls.SetVisible(false), ...);
}

void PlaceTwin(controls::Image& plain, controls::Image& over, int left, int top, int width, int height) {
    PlacePixels(plain, left, top, width, height);
    PlacePixels(over, left, top, width, height);
    over.SetVisible(false);
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

    PlacePixels(fraPlayListCenter, 0, 0, 448, 400);
    PlacePixels(lblAddToPlaylist, 16, 16, 416, 16);
    PlacePixels(lblSongToAdd, 16, 48, 416, 16);
    PlacePixels(txtSongToAdd, 16, 68, 288, 28);
    PlacePixels(imgAddToPlaylist, 312, 68, 120, 28);
    PlacePixels(lblChoosePlaylist, 16, 112, 416, 16);
    PlacePixels(lstAddToPlaylist, 16, 132, 416, 208);
    PlaceTwin(imgDeletePlayList, imgDeletePlayListOver, 16, 356, 120, 28);
    PlaceTwin(imgOk, imgOkOver, 242, 356, 86, 28);
    PlaceTwin(imgCancel, imgCancelOver, 336, 356, 96, 28);

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

SearchControls::SearchControls() {
    fraSearch.Add(txtSearch, cmdAddToLibrary, tmrSearch);
    txtSearch.SetAccessibleName("Search tracks");
    cmdAddToLibrary.SetAccessibleName("Add media to the library");
}

OpenedMediaControls::OpenedMediaControls() {
    Hide(Label5, Label6);
}

TaskControls::TaskControls() {
    fraTask.Add(imgTaskBG, fraTaskCenter);
    fraTaskCenter.Add(lblTask, lblFound, lblFoundNo, lblDuplicatesRemoved, lblDuplicatesNoRemoved, pbTask,
                      lblStatus);
    Hide(fraTask, lstTracksToAdd, lstartist, lsttitle, lstCleanup, lstcleanupremove);

    PlacePixels(fraTaskCenter, 0, 0, 448, 192);
    PlacePixels(lblTask, 24, 20, 400, 20);
    PlacePixels(lblFound, 24, 56, 200, 20);
    PlacePixels(lblFoundNo, 304, 56, 120, 20);
    PlacePixels(lblDuplicatesRemoved, 24, 80, 200, 20);
    PlacePixels(lblDuplicatesNoRemoved, 304, 80, 120, 20);
    PlacePixels(pbTask, 24, 120, 400, 12);
    PlacePixels(lblStatus, 24, 148, 400, 20);

    imgTaskBG.SetLook("ground");
    fraTaskCenter.SetLook("panel");
    lblTask.SetLook("heading");
    for (controls::Label* counter : {&lblFoundNo, &lblDuplicatesNoRemoved}) {
        counter->SetLook("accent");
        counter->SetAlign(controls::Alignment::Right);
    }
    lblStatus.SetLook("muted");
    pbTask.SetAccessibleName("Progress of the task");
}

}  // namespace library
