// The add dialog with its window, files and store: a folder is searched, all of it is added, and the library
// is cleaned up, while a thread asks how long an event has to wait. bench/scan.py makes the folders and runs
// the peers.
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>

#include "fakes/FakeDialogs.h"
#include "fakes/NullWindow.h"
#include "library/AddMediaForm.h"
#include "library/AddMediaRoom.h"
#include "library/CleanUpRoom.h"
#include "platform/linux/KeptFiles.h"
#include "platform/linux/LinuxFiles.h"
#include "platform/linux/SystemClock.h"
#include "platform/qt/Boxes.h"
#include "platform/qt/Loop.h"
#include "platform/qt/Screen.h"
#include "platform/sqlite/MakeStore.h"
#include "platform/sqlite/SqliteDatabase.h"
#include "store/Layouts.h"
#include "store/Stores.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point begin) {
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

/// Sends the user-interface thread an event as soon as the last one was served, and keeps the longest wait.
class EventWatch final : public QObject {
public:
    EventWatch() : thread_([this] { Ask(); }) {}
    ~EventWatch() override {
        ending_ = true;
        thread_.join();
    }
    EventWatch(const EventWatch&) = delete;
    EventWatch& operator=(const EventWatch&) = delete;

    /// That of the event that still waits counts.
    double LongestWait() const {
        return is_waiting_ ? std::max(longest_, MillisecondsSince(sent_)) : longest_;
    }
    void Forget() { longest_ = 0; }

protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::User) return QObject::event(event);
        longest_ = std::max(longest_, MillisecondsSince(sent_));
        is_waiting_ = false;
        return true;
    }

private:
    void Ask() {
        while (!ending_) {
            if (!is_waiting_) {
                sent_ = Clock::now();
                is_waiting_ = true;
                QCoreApplication::postEvent(this, new QEvent(QEvent::User));
            }
            std::this_thread::sleep_for(std::chrono::microseconds(500));
        }
    }

    Clock::time_point sent_;
    double longest_ = 0;
    std::atomic<bool> is_waiting_ = false;
    std::atomic<bool> ending_ = false;
    std::thread thread_;
};

class EndInTrouble final : public store::StoreTrouble {
    void OnStoreTrouble(std::string_view, ports::DatabaseError, std::string_view message) override {
        std::fprintf(stderr, "%s\n", std::string(message).c_str());
        std::abort();
    }
};

class NoLists final : public roles::TrackLists {
public:
    void Command1() override {}
    void DisplayPlayLists() override {}
    void RefillIfEmpty() override {}
    void EndTasks() override {}
};

class Bench {
public:
    Bench(const std::string& program, const std::string& folder) : files_(program), folder_(folder) {
        fs::create_directories(folder_);
        fs::remove(StoreFile());
        const auto made = sqlite::MakeStore(StoreFile(), store::kStoreLayouts[0], {});
        fs::remove(HistoryFile());
        const sqlite::StartingRow clean_up_row{0, {"5", "Settings", "20260101"}};
        const auto history = sqlite::MakeStore(HistoryFile(), store::kStoreLayouts[2], {&clean_up_row, 1});
        if (!made.Ok() || !history.Ok()) std::abort();
        datSong_.SetDatabaseName(stores_, std::string("C:\\bench").append(store::kMediaStore));
        datHistory_.SetDatabaseName(stores_, std::string("C:\\bench").append(store::kHistoryStore));
        screen_.Adopt(form_.frmAddMedia);
    }

    /// Everything in events of their own, as a person's clicks are.
    int Run(const std::string& tree) {
        agreeing_.Answers = {ports::BoxAnswer::Yes};
        QTimer::singleShot(0, [this, &tree] {
            form_.frmAddMedia.Show();
            if (!form_.Dir1.SetPath(tree)) std::abort();
        });
        QTimer::singleShot(500, [this] { Search(); });
        return loop_.Run();
    }

private:
    std::string StoreFile() const { return folder_ + "/dbMedia.mdb"; }
    std::string HistoryFile() const { return folder_ + "/dbHistory.mdb"; }

    void Search() {
        watch_.Forget();
        begin_ = Clock::now();
        form_.cmdGetFiles.Click.Raise();
        WhenPanelIsGone();
    }
    void WhenPanelIsGone() {
        if (form_.fraSearch.Visible()) {
            QTimer::singleShot(1, [this] { WhenPanelIsGone(); });
            return;
        }
        std::printf("search  %8.1f ms  longest wait of an event %6.1f ms  %d files\n",
                    MillisecondsSince(begin_), watch_.LongestWait(), form_.lstFiles.ListCount());
        QTimer::singleShot(200, [this] { Add(); });
    }
    void Add() {
        watch_.Forget();
        begin_ = Clock::now();
        form_.imgAddAllOver.Click.Raise();
        stores_.CommitAll();
        const double took = MillisecondsSince(begin_);
        QTimer::singleShot(0, [this, took] {
            std::printf("add     %8.1f ms  longest wait of an event %6.1f ms\n", took, watch_.LongestWait());
            QTimer::singleShot(200, [this] { CleanUp(); });
        });
    }

    void CleanUp() {
        watch_.Forget();
        begin_ = Clock::now();
        menu_.mnuCleanUp.Click.Raise();
        const double took = MillisecondsSince(begin_);
        QTimer::singleShot(0, [this, took] {
            std::printf("clean   %8.1f ms  longest wait of an event %6.1f ms  %d rows\n", took,
                        watch_.LongestWait(), task_.lstCleanup.ListCount());
            loop_.Quit();
        });
    }

    qt::Loop loop_;
    qt::Application application_{"scan_and_add", loop_};
    linux::LinuxFiles files_;
    std::string folder_;
    qt::Boxes boxes_{loop_};
    sqlite::SqliteDatabase database_{[this](std::string_view path) {
        return path.ends_with(store::kMediaStore) ? StoreFile() : HistoryFile();
    }};
    EndInTrouble trouble_;
    store::Stores stores_{database_, loop_, trouble_};
    fakes::NullWindow window_;
    NoLists lists_;
    const bool sub_folders_ = true;
    library::AddMediaForm form_{files_};
    library::AddMediaRoom room_{
        form_, stores_, "C:\\bench", sub_folders_, window_, lists_, {files_, boxes_, loop_}};
    struct NoHighlights final : roles::Highlights {
        void NoMouseOvers() override {}
    } highlights_;
    fakes::FakeDialogs agreeing_;
    linux::SystemClock clock_;
    store::DataSource datSong_{"datSong"};
    store::DataSource datHistory_{"datHistory"};
    library::TaskControls task_;
    library::CleanUpMenu menu_;
    library::TaskRoom task_room_{task_, loop_, highlights_};
    const std::int32_t age_ = 0;
    linux::KeptFiles kept_{folder_ + "/kept"};
    library::UndoLog undo_{kept_};
    library::CleanUpRoom clean_up_{task_, menu_,  {datSong_, datHistory_},    age_, task_room_,
                                   undo_, lists_, {files_, agreeing_, clock_}};
    qt::Screen screen_{loop_, {}};
    EventWatch watch_;
    Clock::time_point begin_;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: scan_and_add FOLDER_TO_SEARCH WORK_FOLDER\n");
        return EXIT_FAILURE;
    }
    Bench bench(argv[0], argv[2]);
    return bench.Run(argv[1]);
}
