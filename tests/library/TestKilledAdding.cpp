// The program is killed at any moment while it adds files: what it added is there, whole, and nothing else
// is.
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "fakes/FakeDialogs.h"
#include "fakes/NullWindow.h"
#include "library/AddMediaForm.h"
#include "library/AddMediaRoom.h"
#include "platform/linux/Bench.h"
#include "platform/linux/LinuxFiles.h"
#include "platform/sqlite/MakeStore.h"
#include "platform/sqlite/SqliteDatabase.h"
#include "store/Layouts.h"

namespace {

constexpr int kRounds = 50;
constexpr int kFiles = 4000;
constexpr int kLongestLifeInMicroseconds = 30'000;

/// Writes what hangs on handlers every millisecond.
class ShortHandlers final : public ports::EventLoop {
public:
    void Yield() override {
        const auto now = std::chrono::steady_clock::now();
        if (now - last_ < std::chrono::milliseconds(1)) return;
        last_ = now;
        for (const auto& work : work_)
            work();
    }
    void AtHandlerEnd(std::function<void()> work) override { work_.push_back(std::move(work)); }
    bool IsEnding() const override { return false; }

private:
    std::vector<std::function<void()>> work_;
    std::chrono::steady_clock::time_point last_;
};

struct EndInTrouble final : store::StoreTrouble {
    void OnStoreTrouble(std::string_view, ports::DatabaseError, std::string_view) override { ::_exit(3); }
};

struct NoLists final : roles::TrackLists {
    void Command1() override {}
    void DisplayPlayLists() override {}
    void RefillIfEmpty() override {}
    void EndTasks() override {}
};

/// Searches the folder and adds all of it, again and again. Tells `told` when the first adding begins.
[[noreturn]] void AddForEver(const std::string& folder, const std::string& store_file, int told) {
    linux::LinuxFiles files(folder + "/program");
    fakes::FakeDialogs dialogs;
    ShortHandlers loop;
    EndInTrouble trouble;
    fakes::NullWindow window;
    NoLists lists;
    const bool sub_folders = true;
    sqlite::SqliteDatabase database([&store_file](std::string_view) { return store_file; });
    store::Stores stores(database, loop, trouble);
    library::AddMediaForm form(files);
    library::AddMediaRoom room(form, stores, "C:\\app", sub_folders, window, lists,
                               {.files = files, .dialogs = dialogs, .loop = loop});
    form.frmAddMedia.Show();
    form.Dir1.SetPath(folder);
    form.cmdGetFiles.Click.Raise();
    for (int tick = 0; tick < 5; ++tick)
        form.tmrSearch.Tick.Raise();
    if (form.lstFiles.ListCount() != kFiles || ::write(told, "!", 1) != 1) ::_exit(2);
    for (;;)
        form.imgAddAllOver.Click.Raise();
}

struct SongRow {
    std::string key;
    std::string artist;
    std::string title;
    std::string path;

    bool operator==(const SongRow&) const = default;
};

class KilledAdding : public testing::Test {
protected:
    KilledAdding() {
        const auto made = sqlite::MakeStore(store_file_, store::kStoreLayouts[0], {});
        EXPECT_TRUE(made.Ok()) << made.text;
        linux::LinuxFiles files(folder_ / "program");
        for (int i = 0; i < kFiles; ++i) {
            const std::string name = "music/" + std::to_string(i % 40) + "/Person " + std::to_string(i % 7) +
                                     " - Song " + std::to_string(i);
            if (i < 40) folder_.Make("music/" + std::to_string(i));
            folder_.Write(name + ".mp3");
            paths_.insert(files.FromNative(folder_ / name + ".mp3"));
        }
    }

    /// Starts an adding and ends it `microseconds` after it has begun.
    void AddAndKill(int microseconds) const {
        int pipe[2];
        ASSERT_EQ(::pipe(pipe), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0 && ::prctl(PR_SET_PDEATHSIG, SIGKILL) == 0)
            AddForEver(folder_ / "music", store_file_, pipe[1]);
        pollfd begun{pipe[0], POLLIN, 0};
        EXPECT_EQ(::poll(&begun, 1, 20'000), 1) << "the adding did not begin";
        ::usleep(static_cast<useconds_t>(microseconds));  // the moment is the matter of the test
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status)) << "it ended by itself with " << WEXITSTATUS(status);
        ::close(pipe[0]);
        ::close(pipe[1]);
    }

    std::vector<SongRow> Ask(const char* query) const {
        std::vector<SongRow> rows;
        sqlite3* connection = nullptr;
        EXPECT_EQ(sqlite3_open_v2(store_file_.c_str(), &connection, SQLITE_OPEN_READWRITE, nullptr),
                  SQLITE_OK);
        sqlite3_stmt* statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(connection, query, -1, &statement, nullptr), SQLITE_OK);
        const auto text = [statement](int column) {
            const auto* const value = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            return std::string(value != nullptr ? value : "");
        };
        while (sqlite3_step(statement) == SQLITE_ROW)
            rows.push_back({text(0), text(1), text(2), text(3)});
        sqlite3_finalize(statement);
        sqlite3_close(connection);
        return rows;
    }

    linux_tests::PlayFolder folder_;
    std::string store_file_ = folder_ / "dbMedia.mdb";
    std::set<std::string> paths_;
};

TEST_F(KilledAdding, LeavesWholeRowsWithRisingKeysAtAnyMoment) {
    std::mt19937 chance(20);
    std::uniform_int_distribution<int> life(0, kLongestLifeInMicroseconds);
    std::vector<SongRow> before;
    int rounds_that_added = 0;
    for (int round = 0; round < kRounds; ++round) {
        AddAndKill(life(chance));

        EXPECT_EQ(Ask("PRAGMA integrity_check")[0].key, "ok");
        const std::vector<SongRow> rows =
            Ask("SELECT SongID, artist, title, FilePath FROM tblSong ORDER BY rowid");
        ASSERT_GE(rows.size(), before.size());
        EXPECT_TRUE(std::equal(before.begin(), before.end(), rows.begin())) << "rows of before have changed";
        for (std::size_t i = before.size(); i < rows.size(); ++i) {
            ASSERT_EQ(rows[i].key, std::to_string(i + 1));
            ASSERT_EQ(rows[i].artist.substr(0, 7), "Person ");
            ASSERT_EQ(rows[i].title.substr(0, 5), "Song ");
            ASSERT_TRUE(paths_.contains(rows[i].path)) << rows[i].path;
        }
        rounds_that_added += rows.size() > before.size() ? 1 : 0;
        before = rows;
    }
    // Beside other work many are killed before they were given any time.
    EXPECT_GE(rounds_that_added, kRounds / 5);
}

}  // namespace
