// What the library's rooms ask of each other and of the rest of the program.
#pragma once

#include <string>
#include <string_view>

namespace library {

/// The special rows; in the lists they carry two leading blanks, comparisons trim them.
inline constexpr std::string_view kAllMedia = "[All Media]";
inline constexpr std::string_view kLast20 = "[Last 20]";
inline constexpr std::string_view kTop20 = "[Top 20]";
inline constexpr std::string_view kAllArtists = "[All Artists]";

/// An entry of lstMaybe with fewer characters is a SongID; any other is a file path.
inline constexpr std::size_t kShortestPath = 8;

/// A view of tracks being filled: tracks, their ids and their artists in step.
class TrackView {
public:
    virtual ~TrackView() = default;
    /// Empties the tracks and the artists, down to the row that stands for all artists.
    virtual void BeginView() = 0;
    /// A track behind the last one.
    virtual void AddSong(std::string_view song_id, std::string_view artist, std::string_view title) = 0;
    /// Lists the artists of the tracks, sorted, each once.
    virtual void EndView() = 0;
};

/// The lists as the rooms beside them use them.
class LibraryDesk {
public:
    virtual ~LibraryDesk() = default;
    /// Rebuilds every list from the tables.
    virtual void Command1() = 0;
    virtual void DisplayPlayLists() = 0;
    /// The selected track's row, or empty.
    virtual std::string SelectedTrack() const = 0;
    /// Moves lstMaybe to the selected track and gives its entry, a SongID or a path; empty without a
    /// selection.
    virtual std::string SelectedEntry() = 0;
    /// The selected playlist row, trimmed; empty when none is selected.
    virtual std::string SelectedPlayList() const = 0;
    /// The keyboard goes to the tracks.
    virtual void FocusTracks() = 0;
};

/// The steps of the reload that lie outside the lists.
class ReloadSteps {
public:
    virtual ~ReloadSteps() = default;
    /// The caption of the splash.
    virtual void ShowLoadingStage(std::string_view caption) = 0;
    virtual void LoadFavs() = 0;
    virtual void AddMediaFromCommand(std::string_view path) = 0;
};

/// Fills the track view with the songs last played.
class MusicHistory {
public:
    virtual ~MusicHistory() = default;
    virtual void PopulateHistory(std::string_view hist_type) = 0;
};

/// Hears what happens in the lists.
class LibraryListener {
public:
    virtual ~LibraryListener() = default;
    /// The track list was refilled: what the player copied of it is out of date.
    virtual void OnTracksRefilled() = 0;
    /// The playlist names were listed anew.
    virtual void OnPlayListsListed() = 0;
    /// The Delete key was pressed on the artists or the tracks.
    virtual void OnRemoveKey() = 0;
};

/// Hides the bright twins of the window's pictures.
class MouseOvers {
public:
    virtual ~MouseOvers() = default;
    virtual void NoMouseOvers() = 0;
};

/// The playlist that is being built from a file.
class PlayListBeingBuilt {
public:
    virtual ~PlayListBeingBuilt() = default;
    /// A song of the library behind its last one.
    virtual void AddMatchedSong(std::string_view song_id, std::string_view artist,
                                std::string_view title) = 0;
};

/// Stores one file as a song.
class SongStore {
public:
    virtual ~SongStore() = default;
    /// Adds a row to the library. A path without a scan extension is left out; one whose texts are too long
    /// is added to `rejected`, with a line break behind it.
    virtual void addfile(std::string_view path, std::string_view artist, std::string_view title,
                         std::string& rejected) = 0;
};

/// The main window, as the add dialog uses it.
class MainWindow {
public:
    virtual ~MainWindow() = default;
    virtual void ShowMainWindow() = 0;
    /// Rebuilds the library's lists.
    virtual void Command1() = 0;
    /// The preference to search sub folders without asking.
    virtual bool Include_Sub_Folders() const = 0;
};

}  // namespace library
