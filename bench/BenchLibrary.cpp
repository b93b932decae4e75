// The library's jobs at 10,000, 100,000 and 1,000,000 songs, in the rooms of the program on real stores; the
// screen has no part in them. bench/library.py runs this and draws how the times grow.
#include <benchmark/benchmark.h>

#include <cstring>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "BenchStore.h"
#include "base/Text.h"
#include "fakes/FakeDialogs.h"
#include "fakes/FakeKeptTexts.h"
#include "fakes/RecordingPageEngine.h"
#include "library/LibraryControls.h"
#include "library/LibraryListsRoom.h"
#include "library/SearchRoom.h"
#include "library/TrackMatchRoom.h"
#include "places/HistoryRoom.h"

namespace {

namespace tblHistory = store::tblHistory;
namespace tblSong = store::tblSong;

constexpr int kSongsOfAnArtist = 50;
constexpr int kSongsOfAFolder = 12;
constexpr int kHistoryRows = 32'000;
constexpr int kLines = 1'000;

/// Names as they are in a library: words of syllables, the same for the same number.
std::string Words(int number, int words) {
    static constexpr std::array<std::string_view, 24> kSyllables = {
        "ba", "cor", "del", "en", "fa", "gri", "hol", "in", "ja", "kel", "lo", "mar",
        "ne", "or",  "pel", "ra", "sa", "tor", "un",  "ve", "wy", "xi",  "ya", "zo"};
    std::minstd_rand random(static_cast<unsigned>(number) * 2654435761U + 1);
    std::string text;
    for (int word = 0; word < words; ++word) {
        std::string one;
        for (auto syllables = 1 + random() / 7 % 3; syllables > 0; --syllables)
            one += kSyllables[random() / 7 % kSyllables.size()];
        if (word > 0) text += ' ';
        text += base::UCase(one.substr(0, 1)) + one.substr(1);
    }
    return text;
}

enum class Artists { Ordinary, EveryOneDifferent };

/// The neighbours of the rooms, which cost nothing here.
struct Neighbours final : roles::Start,
                          roles::Favourites,
                          roles::History,
                          roles::Highlights,
                          roles::MediaKeys,
                          library::LibraryListener,
                          roles::AddressRow,
                          roles::FrontPage,
                          roles::TrackView {
    bool IsLoading() const override { return false; }
    void SetStage(std::string_view) override {}
    bool IsOver() const override { return false; }
    void LoadFavs() override {}
    void SettleAtStart() override {}
    bool IsPanelClosed() const override { return true; }
    void TogglePanel() override {}
    void AddPageInFront() override {}
    void AddSiteToHistory(roles::HistoryKind, std::string_view) override {}
    void DeleteHistory() override { History->DeleteHistory(); }
    void PopulateHistory(roles::HistoryKind kind) override { History->PopulateHistory(kind); }
    void OnRemoveKey() override {}
    void OnUndoKey() override {}
    void OnInitialTrack(std::string_view) override {}
    void OnReloaded() override {}
    void OnEndTasks() override {}
    void NoMouseOvers() override {}
    void KeyDown(int, int) override {}

    std::string Address() const override { return "typed"; }
    void SetAddress(std::string_view) override {}
    void ClearList() override {}
    void AddToList(std::string_view) override {}
    void SetTyped(std::string_view) override {}
    void ShowLocation(std::string_view) override {}
    bool IsAddressVisible() const override { return true; }
    roles::AddressMode Mode() const override { return roles::AddressMode::Web; }
    void ClearStaleAddress() override {}
    void FocusAddress() override {}
    bool IsPageVisible() const override { return false; }
    std::string LocationURL() const override { return {}; }
    std::string LocationName() const override { return {}; }
    void GoBack() override {}
    void GoForward() override {}
    void Refresh() override {}
    void BeginView() override { View->BeginView(); }
    void AddSong(std::string_view song_id, std::string_view artist, std::string_view title) override {
        View->AddSong(song_id, artist, title);
    }
    void AddPlayedSong(std::string_view song_id, std::string_view artist, std::string_view title) override {
        View->AddPlayedSong(song_id, artist, title);
    }
    void EndView() override { View->EndView(); }

    roles::TrackView* View = nullptr;
    places::HistoryRoom* History = nullptr;
};

/// The library's rooms over a store of so many songs.
struct Program {
    Program(int songs, Artists artists) : Songs(songs) {
        Store.Bind(Sources.datSong, store::kMediaStore);
        Store.Bind(Sources.datPlayList, store::kMediaStore);
        Store.Bind(History.datHistory, store::kHistoryStore);
        SeedSongs(artists);
        SeedHistory();
        Store.EndHandler();
        Around.View = &ListsRoom;
        Around.History = &HistoryRoom;
    }

