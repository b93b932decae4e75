// The controls of the music pane that show and change the library, and the data sources they read.
#pragma once

#include "controls/CommandButton.h"
#include "controls/Frame.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/ProgressBar.h"
#include "controls/TextBox.h"
#include "controls/Timer.h"
#include "store/DataSource.h"

namespace library {

/// The main window's two data sources of the media store. A walk sets the record source anew each time and
/// relies on no position that another walk left.
struct MediaSources {
    store::DataSource datSong{"datSong"};
    store::DataSource datPlayList{"datPlayList"};
};

/// The three linked lists and their hidden lists. lstMaybe runs row for row beside lstTracks: a SongID, or
/// the path of a track that came from outside the library.
struct LibraryListControls {
    LibraryListControls();

    controls::Label lblPlayLists{"lblPlayLists", "PLAYLISTS"};
    controls::ListBox lstPlayLists{"lstPlayLists"};
    controls::Label lblArtists{"lblArtists", "ARTISTS"};
    controls::ListBox lstArtists{"lstArtists"};
    controls::ListBox lstTracks{"lstTracks"};
    controls::Label lblTrackCount{"lblTrackCount"};
    controls::ListBox lstMaybe{"lstMaybe"};
    controls::ListBox lstMusicTest{"lstMusicTest", controls::Sorted::Yes};
    controls::ListBox lstTop20{"lstTop20", controls::Sorted::Yes};
};

/// What adds songs to playlists and takes them out: the buttons of the pane, and the panel that asks for the
/// playlist.
struct PlayListControls {
    PlayListControls();
    /// Sizes the panel's inside for a panel of that size, in twips, and places what is in it; the window
    /// centres it.
    void SizeCenter(double panel_width, double panel_height);

    controls::Image imgAddSong{"imgAddSong", "addsong"};
    controls::Image imgAddSongOver{"imgAddSongOver", "addsongover"};
    controls::Image imgRemoveSong{"imgRemoveSong", "removesong"};
    controls::Image imgRemoveSongOver{"imgRemoveSongOver", "removesongover"};

    controls::Frame fraAddToPlaylist{"fraAddToPlaylist"};
    controls::Image imgBG2{"imgBG2"};
    controls::Frame fraPlayListCenter{"fraPlayListCenter"};
    controls::Label lblAddToPlaylist{"lblAddToPlaylist", "ADD TO PLAYLIST"};
    controls::Label lblSongToAdd{"lblSongToAdd", "Song"};
    controls::TextBox txtSongToAdd{"txtSongToAdd"};
    controls::Label lblAddPlayListSongID{"lblAddPlayListSongID"};
    controls::Label lblChoosePlaylist{"lblChoosePlaylist", "Playlist"};
    controls::ListBox lstAddToPlaylist{"lstAddToPlaylist"};
    controls::Image imgAddToPlaylist{"imgAddToPlaylist", "addtoplaylist"};
    controls::Image imgOk{"imgOk", "ok"};
    controls::Image imgOkOver{"imgOkOver", "okover"};
    controls::Image imgCancel{"imgCancel", "cancel"};
    controls::Image imgCancelOver{"imgCancelOver", "cancelover"};
    controls::Image imgDeletePlayList{"imgDeletePlayList", "deleteplaylist"};
    controls::Image imgDeletePlayListOver{"imgDeletePlayListOver", "deleteplaylistover"};

    controls::Label lblEntryCount2{"lblEntryCount2"};
};

/// The incremental search of the library.
struct SearchControls {
    SearchControls();

    controls::Frame fraSearch{"fraSearch"};
    controls::TextBox txtSearch{"txtSearch"};
    controls::CommandButton cmdAddToLibrary{"cmdAddToLibrary", "Add media"};
    controls::Timer tmrSearch{"tmrSearch", 10};
};

/// The hidden labels that hold the artist and title of media opened from outside.
struct OpenedMediaControls {
    OpenedMediaControls();

    controls::Label Label5{"Label5"};
    controls::Label Label6{"Label6"};
};

/// The progress panel of the long library tasks.
struct TaskPanelControls {
    TaskPanelControls();
    /// Sizes the panel's inside for a panel of that width, in twips, and places what is in it; the window
    /// centres it.
    void SizeCenter(double panel_width);

    controls::Frame fraTask{"fraTask"};
    controls::Image imgTaskBG{"imgTaskBG"};
    controls::Frame fraTaskCenter{"fraTaskCenter"};
    controls::Label lblTask{"lblTask"};
    controls::Label lblFound{"lblFound"};
    controls::Label lblFoundNo{"lblFoundNo"};
    controls::Label lblDuplicatesRemoved{"lblDuplicatesRemoved"};
    controls::Label lblDuplicatesNoRemoved{"lblDuplicatesNoRemoved"};
    controls::ProgressBar pbTask{"pbTask"};
    controls::Label lblStatus{"lblStatus"};
};

/// The hidden lists of the clean-up: the paths that exist, and those that are there twice.
struct CleanUpControls {
    CleanUpControls();

    controls::ListBox lstCleanup{"lstCleanup", controls::Sorted::Yes};
    controls::ListBox lstcleanupremove{"lstcleanupremove"};
};

/// The panel and the clean-up's lists; each is the group of one room.
struct TaskControls : TaskPanelControls, CleanUpControls {};

/// The lines of a playlist file, with the artist and the title of each; hidden lists that run in step.
struct TrackImportControls {
    TrackImportControls();

    controls::ListBox lstTracksToAdd{"lstTracksToAdd"};
    controls::ListBox lstartist{"lstartist"};
    controls::ListBox lsttitle{"lsttitle"};
};

/// What the library shows in the music pane, and its hidden lists.
struct LibraryControls {
    MediaSources sources;
    LibraryListControls lists;
    PlayListControls playlists;
    SearchControls search;
    OpenedMediaControls opened;
    TaskControls task;
    TrackImportControls track_import;
};

}  // namespace library
