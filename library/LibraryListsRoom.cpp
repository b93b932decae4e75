#include "library/LibraryListsRoom.h"

#include <set>
#include <vector>

#include "base/Number.h"
#include "base/Text.h"
#include "library/SpecialRows.h"
#include "library/TableRows.h"
#include "library/TopKeys.h"
#include "store/FirstRows.h"
#include "store/Tables.h"

namespace library {
namespace {

constexpr std::string_view kIndent = "  ";
constexpr std::string_view kSeparator = " - ";
constexpr std::size_t kMostPlayLists = 100;
/// A library of more songs takes longer to list than a user waits without a sign.
constexpr std::size_t kLongWalk = 200'000;
constexpr std::size_t kTopRows = 20;
/// Rows that a fill goes on for while the program starts, before others have their turn: a millisecond or
/// less.
constexpr std::size_t kRowsOfTurn = 2048;

// What an empty track list says, by the view that was asked for.
constexpr std::string_view kEmptyLibrary = "Your library is empty";
constexpr std::string_view kNothingHere = "No tracks here yet";
constexpr std::string_view kNothingPlayed = "No played tracks to show";
constexpr std::string_view kNothingFound = "No tracks match the search";

/// "1,234"
std::string WithCommas(std::int64_t count) {
    std::string digits = base::ToText(count);
    for (std::size_t end = digits.size(); end > 3; end -= 3)
        digits.insert(end - 3, ",");
    return digits;
}

/// "1,234 tracks"
std::string CountOfTracks(int count) {
    return WithCommas(count).append(count == 1 ? " track" : " tracks");
}

std::string Special(std::string_view name) {
    return std::string(kIndent).append(name);
}

bool IsWholeLibrary(std::string_view playlist) {
    return playlist.empty() || playlist == kAllMedia;
}

bool IsEveryone(std::string_view artist) {
    return artist.empty() || artist == kAllArtists;
}

}  // namespace

// One fill of the lists, from its beginning to its last row.
class LibraryListsRoom::Fill {
public:
    explicit Fill(LibraryListsRoom& room)
        : room_(room), number_(++room.filling_), gives_turns_(room.others_.start.IsLoading()) {}

    /// Called after each row. While the program starts others have a turn now and then; false when one of
    /// them has taken the lists over, or ended the program.
    bool GoesOn() { return !gives_turns_ || ++rows_ % kRowsOfTurn != 0 || GiveTurn(); }
    bool GivesTurns() const { return gives_turns_; }

private:
    bool GiveTurn() {
        room_.loop_.Yield();
        return number_ == room_.filling_ && !room_.others_.start.IsOver();
    }

