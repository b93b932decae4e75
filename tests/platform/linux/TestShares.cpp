// Shares that hang. The stand-in for one is a file process that is stopped by a signal in the middle of its
// work; where the tests may mount, a file system that never answers shows that the real thing is no
// different.
#include "platform/linux/Shares.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/linux/Bench.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/LinuxFiles.h"

namespace linux {
namespace {

using linux_tests::PlayFolder;
using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

/// Less than a handler may wait.
constexpr milliseconds kAtOnce{400};
/// What a handler may wait, and room for a busy machine.
constexpr milliseconds kPatienceAndRoom{1500};

template <class Work>
milliseconds TimeOf(Work work) {
    const auto begin = Clock::now();
    work();
    return std::chrono::duration_cast<milliseconds>(Clock::now() - begin);
}

bool HasEnded(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string stat;
    std::getline(file, stat);
    const std::size_t state = stat.rfind(") ");
    return state == std::string::npos || stat[state + 2] == 'Z';
}

/// The processes that this one started and that run brindlepost-files.
std::vector<pid_t> FileProcesses() {
    std::vector<pid_t> found;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/task")) {
        std::ifstream children(entry.path() / "children");
        for (pid_t child = 0; children >> child;) {
            std::ifstream name("/proc/" + std::to_string(child) + "/comm");
            std::string comm;
            if (std::getline(name, comm) && comm.starts_with("brindlepost-fil") && !HasEnded(child))
                found.push_back(child);
        }
    }
    return found;
}

void SignalFileProcesses(int signal) {
    for (const pid_t process : FileProcesses())
        ::kill(process, signal);
}

class SharesTest : public testing::Test {
protected:
    SharesTest() {
        folder_.Make("share/music");
        folder_.Write("share/music/a.mp3", "song");
        folder_.Make("own");
        folder_.Write("own/b.mp3", "song");
        linux_tests::WriteMountTable(folder_ / "table", folder_ / "share");
        files_.emplace(folder_ / "brindlepost", folder_.Path(), folder_ / "table", FILE_PROGRAM);
    }
    ~SharesTest() override { SignalFileProcesses(SIGCONT); }

    std::string In(const std::string& name) const { return files_->FromNative(folder_ / name); }
    /// From now on the share says nothing.
    void Hang() {
        ASSERT_TRUE(files_->FileExists(In("share/music/a.mp3")));
        SignalFileProcesses(SIGSTOP);
    }

