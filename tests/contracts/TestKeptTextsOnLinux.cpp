// Kept texts as files keep to their contract, and what only files can do wrong.
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>

#include "contracts/KeptTextsContract.h"
#include "platform/linux/KeptFiles.h"

namespace contracts {
namespace {

namespace fs = std::filesystem;

class FileBench {
public:
    FileBench() {
        std::string made = (fs::temp_directory_path() / "kept-XXXXXX").string();
        home_ = ::mkdtemp(made.data());
        texts_.emplace(Folder());
    }
    ~FileBench() { fs::remove_all(home_); }
    FileBench(const FileBench&) = delete;
    FileBench& operator=(const FileBench&) = delete;

    ports::KeptTexts& Texts() { return *texts_; }
    void NextRun() { texts_.emplace(Folder()); }
    std::string Folder() const { return linux::KeptFiles::FolderOf(home_, "/opt/brindlepost"); }
    const std::string& Home() const { return home_; }

private:
    std::string home_;
    std::optional<linux::KeptFiles> texts_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, KeptTextsContract, FileBench);

mode_t ModeOf(const fs::path& path) {
    struct stat found{};
    EXPECT_EQ(::stat(path.c_str(), &found), 0) << path;
    return found.st_mode & 07777U;
}

TEST(KeptFiles, OnlyTheOwnerMayRead) {
    FileBench bench;
    const mode_t before = ::umask(0);
    bench.Texts().Write("place", "here");
    bench.Texts().Append("step", "one");
    ::umask(before);

    EXPECT_EQ(ModeOf(bench.Folder()), 0700U);
    EXPECT_EQ(ModeOf(bench.Folder() + "/place"), 0600U);
    EXPECT_EQ(ModeOf(bench.Folder() + "/step"), 0600U);
}

TEST(KeptFiles, AnotherInstallationHasItsOwn) {
    EXPECT_NE(linux::KeptFiles::FolderOf("/d", "/a"), linux::KeptFiles::FolderOf("/d", "/b"));
    EXPECT_EQ(linux::KeptFiles::FolderOf("", "/a"), "");
}

TEST(KeptFiles, WithoutAFolderNothingIsKept) {
    linux::KeptFiles nowhere("");
    EXPECT_FALSE(nowhere.Write("place", "x"));
    EXPECT_FALSE(nowhere.Append("place", "x"));
    EXPECT_EQ(nowhere.Read("place"), std::nullopt);
    nowhere.Remove("place");
    nowhere.SetAside("place");
    EXPECT_TRUE(nowhere.Names("").empty());
}

TEST(KeptFiles, AFileInTheFoldersPlaceIsAFailure) {
    FileBench bench;
    fs::create_directories(fs::path(bench.Folder()).parent_path());
    std::ofstream(bench.Folder()) << "in the way";

    EXPECT_FALSE(bench.Texts().Write("place", "x"));
    EXPECT_EQ(bench.Texts().Read("place"), std::nullopt);
    EXPECT_TRUE(bench.Texts().Names("").empty());
}

TEST(KeptFiles, AFolderOrALinkInAFilesPlaceIsNoText) {
    FileBench bench;
    bench.Texts().Write("other", "x");
    fs::create_directories(bench.Folder() + "/place/inside");
    fs::create_symlink("/etc/passwd", bench.Folder() + "/link");

    EXPECT_EQ(bench.Texts().Read("place"), std::nullopt);
    EXPECT_FALSE(bench.Texts().Append("place", "x"));
    EXPECT_EQ(bench.Texts().Read("link"), std::nullopt);
    EXPECT_FALSE(bench.Texts().Append("link", "x"));
    bench.Texts().SetAside("place");
    EXPECT_TRUE(bench.Texts().Write("place", "x"));
    EXPECT_TRUE(bench.Texts().Write("link", "x"));
    EXPECT_FALSE(fs::is_symlink(bench.Folder() + "/link"));
}

TEST(KeptFiles, AWriteThatAKillLeftHalfDoneIsNoText) {
    FileBench bench;
    bench.Texts().Write("place", "here");
    std::ofstream(bench.Folder() + "/place.new") << "hal";

    EXPECT_EQ(bench.Texts().Read("place"), "here");
    EXPECT_EQ(bench.Texts().Names("").size(), 1U);
    EXPECT_TRUE(bench.Texts().Write("place", "there"));
    EXPECT_EQ(bench.Texts().Read("place"), "there");
}

}  // namespace
}  // namespace contracts