    LibraryListsRoom& room_;
    std::uint64_t number_;
    bool gives_turns_;
    std::size_t rows_ = 0;
};

LibraryListsRoom::LibraryListsRoom(LibraryListControls& controls, SharedLists shared, MediaSources& sources,
                                   bool& ListMaybeChanged, ports::EventLoop& loop, LibraryListener& listener,
                                   LibraryListRoles others)
    : controls_(controls),
      shared_(shared),
      sources_(sources),
      ListMaybeChanged_(ListMaybeChanged),
      loop_(loop),
      listener_(listener),
      others_(others) {
    const auto hide_overs = [this] { others_.highlights.NoMouseOvers(); };
    claims_.Claim(controls_.lstPlayLists.Click, [this] { lstPlayLists_Click(); });
    claims_.Claim(controls_.lstPlayLists.KeyDown,
                  [this](int key_code, int shift) { lstPlayLists_KeyDown(key_code, shift); });
    claims_.Claim(controls_.lstPlayLists.MouseMove, hide_overs);
    claims_.Claim(controls_.lstArtists.Click, [this] { lstArtists_Click(); });
    claims_.Claim(controls_.lstArtists.KeyDown,
                  [this](int key_code, int shift) { List_KeyDown(key_code, shift); });
    claims_.Claim(controls_.lstArtists.MouseMove, hide_overs);
    claims_.Claim(controls_.lstTracks.Click, [this] { lstTracks_Click(); });
    claims_.Claim(controls_.lstTracks.KeyDown,
                  [this](int key_code, int shift) { List_KeyDown(key_code, shift); });
    claims_.Claim(controls_.lstTracks.MouseMove, hide_overs);
}

void LibraryListsRoom::Command1() {
    others_.start.SetStage("Media Library");
    // The first stage brings the splash up, which may refuse the start.
    if (others_.start.IsOver()) return;
    if (!ReadAhead(sources_.datPlayList, store::kAllPlayListRows)) return;
    DisplayPlayLists();
    if (!ReadAhead(sources_.datSong, store::kAllSongs)) return;
    DisplayLibrary();
    if (others_.start.IsOver()) return;
    others_.start.SetStage("Favourites");
    others_.favourites.LoadFavs();
    others_.start.SetStage("Initial tracks");
    for (int row = 0; row < shared_.lstOpenWith.ListCount() && !others_.start.IsOver(); ++row) {
        listener_.OnInitialTrack(std::string(shared_.lstOpenWith.List(row)));
    }
    if (!others_.start.IsOver()) listener_.OnReloaded();
}

// The login is there while the program starts, and has its turn between two pieces of a table that is read.
bool LibraryListsRoom::ReadAhead(const store::DataSource& source, std::string_view query) {
    while (others_.start.IsLoading() && source.ReadPiece(query)) {
        loop_.Yield();
        if (others_.start.IsOver()) return false;
    }
    return true;
}

void LibraryListsRoom::DisplayLibrary() {
    if (DisplayArtists({})) DisplayTracks({}, {});
}

void LibraryListsRoom::DisplayPlayLists() {
    controls_.lstPlayLists.Clear();
    shared_.lstAddToPlaylist.Clear();
    for (const std::string_view name : {kAllMedia, kLast20, kTop20})
        controls_.lstPlayLists.AddItem(Special(name));

    std::set<std::string, std::less<>> seen;
    store::RecordSet rows = OpenRows(sources_.datPlayList, store::kAllPlayListRows);
    DatabasePlayListID = 0;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        ++DatabasePlayListID;
        const std::string_view name = base::Trim(rows.Text(store::tblPlayList::Name));
        if (name.empty() || seen.size() >= kMostPlayLists || seen.contains(name)) continue;
        seen.emplace(name);
        controls_.lstPlayLists.AddItem(name);
        shared_.lstAddToPlaylist.AddItem(name);
    }
    shared_.lstEditPlayList.CopyRowsFrom(controls_.lstPlayLists);
}

bool LibraryListsRoom::DisplayArtists(std::string_view playlist) {
    const std::string_view name = base::Trim(playlist);
    const bool whole_library = IsWholeLibrary(name);
    controls_.lstMusicTest.Clear();
    controls_.lstArtists.Clear();
    seen_artists_.Clear();
    controls_.lstArtists.AddItem(Special(kAllArtists));

    Fill fill(*this);
    store::RecordSet rows = whole_library ? OpenRows(sources_.datSong, store::kAllSongs)
                                          : OpenRows(sources_.datPlayList, store::kAllPlayListRows);
    if (rows.RecordCount() > kLongWalk && !fill.GivesTurns()) loop_.ShowHourglass();
    const store::Field artist = whole_library ? store::tblSong::artist : store::tblPlayList::artist;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (whole_library || base::Trim(rows.Text(store::tblPlayList::Name)) == name)
            AddArtist(rows.Text(artist));
        if (!fill.GoesOn()) return false;
    }
    NoDuplicateArtists();
    return true;
}

void LibraryListsRoom::DisplayTracks(std::string_view playlist, std::string_view artist) {
    const std::string_view name = base::Trim(playlist);
    if (name == kLast20 || name == kTop20) {
        NarrowView(name, base::Trim(artist));
        return;
    }
    ClearTracks();
    if (!IsWholeLibrary(name)) {
        DisplayPlayListTracks(name, base::Trim(artist));
    } else if (!DisplayLibraryTracks(base::Trim(artist))) {
        return;
    }
    ShowCount(kNothingHere);
    // The player may have copied what was there at a turn of its own.
    ListMaybeChanged_ = true;
}

bool LibraryListsRoom::DisplayLibraryTracks(std::string_view artist) {
    const bool everyone = IsEveryone(artist);
    Fill fill(*this);
    store::RecordSet rows = OpenRows(sources_.datSong, store::kAllSongs);
    if (rows.RecordCount() > kLongWalk && !fill.GivesTurns()) loop_.ShowHourglass();
    DatabaseTrackID = 0;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        ++DatabaseTrackID;
        const std::string_view row_artist = rows.Text(store::tblSong::artist);
        if (everyone || base::Trim(row_artist) == artist)
            AddTrack(rows.Text(store::tblSong::SongID), row_artist, rows.Text(store::tblSong::title));
        if (!fill.GoesOn()) return false;
    }
    return true;
}