    PlayFolder folder_;
    std::optional<LinuxFiles> files_;
};

TEST_F(SharesTest, AShareIsWhatIsOfNoKindOfDisk) {
    const auto shares = SharesFrom(
        "22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
        "23 22 0:5 / /proc rw - proc proc rw\n"
        "36 22 8:17 / /media/ann/Stick rw shared:2 master:3 - vfat /dev/sdb1 rw\n"
        "38 22 0:50 / /mnt/a\\040b rw shared:9 - nfs4 server:/music rw\n"
        "39 22 0:51 / /home/ann/pc rw - cifs //pc/music rw\n"
        "40 22 0:52 / /run/user/1000/gvfs rw - fuse.gvfsd-fuse gvfsd-fuse rw\n"
        "41 22 0:53 / /net rw - autofs auto.net rw\n"
        "nonsense\n42 22 0:54 / /cut rw -\n");

    ASSERT_EQ(shares.size(), 4U);
    EXPECT_EQ(shares[0].number, "38");
    EXPECT_EQ(shares[0].mount_point, "/mnt/a b");
    EXPECT_EQ(shares[3].mount_point, "/net");
}

TEST_F(SharesTest, ARootFromElsewhereIsNoShareAndAnUnknownKindIs) {
    const auto shares = SharesFrom("1 0 0:1 / / rw - 9p root rw\n2 1 0:2 / /data rw - newkind data rw\n");

    ASSERT_EQ(shares.size(), 1U);
    EXPECT_EQ(shares[0].mount_point, "/data");
}

TEST_F(SharesTest, OwnFilesNeedNoProcess) {
    EXPECT_TRUE(files_->FileExists(In("own/b.mp3")));
    EXPECT_TRUE(files_->ListFolder(In("own")));

    EXPECT_TRUE(FileProcesses().empty());
}

TEST_F(SharesTest, AProcessThatIsSlowToStartIsNoShareThatHangs) {
    const std::string slow = folder_ / "brindlepost-files";
    folder_.Write("brindlepost-files", "#!/bin/sh\nsleep 0.8\nexec " FILE_PROGRAM "\n");
    ASSERT_EQ(::chmod(slow.c_str(), 0700), 0);
    LinuxFiles files(folder_ / "brindlepost", folder_.Path(), folder_ / "table", slow);

    EXPECT_TRUE(files.FileExists(In("share/music/a.mp3")));
    EXPECT_FALSE(files.IsSilent(In("share/music/a.mp3")));
}

TEST_F(SharesTest, AShareThatHangsIsMissingAfterTheHandlersPatience) {
    Hang();

    bool is_there = true;
    const milliseconds took = TimeOf([&] { is_there = files_->FileExists(In("share/music/a.mp3")); });

    EXPECT_FALSE(is_there);
    EXPECT_LT(took, kPatienceAndRoom);
    EXPECT_TRUE(files_->IsSilent(In("share/music/a.mp3")));
    EXPECT_FALSE(files_->IsSilent(In("own/b.mp3")));
    EXPECT_TRUE(files_->FileExists(In("own/b.mp3")));
}

TEST_F(SharesTest, OnceSilentItIsMissingAtOnce) {
    Hang();
    files_->FileExists(In("share/music/a.mp3"));

    const milliseconds took = TimeOf([&] {
        for (int i = 0; i < 1000; ++i)
            EXPECT_FALSE(files_->FileExists(In("share/music/" + std::to_string(i) + ".mp3")));
        EXPECT_FALSE(files_->ReadText(In("share/music/a.mp3"), 10));
        EXPECT_FALSE(files_->ListFolder(In("share/music")));
        EXPECT_EQ(files_->WriteText(In("share/music/c.mpl"), "x"), ports::FileResult::Failed);
    });

    EXPECT_LT(took, kAtOnce);
}

TEST_F(SharesTest, AShareThatAnswersAgainIsThereAgain) {
    Hang();
    files_->FileExists(In("share/music/a.mp3"));

    SignalFileProcesses(SIGCONT);
    for (int i = 0; i < 100 && files_->IsSilent(In("share")); ++i)
        std::this_thread::sleep_for(milliseconds(10));

    EXPECT_FALSE(files_->IsSilent(In("share")));
    EXPECT_TRUE(files_->FileExists(In("share/music/a.mp3")));
    EXPECT_EQ(files_->ReadText(In("share/music/a.mp3"), 100), "song");
}

TEST_F(SharesTest, AListingThatHangsIsCancelledAtOnce) {
    Hang();

    int asked = 0;
    const milliseconds took = TimeOf(
        [&] { EXPECT_FALSE(files_->ListFolder(In("share/music"), [&asked] { return ++asked < 5; })); });

    EXPECT_EQ(asked, 5);
    EXPECT_LT(took, kPatienceAndRoom);
}

TEST_F(SharesTest, AListingThatHangsIsWaitedForWhileItMayGoOn) {
    Hang();

    const auto begin = Clock::now();
    bool was_silent = false;
    const auto listing = files_->ListFolder(In("share/music"), [&] {
        // Longer than a handler may wait; then the share wakes.
        was_silent = was_silent || files_->IsSilent(In("share"));
        if (Clock::now() - begin > 2 * Shares::kPatience) SignalFileProcesses(SIGCONT);
        return true;
    });

    ASSERT_TRUE(listing);
    EXPECT_EQ(listing->Files, std::vector<std::string>{"a.mp3"});
    EXPECT_TRUE(was_silent);
}

TEST_F(SharesTest, WhileOneListingWaitsAnotherQuestionIsAnswered) {
    ASSERT_TRUE(files_->FileExists(In("share/music/a.mp3")));
    bool is_asked = false;
    bool is_there = false;

    SignalFileProcesses(SIGSTOP);
    files_->ListFolder(In("share/music"), [&] {
        if (!is_asked) is_there = files_->FileExists(In("share/music/a.mp3"));
        is_asked = true;
        return false;
    });

    EXPECT_TRUE(is_there);
}

TEST_F(SharesTest, AProcessThatEndedIsStartedAgain) {
    ASSERT_TRUE(files_->FileExists(In("share/music/a.mp3")));
    SignalFileProcesses(SIGKILL);
    std::this_thread::sleep_for(milliseconds(50));

    EXPECT_TRUE(files_->FileExists(In("share/music/a.mp3")));
    EXPECT_TRUE(files_->FileExists(In("share/music/a.mp3")));
}

TEST_F(SharesTest, WithoutTheProcessesProgramAShareIsAskedLikeADisk) {
    files_.emplace(folder_ / "brindlepost", folder_.Path(), folder_ / "table", "/no/such/program");

    EXPECT_TRUE(files_->FileExists(In("share/music/a.mp3")));
    EXPECT_TRUE(files_->ListFolder(In("share/music")));
    EXPECT_FALSE(files_->IsSilent(In("share/music/a.mp3")));
}

TEST_F(SharesTest, AFolderWithALinkToAShareThatHangsIsListedWithoutIt) {
    folder_.Link(folder_ / "share/music", "own/linked");
    folder_.Link("../share/music/a.mp3", "own/song.mp3");
    EXPECT_EQ(files_->ListFolder(In("own"))->Files, (std::vector<std::string>{"b.mp3", "song.mp3"}));
    EXPECT_EQ(files_->ListFolder(In("own"))->Links, std::vector<std::string>{"linked"});
    Hang();

    std::optional<ports::FolderListing> listing;
    const milliseconds took = TimeOf([&] { listing = files_->ListFolder(In("own")); });

    ASSERT_TRUE(listing);
    EXPECT_EQ(listing->Files, std::vector<std::string>{"b.mp3"});
    EXPECT_TRUE(listing->SubFolders.empty());
    EXPECT_LT(took, kPatienceAndRoom);
}

TEST_F(SharesTest, APathThatLeadsToAShareByLinksIsAskedThere) {
    folder_.Link("own/../share", "way");
    folder_.Link("way/./music", "deep");

    EXPECT_TRUE(files_->FileExists(In("deep/a.mp3")));
    EXPECT_EQ(FileProcesses().size(), 1U);
    EXPECT_TRUE(files_->FileExists(In("own/b.mp3")));
}

TEST_F(SharesTest, ItsProcessesEndWithTheFiles) {
    Hang();
    files_->FileExists(In("share/music/a.mp3"));
    ASSERT_EQ(FileProcesses().size(), 1U);

    const milliseconds took = TimeOf([&] { files_.reset(); });

    EXPECT_LT(took, kAtOnce);
    for (int i = 0; i < 100 && !FileProcesses().empty(); ++i)
        std::this_thread::sleep_for(milliseconds(10));
    EXPECT_TRUE(FileProcesses().empty());
}

/// A file system whose other end was started and never says a word again.
class DeadMount {
public:
    explicit DeadMount(const std::string& place)
        : place_(place), end_(::open("/dev/fuse", O_RDWR | O_CLOEXEC)) {
        const std::string options =
            "fd=" + std::to_string(end_.Number()) + ",rootmode=40000,user_id=0,group_id=0";
        is_mounted_ = end_.IsOpen() && ::mount("dead", place.c_str(), "fuse", 0, options.c_str()) == 0;
    }
    ~DeadMount() {
        end_.Close();  // whoever waits is told that it is gone
        if (is_mounted_) ::umount2(place_.c_str(), MNT_DETACH);
    }
    DeadMount(const DeadMount&) = delete;
    DeadMount& operator=(const DeadMount&) = delete;
    bool IsMounted() const { return is_mounted_; }

private:
    std::string place_;
    Descriptor end_;
    bool is_mounted_ = false;
};

TEST_F(SharesTest, AFileSystemThatNeverAnswersHoldsNobodyUp) {
    folder_.Make("dead");
    const DeadMount dead(folder_ / "dead");
    if (!dead.IsMounted()) GTEST_SKIP() << "no right to mount here";
    files_.emplace(folder_ / "brindlepost", folder_.Path(), "/proc/self/mountinfo", FILE_PROGRAM);

    bool is_there = true;
    const milliseconds took = TimeOf([&] { is_there = files_->FileExists(In("dead/a.mp3")); });
    EXPECT_FALSE(is_there);
    EXPECT_LT(took, kPatienceAndRoom);
    EXPECT_TRUE(files_->IsSilent(In("dead")));
    EXPECT_LT(TimeOf([&] { EXPECT_FALSE(files_->ListFolder(In("dead"))); }), kAtOnce);
    EXPECT_LT(TimeOf([&] { files_.reset(); }), kAtOnce);
}

}  // namespace
}  // namespace linux
