#include "platform/linux/LinuxFiles.h"

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/Bench.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/KeptFiles.h"

namespace linux {
namespace {

using linux_tests::PlayFolder;
using linux_tests::Unprivileged;
using Names = std::vector<std::string>;

class LinuxFilesTest : public testing::Test {
protected:
    std::string In(const std::string& name) const { return files_.FromNative(folder_ / name); }

    PlayFolder folder_;
    LinuxFiles files_{folder_ / "brindlepost"};
};

void MakePipe(const std::string& path) {
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
}

Descriptor MakeSocket(const std::string& path) {
    Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
    EXPECT_EQ(::bind(socket.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    return socket;
}

TEST_F(LinuxFilesTest, APipeIsAsGoodAsMissingAndNothingWaitsForIt) {
    MakePipe(folder_ / "pipe.mp3");

    EXPECT_FALSE(files_.FileExists(In("pipe.mp3")));
    EXPECT_FALSE(files_.ReadText(In("pipe.mp3"), 10).has_value());
    EXPECT_NE(files_.WriteText(In("pipe.mp3"), "x"), ports::FileResult::Done);
    EXPECT_EQ(files_.DeleteFile(In("pipe.mp3")), ports::FileResult::Missing);
    EXPECT_EQ(files_.GetShortPathName(In("pipe.mp3")), "");
}

TEST_F(LinuxFilesTest, ASocketAndADeviceAreAsGoodAsMissing) {
    const Descriptor socket = MakeSocket(folder_ / "socket.mp3");

    for (const std::string& path :
         {In("socket.mp3"), files_.FromNative("/dev/null"), std::string("C:\\dev\\zero")}) {
        EXPECT_FALSE(files_.FileExists(path)) << path;
        EXPECT_FALSE(files_.ReadText(path, 10).has_value()) << path;
        EXPECT_NE(files_.WriteText(path, "x"), ports::FileResult::Done) << path;
    }
}

TEST_F(LinuxFilesTest, AListingHoldsFilesAndFoldersOnly) {
    const Descriptor socket = MakeSocket(folder_ / "socket.mp3");
    MakePipe(folder_ / "pipe.mp3");
    folder_.Write("a.mp3");
    folder_.Make("sub");
    folder_.Link("gone.mp3", "dangling.mp3");
    folder_.Link("pipe.mp3", "to pipe.mp3");
    folder_.Link("a.mp3", "link.mp3");
    folder_.Link("/dev/null", "device.mp3");

    const auto listing = files_.ListFolder(In(""));

    ASSERT_TRUE(listing.has_value());
    EXPECT_EQ(listing->Files, (Names{"a.mp3", "link.mp3"}));
    EXPECT_EQ(listing->SubFolders, (Names{"sub"}));
}

TEST_F(LinuxFilesTest, ALinkedFileIsReadThroughItsLinkAndDeletedWithoutItsTarget) {
    folder_.Write("a.mp3", "sound");
    folder_.Link("a.mp3", "link.mp3");

    EXPECT_EQ(files_.ReadText(In("link.mp3"), 100), "sound");
    EXPECT_EQ(files_.DeleteFile(In("link.mp3")), ports::FileResult::Done);
    EXPECT_TRUE(files_.FileExists(In("a.mp3")));
}

TEST_F(LinuxFilesTest, ALinkThatLeadsNowhereDoesNotExistButCanBeDeleted) {
    folder_.Link("loop", "loop");

    EXPECT_FALSE(files_.FileExists(In("loop")));
    EXPECT_FALSE(files_.IsFolder(In("loop")));
    EXPECT_FALSE(files_.ListFolder(In("loop")).has_value());
    EXPECT_EQ(files_.DeleteFile(In("loop")), ports::FileResult::Done);
}

TEST_F(LinuxFilesTest, ALinkBackToAFolderAboveIsLeftOut) {
    folder_.Make("music/rock");
    folder_.Make("videos");
    folder_.Link(".", "music/rock/self");
    folder_.Link("..", "music/rock/up");
    folder_.Link(folder_.Path(), "music/rock/top");
    folder_.Link("/", "music/rock/root");
    folder_.Link("../../videos", "music/rock/aside");

    const auto listing = files_.ListFolder(In("music/rock"));

    ASSERT_TRUE(listing.has_value());
    EXPECT_EQ(listing->SubFolders, (Names{"aside"}));
    EXPECT_EQ(listing->Links, (Names{"aside"}));
}

TEST_F(LinuxFilesTest, LinksAreToldFromFoldersInTheirOrder) {
    folder_.Make("a/b");
    folder_.Make("other");
    folder_.Link("../other", "a/Z");
    folder_.Link("../other", "a/c");
    folder_.Link("../other", "a/A");

    const auto listing = files_.ListFolder(In("a"));

    ASSERT_TRUE(listing.has_value());
    EXPECT_EQ(listing->SubFolders, (Names{"A", "b", "c", "Z"}));
    EXPECT_EQ(listing->Links, (Names{"A", "c", "Z"}));
}

TEST_F(LinuxFilesTest, TwoFoldersLinkedToEachOtherAreWalkedOnce) {
    folder_.Make("a");
    folder_.Make("b");
    folder_.Link("../b", "a/to b");
    folder_.Link("../a", "b/to a");

    const auto below = files_.ListFolder(In("a"));
    const auto beyond = files_.ListFolder(In("a/to b"));

    EXPECT_EQ(below->SubFolders, (Names{"to b"}));
    EXPECT_TRUE(beyond->SubFolders.empty());
}

TEST_F(LinuxFilesTest, AFolderIsTheSameThroughALink) {
    folder_.Make("a");
    folder_.Make("b");
    folder_.Link("a", "to a");

    EXPECT_EQ(files_.ListFolder(In("to a"))->Identity, files_.ListFolder(In("a"))->Identity);
    EXPECT_NE(files_.ListFolder(In("b"))->Identity, files_.ListFolder(In("a"))->Identity);
}

TEST_F(LinuxFilesTest, AFileThatMayNotBeReadIsNotListedByItsLinkEither) {
    folder_.Write("open.mp3");
    folder_.Write("closed.mp3");
    folder_.Link("open.mp3", "to open.mp3");
    folder_.Link("closed.mp3", "to closed.mp3");
    ASSERT_EQ(::chmod((folder_ / "closed.mp3").c_str(), 0), 0);
    const Unprivileged rights(folder_);

    const auto listing = files_.ListFolder(In(""));

    ASSERT_TRUE(listing.has_value());
    EXPECT_EQ(listing->Files, (Names{"open.mp3", "to open.mp3"}));
}

TEST_F(LinuxFilesTest, APathLongerThanTheSystemTakesIsMissing) {
    std::string path = In("");
    for (int depth = 0; depth < 60; ++depth)
        path += std::string(100, 'd') + "\\";

    EXPECT_FALSE(files_.FileExists(path + "a.mp3"));
    EXPECT_FALSE(files_.FileExists(In(std::string(256, 'n'))));
    EXPECT_FALSE(files_.ListFolder(path).has_value());
    EXPECT_NE(files_.WriteText(path + "a.mp3", "x"), ports::FileResult::Done);
}

TEST_F(LinuxFilesTest, WhatTheAccountMayNotDoIsRefused) {
    folder_.Make("shut");
    folder_.Write("shut/a.mpl", "old");
    const Unprivileged rights(folder_);

    EXPECT_EQ(files_.WriteText(In("shut/b.mpl"), "x"), ports::FileResult::Refused);
    EXPECT_EQ(files_.WriteText(In("shut/a.mpl"), "x"), ports::FileResult::Refused);
    EXPECT_EQ(files_.DeleteFile(In("shut/a.mpl")), ports::FileResult::Refused);
    EXPECT_EQ(files_.MakeFolder(In("shut/new")), ports::FileResult::Refused);
}

class SmallDisk {
public:
    explicit SmallDisk(std::string place) : place_(std::move(place)) {
        ::mkdir(place_.c_str(), 0700);
        is_mounted_ = ::mount("tmpfs", place_.c_str(), "tmpfs", 0, "size=64k") == 0;
    }
    ~SmallDisk() {
        if (is_mounted_) ::umount(place_.c_str());
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    bool IsMounted() const { return is_mounted_; }

private:
    std::string place_;
    bool is_mounted_ = false;
};

TEST_F(LinuxFilesTest, AWriteToAFullDiskLeavesTheOldFileAndNothingBesideIt) {
    const SmallDisk disk(folder_ / "disk");
    if (!disk.IsMounted()) GTEST_SKIP() << "only the superuser may make a small disk";
    folder_.Write("disk/a.mpl", "old");

    EXPECT_EQ(files_.WriteText(In("disk/a.mpl"), std::string(200'000, 'x')), ports::FileResult::DiskFull);
    EXPECT_EQ(files_.WriteText(In("disk/b.mpl"), std::string(200'000, 'x')), ports::FileResult::DiskFull);

    EXPECT_EQ(files_.ReadText(In("disk/a.mpl"), 10), "old");
    EXPECT_EQ(files_.ListFolder(In("disk"))->Files, Names{"a.mpl"});
    EXPECT_EQ(files_.WriteText(In("disk/a.mpl"), "new"), ports::FileResult::Done);
    EXPECT_EQ(files_.ReadText(In("disk/a.mpl"), 10), "new");
}

TEST_F(LinuxFilesTest, AWrittenFileKeepsItsRightsAndALinkToIt) {
    folder_.Write("a.mpl", "old");
    ASSERT_EQ(::chmod((folder_ / "a.mpl").c_str(), 0640), 0);
    folder_.Link("a.mpl", "to a.mpl");

    EXPECT_EQ(files_.WriteText(In("to a.mpl"), "new"), ports::FileResult::Done);

    struct stat status{};
    ASSERT_EQ(::lstat((folder_ / "a.mpl").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
    EXPECT_EQ(files_.ReadText(In("a.mpl"), 10), "new");
    ASSERT_EQ(::lstat((folder_ / "to a.mpl").c_str(), &status), 0);
    EXPECT_TRUE(S_ISLNK(status.st_mode));
}

TEST_F(LinuxFilesTest, AFileInAFolderThatMayNotBeEnteredDoesNotExist) {
    folder_.Make("shut");
    folder_.Write("shut/a.mp3");
    ASSERT_EQ(::chmod((folder_ / "shut").c_str(), 0700), 0);
    const Unprivileged rights(folder_);

    EXPECT_FALSE(files_.FileExists(In("shut/a.mp3")));
    EXPECT_FALSE(files_.ListFolder(In("shut")).has_value());
    EXPECT_TRUE(files_.IsFolder(In("shut")));
}

TEST_F(LinuxFilesTest, AFileWithoutAnyRightToWriteIsReadOnly) {
    folder_.Write("a.mp3");
    ASSERT_EQ(::chmod((folder_ / "a.mp3").c_str(), 0444), 0);

    EXPECT_EQ(files_.GetAttributes(In("a.mp3")), ports::kReadOnly);
}

TEST_F(LinuxFilesTest, AFullFolderIsListedWhole) {
    constexpr int kCount = 3000;
    for (int i = 0; i < kCount; ++i)
        folder_.Write("song " + std::to_string(i) + ".mp3");

    const auto listing = files_.ListFolder(In(""));

    ASSERT_TRUE(listing.has_value());
    EXPECT_EQ(listing->Files.size(), std::size_t{kCount});
}

TEST_F(LinuxFilesTest, TheApplicationFolderIsWhereTheProgramStands) {
    EXPECT_EQ(files_.ApplicationFolder(), files_.FromNative(folder_.Path()));
    EXPECT_EQ(files_.ApplicationFileName(), "brindlepost");
    EXPECT_EQ(LinuxFiles("/brindlepost").ApplicationFolder(), "C:\\");
    EXPECT_EQ(LinuxFiles("/usr/lib/brindlepost/Brindlepost", "/home/ann/kept").ApplicationFolder(),
              "C:\\home\\ann\\kept");
    EXPECT_TRUE(RunningProgram().ends_with("/test_platform_linux")) << RunningProgram();
}

TEST_F(LinuxFilesTest, AMountedVolumeHasALetter) {
    folder_.Write("table", "36 35 98:0 / /media/My\\040Stick rw - vfat /dev/sdb1 rw\n");

    const LinuxFiles files("/opt/brindlepost", "/opt", folder_ / "table");

    ASSERT_EQ(files.Drives().size(), 2U);
    EXPECT_EQ(files.Drives()[1].Letter, 'D');
    EXPECT_EQ(files.Drives()[1].Label, "My Stick");
    EXPECT_EQ(files.ToNative("D:\\a.mp3"), "/media/My Stick/a.mp3");
    EXPECT_EQ(files.ToNative("d:"), "/media/My Stick");
    EXPECT_EQ(files.FromNative("/media/My Stick/b/c.mp3"), "D:\\b\\c.mp3");
    EXPECT_EQ(files.FromNative("/media/My Stick"), "D:\\");
    EXPECT_EQ(files.FromNative("/media/My Sticky/c.mp3"), "C:\\media\\My Sticky\\c.mp3");
    EXPECT_EQ(files.NameInFolder("D:\\"), "");
}

TEST_F(LinuxFilesTest, APathLeadsToTheSameVolumeInTheNextRun) {
    const std::string card = "37 35 98:1 / /media/Card rw - vfat /dev/sdc1 rw\n";
    folder_.Write("today", "36 35 98:0 / /media/Stick rw - vfat /dev/sdb1 rw\n" + card);
    folder_.Write("tomorrow", card);
    KeptFiles kept(folder_ / "kept");
    const auto run_with = [&](const std::string& table) {
        return std::make_unique<LinuxFiles>("/opt/brindlepost", "/opt", folder_ / table, "",
                                            DriveLetters(kept, DriveLetters::Keeping::ReadAndWrite));
    };
    const std::string song = run_with("today")->FromNative("/media/Card/song.mp3");

    const auto files = run_with("tomorrow");

    EXPECT_EQ(files->ToNative(song), "/media/Card/song.mp3");
    EXPECT_EQ(files->ToNative("D:\\song.mp3"), "");
    ASSERT_EQ(files->Drives().size(), 2U);
    EXPECT_EQ(files->Drives()[1].Letter, 'E');
}

}  // namespace
}  // namespace linux