void LibraryListsRoom::DisplayPlayListTracks(std::string_view playlist, std::string_view artist) {
    const bool everyone = IsEveryone(artist);
    store::RecordSet rows = OpenRows(sources_.datPlayList, store::kAllPlayListRows);
    DatabasePlayListID = 0;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        ++DatabasePlayListID;
        if (base::Trim(rows.Text(store::tblPlayList::Name)) != playlist) continue;
        const std::string_view song_id = rows.Text(store::tblPlayList::SongID);
        const std::string_view row_artist = rows.Text(store::tblPlayList::artist);
        if (song_id.empty() || (!everyone && base::Trim(row_artist) != artist)) continue;
        AddTrack(song_id, row_artist, rows.Text(store::tblPlayList::title));
    }
}

void LibraryListsRoom::OpenPlayList(std::string_view name) {
    const std::string wanted(base::Trim(name));
    controls_.lstArtists.Clear();
    controls_.lstMusicTest.Clear();
    seen_artists_.Clear();
    ClearTracks();

    const std::uint64_t filling = filling_;
    store::RecordSet rows = OpenRows(sources_.datPlayList, store::kAllPlayListRows);
    DatabasePlayListID = 0;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        ++DatabasePlayListID;
        const std::string_view song_id = rows.Text(store::tblPlayList::SongID);
        if (!song_id.empty() && base::Trim(rows.Text(store::tblPlayList::Name)) == wanted) {
            AddSong(song_id, rows.Text(store::tblPlayList::artist), rows.Text(store::tblPlayList::title));
        }
        loop_.Yield();
        if (filling != filling_ || loop_.IsEnding()) return;
    }
    controls_.lstArtists.AddItem(Special(kAllArtists));
    NoDuplicateArtists();
    ShowCount(kNothingHere);
    ListMaybeChanged_ = true;
}

void LibraryListsRoom::NoDuplicateArtists() {
    std::string_view previous;
    for (int row = 0; row < controls_.lstMusicTest.ListCount(); ++row) {
        const std::string_view artist = controls_.lstMusicTest.List(row);
        if (artist != previous) controls_.lstArtists.AddItem(artist);
        previous = artist;
    }
    seen_artists_.Clear();
}

void LibraryListsRoom::RefillIfEmpty() {
    if (controls_.lstTracks.ListCount() > 0) return;
    DisplayLibrary();
}

void LibraryListsRoom::AddOutsideTrack(std::string_view text, std::string_view path) {
    controls_.lstTracks.AddItem(text);
    controls_.lstMaybe.AddItem(path);
    ShowCount(kNothingHere);
    ListMaybeChanged_ = true;
}

void LibraryListsRoom::BeginView() {
    controls_.lstArtists.Clear();
    controls_.lstMusicTest.Clear();
    seen_artists_.Clear();
    ClearTracks();
    controls_.lstArtists.AddItem(Special(kAllArtists));
}

void LibraryListsRoom::AddSong(std::string_view song_id, std::string_view artist, std::string_view title) {
    AddTrack(song_id, artist, title);
    AddArtist(artist);
}

void LibraryListsRoom::AddPlayedSong(std::string_view song_id, std::string_view artist,
                                     std::string_view title) {
    if (IsWanted(artist)) AddTrack(song_id, base::Trim(artist), base::Trim(title));
    AddArtist(artist);
}

void LibraryListsRoom::EndView() {
    NoDuplicateArtists();
    ShowCount(kNothingFound);
}

base::SongEntry LibraryListsRoom::SelectedEntry() {
    const int row = controls_.lstTracks.ListIndex();
    if (row < 0 || !controls_.lstMaybe.SetListIndex(row)) return base::SongEntry({});
    return base::SongEntry(controls_.lstMaybe.Text());
}

std::string LibraryListsRoom::SelectedPlayList() const {
    return std::string(base::Trim(controls_.lstPlayLists.Text()));
}

void LibraryListsRoom::lstPlayLists_Click() {
    const std::string name = SelectedPlayList();
    if (name == kLast20) {
        ShowLast20();
    } else if (name == kTop20) {
        ShowTop20();
    } else if (name == kAllMedia) {
        DisplayLibrary();
    } else if (!name.empty()) {
        OpenPlayList(name);
    }
}

void LibraryListsRoom::lstArtists_Click() {
    if (narrowing_) return;
    const std::string artist(controls_.lstArtists.Text());
    DisplayTracks(SelectedPlayList(), artist);
}

void LibraryListsRoom::lstTracks_Click() {
    const base::SongEntry entry(controls_.lstMaybe.List(controls_.lstTracks.ListIndex()));
    controls_.lstTracks.DragText = entry.IsSongId() ? entry.Text() : std::string();
}