    void SeedSongs(Artists artists) {
        Sources.datSong.Open(store::kAllSongs);
        store::RecordSet& rows = Sources.datSong.Recordset();
        for (int i = 0; i < Songs; ++i) {
            const std::string id = base::ToText(i + 1);
            const std::string artist =
                artists == Artists::Ordinary ? Words(i / kSongsOfAnArtist, 2) : Words(i, 2) + ' ' + id;
            const std::string title = Words(i + 7'000'000, 3);
            rows.AddNew();
            rows.Set(tblSong::SongID, id);
            rows.Set(tblSong::artist, artist);
            rows.Set(tblSong::title, title);
            rows.Set(tblSong::FilePath, Path(artist, title, i));
            rows.Set(tblSong::PlayCount, base::ToText(i % 7));
            rows.Update();
            if (i % (Songs / kHistoryRows + 1) == 0) Played.push_back(Path(artist, title, i));
        }
    }
    static std::string Path(const std::string& artist, const std::string& title, int number) {
        return "C:\\home\\person\\Music\\" + artist + "\\" + Words(number / kSongsOfAFolder + 3'000'000, 2) +
               "\\" + base::Padded(number % kSongsOfAFolder + 1, 2) + " - " + title + ".mp3";
    }
    void SeedHistory() {
        History.datHistory.Open(store::kAllHistory);
        store::RecordSet& rows = History.datHistory.Recordset();
        for (int i = 0; i < kHistoryRows; ++i) {
            const bool is_song = i % 2 == 0;
            rows.AddNew();
            rows.Set(tblHistory::HistoryID, base::ToText(i + 1));
            rows.Set(tblHistory::HistoryType, is_song ? "Music" : "Web");
            rows.Set(tblHistory::HistoryText,
                     is_song ? Played[static_cast<std::size_t>(i) * 7919 % Played.size()]
                             : "https://www.example.org/pages/" + Words(i, 2) + "?number=" + base::ToText(i));
            rows.Update();
        }
    }

    /// Lines of a playlist file; every tenth names a song that is not there.
    void FillTrackImport() {
        lblFoundNo.SetCaption("0");
        for (controls::ListBox* list : {&Import.lstTracksToAdd, &Import.lstartist, &Import.lsttitle})
            list->Clear();
        store::RecordSet& rows = Sources.datSong.Recordset();
        Sources.datSong.Open(store::kAllSongs);
        for (int line = 0; line < kLines; ++line) {
            const bool is_there = line % 10 != 0;
            rows.MoveTo(static_cast<store::Bookmark>(std::int64_t{line} * Songs / kLines));
            Import.lstTracksToAdd.AddItem("a line");
            Import.lstartist.AddItem(is_there ? rows.Text(tblSong::artist) : "Nobody");
            Import.lsttitle.AddItem({rows.Text(tblSong::title), " (feat. Somebody)"});
        }
    }

    int Songs;
    bench::BenchStore Store{"library"};
    Neighbours Around;
    fakes::FakeDialogs Boxes;
    library::MediaSources Sources;
    places::HistoryControls History;
    library::LibraryListControls Lists;
    library::PlayListControls PlayLists;
    library::SearchControls Search;
    library::TrackImportControls Import;
    controls::Label lblFoundNo{"lblFoundNo", "0"};
    controls::Label lblDuplicatesNoRemoved{"lblDuplicatesNoRemoved", "0"};
    controls::Label lblStatus{"lblStatus", "imported"};
    controls::ListBox lstOpenWith{"lstOpenWith"};
    controls::ListBox lstEditPlayList{"lstEditPlayList"};
    library::PlayListMenu PlayListMenu;
    library::SearchMenu SearchMenu;
    places::HistoryMenu HistoryMenu;
    std::vector<std::string> Played;
    bool SaveHistory = true;
    fakes::RecordingPageEngine Pages;
    bool ListMaybeChanged = false;
    /// No store: a match is looked for, and its row costs nothing.
    library::MediaSources NoSources;

