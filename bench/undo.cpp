// What is removed from a large library and put back: a clean-up that takes 20,000 of 100,000 songs out, a
// playlist of 20,000 rows that is deleted, and the undo of each, with their stores and kept texts as files.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "BenchStore.h"
#include "fakes/FakeFiles.h"
#include "library/CleanUpRoom.h"
#include "library/LibraryPane.h"
#include "library/UndoRoom.h"
#include "platform/linux/KeptFiles.h"

namespace {

constexpr int kSongs = 100'000;
constexpr int kRemoved = 20'000;
constexpr int kRounds = 5;
constexpr std::string_view kName = "Road";

class Bench {
public:
    Bench() {
        for (store::DataSource* source : {&sources_.datSong, &sources_.datPlayList})
            store_.Bind(*source, store::kMediaStore);
        store_.Bind(history_, store::kHistoryStore);
        AddRows(sources_.datSong, store::kAllSongs, kSongs, [](store::RecordSet& rows, int number) {
            rows.Set(store::tblSong::SongID, base::ToText(number));
            rows.Set(store::tblSong::artist, "Artist Number " + base::ToText(number / 50));
            rows.Set(store::tblSong::title, "A Title of Usual Length " + base::ToText(number));
            rows.Set(store::tblSong::FilePath, PathOf(number));
        });
        AddRows(sources_.datPlayList, store::kAllPlayListRows, kRemoved,
                [](store::RecordSet& rows, int number) {
                    rows.Set(store::tblPlayList::PlayListID, base::ToText(number));
                    rows.Set(store::tblPlayList::Name, kName);
                    rows.Set(store::tblPlayList::SongID, base::ToText(number));
                    rows.Set(store::tblPlayList::artist, "Artist Number " + base::ToText(number / 50));
                    rows.Set(store::tblPlayList::title, "A Title of Usual Length " + base::ToText(number));
                });
        AddRows(history_, store::kAllHistory, 1, [](store::RecordSet& rows, int /*number*/) {
            rows.Set(store::tblHistory::HistoryID, "5");
            rows.Set(store::tblHistory::HistoryType, "Settings");
        });
        store_.EndHandler();
        for (int number = 1; number <= kSongs; ++number) {
            if (number % (kSongs / kRemoved) != 0) files_.AddFile(PathOf(number));
        }
        lists_.Command1();
    }
    ~Bench() { std::filesystem::remove_all(folder_); }
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    void Run() {
        Median clean_up, undo_of_it, deletion, undo_of_that;
        for (int round = 0; round < kRounds; ++round) {
            Check(kSongs, kRemoved);
            clean_up.Add([this] { Agree([this] { menu_.mnuCleanUp.Click.Raise(); }); });
            Check(kSongs - kRemoved, kRemoved);
            undo_of_it.Add([this] { Undo(); });
            Check(kSongs, kRemoved);
            play_lists_.lstAddToPlaylist.SelectText(kName);
            deletion.Add([this] { Agree([this] { play_lists_.imgDeletePlayListOver.Click.Raise(); }); });
            Check(kSongs, 0);
            undo_of_that.Add([this] { Undo(); });
        }
        std::printf(
            "%d of %d songs cleaned up: %.0f ms, undone: %.0f ms; a playlist of %d rows deleted: %.0f ms, "
            "undone: %.0f ms\n",
            kRemoved, kSongs, clean_up.Value(), undo_of_it.Value(), kRemoved, deletion.Value(),
            undo_of_that.Value());
    }

private:
    class Median {
    public:
        void Add(const std::function<void()>& job) {
            const auto begin = std::chrono::steady_clock::now();
            job();
            took_.push_back(
                std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
        }
        double Value() {
            std::sort(took_.begin(), took_.end());
            return took_[took_.size() / 2];
        }

    private:
        std::vector<double> took_;
    };

    static std::string PathOf(int number) {
        return "C:\\Music\\Artist Number " + base::ToText(number / 50) + "\\A Title of Usual Length " +
               base::ToText(number) + ".mp3";
    }
    template <class Fill>
    static void AddRows(store::DataSource& source, std::string_view query, int count, Fill fill) {
        source.Open(query);
        for (int number = 1; number <= count; ++number) {
            source.Recordset().AddNew();
            fill(source.Recordset(), number);
            source.Recordset().Update();
        }
    }
    /// The job and the write that makes it durable.
    void Agree(const std::function<void()>& job) {
        dialogs_.Answers = {ports::BoxAnswer::Yes};
        job();
        store_.EndHandler();
    }
    void Undo() {
        undo_room_.Undo();
        store_.EndHandler();
    }
    void Check(int songs, int rows) {
        sources_.datSong.Open(store::kAllSongs);
        sources_.datPlayList.Open(store::kAllPlayListRows);
        if (sources_.datSong.Recordset().RecordCount() == static_cast<std::size_t>(songs) &&
            sources_.datPlayList.Recordset().RecordCount() == static_cast<std::size_t>(rows)) {
            return;
        }
        std::fprintf(stderr, "other rows than expected\n");
        std::abort();
    }

    std::string folder_ =
        std::filesystem::temp_directory_path() / ("brindlepost-bench-undo-" + std::to_string(::getpid()));
    bench::BenchStore store_{"undo"};
    library_tests::RecordingNeighbours around_;
    fakes::FakeDesktop clock_;
    fakes::FakeDialogs dialogs_;
    fakes::FakeFiles files_;
    library::MediaSources sources_;
    store::DataSource history_{"datHistory"};
    library::LibraryListControls list_controls_;
    library::PlayListControls play_lists_;
    controls::ListBox lstEditPlayList_{"lstEditPlayList"};
    controls::ListBox lstOpenWith_{"lstOpenWith"};
    library::LibraryMenu menu_;
    library::TaskControls task_controls_;
    bool list_maybe_changed_ = false;
    const std::int32_t age_ = 0;
    linux::KeptFiles kept_{folder_ + "/kept"};
    library::UndoLog log_{kept_};
    library::LibraryListsRoom lists_{list_controls_,
                                     {play_lists_.lstAddToPlaylist, lstEditPlayList_, lstOpenWith_},
                                     sources_,
                                     list_maybe_changed_,
                                     store_.Loop(),
                                     around_,
                                     {.start = around_,
                                      .favourites = around_,
                                      .history = around_,
                                      .highlights = around_,
                                      .keys = around_}};
    library::PlayListRoom play_list_room_{play_lists_, menu_, sources_, lists_, log_, dialogs_, around_};
    library::TaskRoom task_{task_controls_, store_.Loop(), around_};
    library::CleanUpRoom clean_up_{task_controls_, menu_,  {sources_.datSong, history_}, age_, task_,
                                   log_,           lists_, {files_, dialogs_, clock_}};
    library::UndoRoom undo_room_{play_lists_, sources_, log_, task_, lists_, store_.Stores()};
};

}  // namespace

int main() {
    Bench().Run();
    return 0;
}