// After a double click on a track the keyboard is here, so the multimedia keys are passed on.
void LibraryListsRoom::List_KeyDown(int key_code, int shift) {
    if (key_code == controls::kKeyDelete) {
        listener_.OnRemoveKey();
    } else {
        lstPlayLists_KeyDown(key_code, shift);
    }
}

void LibraryListsRoom::lstPlayLists_KeyDown(int key_code, int shift) {
    if (key_code == 'Z' && shift == controls::kControlMask) {
        listener_.OnUndoKey();
    } else {
        others_.keys.KeyDown(key_code, shift);
    }
}

void LibraryListsRoom::ClearTracks() {
    ++filling_;
    TopViewShown = false;
    controls_.lstTracks.Clear();
    controls_.lstTracks.DragText.clear();
    controls_.lstMaybe.Clear();
    ListMaybeChanged_ = true;
}

void LibraryListsRoom::AddTrack(std::string_view song_id, std::string_view artist, std::string_view title) {
    controls_.lstTracks.AddItem({artist, kSeparator, title});
    controls_.lstMaybe.AddItem(song_id);
}

// lstArtists shows each artist once, so that lstMusicTest needs each only once as well: most large libraries
// have many more songs than artists.
void LibraryListsRoom::AddArtist(std::string_view artist) {
    if (seen_artists_.MayBeNew(artist)) controls_.lstMusicTest.AddItem(artist);
}

void LibraryListsRoom::ShowLast20() {
    ClearTracks();
    others_.history.PopulateHistory(roles::HistoryKind::Music);
    ShowCount(kNothingPlayed);
}

void LibraryListsRoom::ShowTop20() {
    BeginView();
    TopViewShown = true;
    FillTop20Keys();
    ShowTop20Tracks();
    ShowCount(kNothingPlayed);
}

// Only the keys that can be shown go into the list: sorting those of a whole library would take long.
void LibraryListsRoom::FillTop20Keys() {
    TopKeys top(kTopRows);
    store::RecordSet rows = OpenRows(sources_.datSong, store::kAllSongs);
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
        top.Offer(rows.Text(store::tblSong::PlayCount), rows.Text(store::tblSong::SongID));
    controls_.lstTop20.Clear();
    for (const std::string& key : top.Keys())
        controls_.lstTop20.AddItem(key);
}

void LibraryListsRoom::ShowTop20Tracks() {
    std::vector<std::string> song_ids;
    for (int row = controls_.lstTop20.ListCount() - 1; row >= 0; --row)
        song_ids.emplace_back(TopKeys::SongIdOf(controls_.lstTop20.List(row)));
    store::RecordSet rows = OpenRows(sources_.datSong, store::kAllSongs);
    for (const auto& song : store::FirstRowsWith(rows, store::tblSong::SongID, song_ids)) {
        if (!song || !rows.MoveTo(*song)) continue;
        const std::string_view artist = rows.Text(store::tblSong::artist);
        if (!IsWanted(artist)) continue;
        AddTrack(rows.Text(store::tblSong::SongID), artist, rows.Text(store::tblSong::title));
    }
}

// The view is filled again, with the tracks of the artist alone among all its artists.
void LibraryListsRoom::NarrowView(std::string_view view, std::string_view artist) {
    const std::string wanted(artist);
    narrowing_ = true;
    only_artist_ = IsEveryone(wanted) ? std::string() : wanted;
    if (view == kTop20) {
        ShowTop20();
    } else {
        ShowLast20();
    }
    only_artist_.clear();
    controls_.lstArtists.SelectText(IsEveryone(wanted) ? Special(kAllArtists) : wanted);
    narrowing_ = false;
}

bool LibraryListsRoom::IsWanted(std::string_view artist) const {
    return only_artist_.empty() || base::Trim(artist) == only_artist_;
}

void LibraryListsRoom::ShowPutBack(std::size_t count) {
    controls_.lblTrackCount.SetCaption(WithCommas(static_cast<std::int64_t>(count)) + " put back");
}

void LibraryListsRoom::ShowCount(std::string_view hint) {
    const int count = controls_.lstTracks.ListCount();
    controls_.lblTrackCount.SetCaption(CountOfTracks(count));
    if (count > 0) return;
    const bool is_library_empty = OpenRows(sources_.datSong, store::kAllSongs).RecordCount() == 0;
    controls_.lstTracks.SetHint(is_library_empty ? kEmptyLibrary : hint);
}

}  // namespace library