    library::LibraryListsRoom ListsRoom{
        Lists,
        {PlayLists.lstAddToPlaylist, lstEditPlayList, lstOpenWith},
        Sources,
        ListMaybeChanged,
        Store.Loop(),
        Around,
        {.start = Around, .favourites = Around, .history = Around, .highlights = Around, .keys = Around}};
    fakes::FakeKeptTexts Kept;
    library::UndoLog Undo{Kept};
    library::PlayListRoom PlayListRoom{PlayLists, PlayListMenu, NoSources, ListsRoom, Undo, Boxes, Around};
    library::SearchRoom SearchRoom{Search, SearchMenu, Sources, ListsRoom, Around};
    library::TrackMatchRoom MatchRoom{
        Import, {lblFoundNo, lblDuplicatesNoRemoved, lblStatus}, Sources, PlayListRoom, Store.Loop()};
    places::HistoryRoom HistoryRoom{
        History, HistoryMenu, Sources.datSong, SaveHistory, {Around, Around, Around}, Boxes, Pages};
};

/// One program at a time: the jobs of one size stand together.
Program& ProgramOf(const benchmark::State& state, Artists artists = Artists::Ordinary) {
    static std::unique_ptr<Program> program;
    static Artists its_artists = Artists::Ordinary;
    const auto songs = static_cast<int>(state.range(0));
    if (program == nullptr || program->Songs != songs || its_artists != artists) {
        program.reset();
        program = std::make_unique<Program>(songs, artists);
        program->ListsRoom.Command1();
        its_artists = artists;
    }
    return *program;
}

void Command1(benchmark::State& state) {
    Program& program = ProgramOf(state);
    while (state.KeepRunning())
        program.ListsRoom.Command1();
}

void Command1EveryArtistDifferent(benchmark::State& state) {
    Program& program = ProgramOf(state, Artists::EveryOneDifferent);
    while (state.KeepRunning())
        program.ListsRoom.Command1();
}

void Search(benchmark::State& state, library::SearchField field, std::string_view text) {
    Program& program = ProgramOf(state);
    program.SearchRoom.RunLibrarySearch(field, text);
    while (state.KeepRunning())
        program.SearchRoom.RunLibrarySearch(field, text);
    state.counters["hits"] = program.Lists.lstTracks.ListCount();
}

void SearchNothing(benchmark::State& state) {
    Search(state, library::SearchField::Broad, "nothing of that");
}
void SearchFew(benchmark::State& state) {
    Search(state, library::SearchField::Broad, "corzo mar");
}
void SearchMany(benchmark::State& state) {
    Search(state, library::SearchField::Broad, "ra");
}
void SearchAll(benchmark::State& state) {
    Search(state, library::SearchField::Broad, "");
}
void SearchArtist(benchmark::State& state) {
    Search(state, library::SearchField::Artist, "zopel");
}
void SearchTitle(benchmark::State& state) {
    Search(state, library::SearchField::Title, "zopel");
}
void SearchFilename(benchmark::State& state) {
    Search(state, library::SearchField::Filename, "zopel & mar");
}
void SearchTrackThousandLines(benchmark::State& state) {
    Program& program = ProgramOf(state);
    program.FillTrackImport();
    while (state.KeepRunning()) {
        program.MatchRoom.BeginMatching();
        for (int line = 0; line < program.Import.lstTracksToAdd.ListCount(); ++line)
            program.MatchRoom.SearchTrack(line);
    }
    state.counters["hits"] = base::Val(program.lblFoundNo.Caption());
}
void Top20(benchmark::State& state) {
    Program& program = ProgramOf(state);
    while (state.KeepRunning())
        program.Lists.lstPlayLists.SelectText("  [Top 20]");
}
void Last20(benchmark::State& state) {
    Program& program = ProgramOf(state);
    while (state.KeepRunning())
        program.Lists.lstPlayLists.SelectText("  [Last 20]");
}

void AddSiteToHistory(benchmark::State& state) {
    Program& program = ProgramOf(state);
    while (state.KeepRunning()) {
        program.HistoryRoom.AddSiteToHistory(
            roles::HistoryKind::Web,
            "https://www.example.org/a page never seen before" + base::ToText(state.iterations()));
    }
}

/// What a machine needs at least: one pass over the cleaned artists and titles that lie side by side.
void BareScan(benchmark::State& state) {
    Program& program = ProgramOf(state);
    std::string prepared;
    store::RecordSet& rows = program.Sources.datSong.Recordset();
    program.Sources.datSong.Open(store::kAllSongs);
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        std::string text = std::string(rows.Text(tblSong::artist)).append(rows.Text(tblSong::title));
        prepared += base::LCase(base::Replace(text, " ", "")) + '\n';
    }
    while (state.KeepRunning()) {
        int found = 0;
        constexpr std::string_view kText = "corzomar";
        for (const char* at = prepared.data(); at != nullptr; ++found) {
            at = static_cast<const char*>(
                memmem(at, static_cast<std::size_t>(prepared.data() + prepared.size() - at), kText.data(),
                       kText.size()));
            if (at != nullptr) ++at;
        }
        benchmark::DoNotOptimize(found);
    }
}

using Job = void (*)(benchmark::State&);

constexpr std::array<std::pair<const char*, Job>, 14> kJobs = {{
    {"Command1", Command1},
    {"SearchNothing", SearchNothing},
    {"SearchFew", SearchFew},
    {"SearchMany", SearchMany},
    {"SearchAll", SearchAll},
    {"SearchArtist", SearchArtist},
    {"SearchTitle", SearchTitle},
    {"SearchFilename", SearchFilename},
    {"SearchTrackThousandLines", SearchTrackThousandLines},
    {"Top20", Top20},
    {"Last20", Last20},
    {"AddSiteToHistory", AddSiteToHistory},
    {"BareScan", BareScan},
    {"Command1EveryArtistDifferent", Command1EveryArtistDifferent},
}};

}  // namespace

int main(int argc, char** argv) {
    for (const int songs : {10'000, 100'000, 1'000'000}) {
        for (const auto& [name, job] : kJobs)
            benchmark::RegisterBenchmark(name, job)->Arg(songs)->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
