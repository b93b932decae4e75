// What every files port promises: one body of tests for the stand-in and for the real system.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"
#include "ports/Files.h"

namespace contracts {

/// Files with an empty folder to play in.
class FilesBench {
public:
    virtual ~FilesBench() = default;
    virtual ports::Files& Files() = 0;
    /// The folder, as a drive path without a separator at its end.
    virtual std::string Folder() const = 0;
    virtual void MakeUnreadable(const std::string& path) = 0;
};

using MakeFilesBench = std::function<std::unique_ptr<FilesBench>()>;

class FilesContract : public testing::TestWithParam<MakeFilesBench> {
protected:
    FilesContract() : bench_(GetParam()()), files_(bench_->Files()) {}

    std::string In(std::string_view name) const { return bench_->Folder() + "\\" + std::string(name); }
    /// The drive path of a name that is given in the system's bytes.
    std::string InNative(std::string_view name) const {
        return files_.FromNative(files_.ToNative(bench_->Folder()) + "/" + std::string(name));
    }
    void Seed(std::string_view name, std::string_view text = "text") {
        ASSERT_EQ(files_.WriteText(In(name), text), ports::FileResult::Done) << name;
    }
    void SeedFolder(std::string_view name) {
        ASSERT_EQ(files_.MakeFolder(In(name)), ports::FileResult::Done) << name;
    }

    std::unique_ptr<FilesBench> bench_;
    ports::Files& files_;
};

TEST_P(FilesContract, OnlyAFileExistsAsAFile) {
    Seed("a.mp3");
    SeedFolder("music");

    EXPECT_TRUE(files_.FileExists(In("a.mp3")));
    EXPECT_FALSE(files_.FileExists(In("music")));
    EXPECT_FALSE(files_.FileExists(In("gone.mp3")));
    EXPECT_FALSE(files_.FileExists(In("a.mp3\\")));
    EXPECT_FALSE(files_.FileExists(In("a.mp3\\b.mp3")));
    EXPECT_FALSE(files_.FileExists(""));
}

TEST_P(FilesContract, OnlyAFolderIsAFolder) {
    Seed("a.mp3");
    SeedFolder("music");

    EXPECT_TRUE(files_.IsFolder(In("music")));
    EXPECT_TRUE(files_.IsFolder(In("music\\")));
    EXPECT_TRUE(files_.IsFolder("C:\\"));
    EXPECT_TRUE(files_.IsFolder("c:"));
    EXPECT_FALSE(files_.IsFolder(In("a.mp3")));
    EXPECT_FALSE(files_.IsFolder(In("gone")));
}

TEST_P(FilesContract, BothSeparatorsLeadToAFile) {
    SeedFolder("music");
    Seed("music\\a.mp3");

    EXPECT_TRUE(files_.FileExists(base::Replace(In("music\\a.mp3"), "\\", "/")));
    EXPECT_TRUE(files_.FileExists(In("music/a.mp3")));
    EXPECT_TRUE(files_.FileExists(In("music\\\\a.mp3")));
    EXPECT_TRUE(files_.FileExists(files_.ToNative(In("music\\a.mp3"))));
}

TEST_P(FilesContract, NothingIsOnADriveThatIsNotThere) {
    EXPECT_FALSE(files_.FileExists("Z:\\a.mp3"));
    EXPECT_FALSE(files_.IsFolder("Z:\\"));
    EXPECT_EQ(files_.ToNative("Z:\\a.mp3"), "");
    EXPECT_EQ(files_.WriteText("Z:\\a.mp3", "x"), ports::FileResult::Missing);
    EXPECT_EQ(files_.MakeFolder("Z:\\a"), ports::FileResult::Missing);
    EXPECT_EQ(files_.DeleteFile("Z:\\a.mp3"), ports::FileResult::Missing);
    EXPECT_FALSE(files_.ListFolder("Z:\\").has_value());
}

TEST_P(FilesContract, APathEndsNowhereBeforeAZeroByte) {
    Seed("a.mp3");

    EXPECT_FALSE(files_.FileExists(In("a.mp3") + std::string(1, '\0') + "x"));
}

TEST_P(FilesContract, ANameThatBeginsWithADotIsHidden) {
    Seed(".secret");
    Seed("open");

    EXPECT_EQ(files_.GetAttributes(In(".secret")).value_or(0) & ports::kHidden, ports::kHidden);
    EXPECT_EQ(files_.GetAttributes(In("open")).value_or(ports::kHidden) & ports::kHidden, 0);
}

TEST_P(FilesContract, AFolderListsItsFilesAndFoldersInOrder) {
    Seed("b.mp3");
    Seed("A.mp3");
    Seed("c.txt");
    SeedFolder("Zoo");
    SeedFolder("apes");
    Seed("Zoo\\inside.mp3");

    const auto listing = files_.ListFolder(bench_->Folder());

    ASSERT_TRUE(listing.has_value());
    EXPECT_EQ(listing->Files, (std::vector<std::string>{"A.mp3", "b.mp3", "c.txt"}));
    EXPECT_EQ(listing->SubFolders, (std::vector<std::string>{"apes", "Zoo"}));
    EXPECT_TRUE(listing->Links.empty());
}

TEST_P(FilesContract, AnEmptyFolderListsNothing) {
    const auto listing = files_.ListFolder(bench_->Folder());

    ASSERT_TRUE(listing.has_value());
    EXPECT_TRUE(listing->Files.empty());
    EXPECT_TRUE(listing->SubFolders.empty());
}

TEST_P(FilesContract, WhatCannotBeReadHasNoListing) {
    Seed("a.mp3");
    SeedFolder("closed");
    Seed("closed\\b.mp3");
    bench_->MakeUnreadable(In("closed"));

    EXPECT_FALSE(files_.ListFolder(In("closed")).has_value());
    EXPECT_FALSE(files_.ListFolder(In("a.mp3")).has_value());
    EXPECT_FALSE(files_.ListFolder(In("gone")).has_value());
    EXPECT_TRUE(files_.IsFolder(In("closed")));
}

TEST_P(FilesContract, AFolderIsTheSameHoweverItsPathIsWritten) {
    SeedFolder("music");
    SeedFolder("videos");

    const auto music = files_.ListFolder(In("music"));
    const auto again = files_.ListFolder(base::Replace(In("music"), "\\", "/") + "/");
    const auto videos = files_.ListFolder(In("videos"));

    ASSERT_TRUE(music && again && videos);
    EXPECT_EQ(music->Identity, again->Identity);
    EXPECT_NE(music->Identity, videos->Identity);
    EXPECT_NE(music->Identity, ports::FolderIdentity());
}

TEST_P(FilesContract, ALongFolderIsReadWithQuestionsAndWhole) {
    constexpr std::size_t kMany = 2100;
    for (std::size_t i = 0; i < kMany; ++i)
        Seed(std::to_string(i * 7919 % kMany) + ".mp3", "");
    int questions = 0;

    const auto listing = files_.ListFolder(bench_->Folder(), [&questions] { return ++questions > 0; });

    ASSERT_TRUE(listing.has_value());
    EXPECT_EQ(listing->Files.size(), kMany);
    EXPECT_TRUE(std::is_sorted(listing->Files.begin(), listing->Files.end()));
    EXPECT_GE(questions, 4);
}

TEST_P(FilesContract, ALongFolderIsGivenUpWhenTheAnswerIsNo) {
    for (int i = 0; i < 1100; ++i)
        Seed(std::to_string(i) + ".mp3", "");
    int questions = 0;

    const auto listing = files_.ListFolder(bench_->Folder(), [&questions] { return ++questions < 2; });

    EXPECT_FALSE(listing.has_value());
    EXPECT_EQ(questions, 2);
}

TEST_P(FilesContract, AFileThatCannotBeReadIsNotListed) {
    Seed("closed.mp3");
    Seed("open.mp3");
    bench_->MakeUnreadable(In("closed.mp3"));

    const auto listing = files_.ListFolder(bench_->Folder());

    ASSERT_TRUE(listing.has_value());
    EXPECT_EQ(listing->Files, (std::vector<std::string>{"open.mp3"}));
}

TEST_P(FilesContract, AFileThatCannotBeReadStillExists) {
    Seed("closed.mp3");
    bench_->MakeUnreadable(In("closed.mp3"));

    EXPECT_TRUE(files_.FileExists(In("closed.mp3")));
    EXPECT_FALSE(files_.ReadText(In("closed.mp3")).has_value());
}

TEST_P(FilesContract, AFolderIsMadeOnceAndOnlyBelowAnother) {
    Seed("file");

    EXPECT_EQ(files_.MakeFolder(In("new")), ports::FileResult::Done);
    EXPECT_EQ(files_.MakeFolder(In("new")), ports::FileResult::AlreadyThere);
    EXPECT_EQ(files_.MakeFolder(In("new\\deep\\")), ports::FileResult::Done);
    EXPECT_EQ(files_.MakeFolder(In("file")), ports::FileResult::AlreadyThere);
    EXPECT_EQ(files_.MakeFolder(In("gone\\deep")), ports::FileResult::Missing);
    EXPECT_EQ(files_.MakeFolder(In("file\\deep")), ports::FileResult::Missing);
    EXPECT_TRUE(files_.IsFolder(In("new\\deep")));
}

TEST_P(FilesContract, OnlyFilesAreDeleted) {
    Seed("a.mpl");
    SeedFolder("folder");

    EXPECT_EQ(files_.DeleteFile(In("a.mpl")), ports::FileResult::Done);
    EXPECT_EQ(files_.DeleteFile(In("a.mpl")), ports::FileResult::Missing);
    EXPECT_EQ(files_.DeleteFile(In("folder")), ports::FileResult::Failed);
    EXPECT_FALSE(files_.FileExists(In("a.mpl")));
    EXPECT_TRUE(files_.IsFolder(In("folder")));
}

TEST_P(FilesContract, AWrittenTextReadsBackByteForByte) {
    const std::string bytes = std::string("a\0b\r\n\xFF", 6) + std::string(100000, 'x');

    EXPECT_EQ(files_.WriteText(In("t"), bytes), ports::FileResult::Done);
    EXPECT_EQ(files_.ReadText(In("t")), bytes);

    EXPECT_EQ(files_.WriteText(In("t"), "short"), ports::FileResult::Done);
    EXPECT_EQ(files_.ReadText(In("t")), "short");

    EXPECT_EQ(files_.WriteText(In("t"), ""), ports::FileResult::Done);
    EXPECT_EQ(files_.ReadText(In("t")), "");
}

TEST_P(FilesContract, ReadingStopsAtTheLimit) {
    Seed("t", "0123456789");

    EXPECT_EQ(files_.ReadText(In("t"), 4), "0123");
    EXPECT_EQ(files_.ReadText(In("t"), 0), "");
    EXPECT_EQ(files_.ReadText(In("t"), 100), "0123456789");
}

TEST_P(FilesContract, WhatIsNoFileIsNeitherReadNorWritten) {
    Seed("file");
    SeedFolder("folder");

    EXPECT_FALSE(files_.ReadText(In("folder")).has_value());
    EXPECT_FALSE(files_.ReadText(In("gone")).has_value());
    EXPECT_FALSE(files_.ReadText("").has_value());
    EXPECT_EQ(files_.WriteText(In("folder"), "x"), ports::FileResult::Failed);
    EXPECT_EQ(files_.WriteText(In("gone\\t"), "x"), ports::FileResult::Missing);
    EXPECT_EQ(files_.WriteText(In("file\\t"), "x"), ports::FileResult::Missing);
    EXPECT_EQ(files_.WriteText("", "x"), ports::FileResult::Missing);
}

TEST_P(FilesContract, AShortNameIsOneWordThatLeadsToTheFile) {
    SeedFolder("My Music");
    Seed("My Music\\a \"great\" song.mp3", "sound");
    const std::string path = In("My Music\\a \"great\" song.mp3");

    const std::string short_path = files_.GetShortPathName(path);

    EXPECT_FALSE(short_path.empty());
    EXPECT_EQ(short_path.find_first_of(" \"\t\n"), std::string::npos);
    EXPECT_EQ(base::Right(short_path, 4), ".mp3");
    EXPECT_TRUE(files_.FileExists(short_path));
    EXPECT_EQ(files_.ReadText(short_path), "sound");
    EXPECT_EQ(files_.ToNative(short_path), files_.ToNative(path));
    EXPECT_EQ(files_.GetShortPathName(short_path), short_path);
}

TEST_P(FilesContract, AShortNameHasAtMost255Characters) {
    std::string name;
    for (int depth = 0; depth < 5; ++depth) {
        name += (depth == 0 ? "" : "\\") + std::string(90, static_cast<char>('a' + depth));
        SeedFolder(name);
    }
    Seed(name + "\\one.mp3", "1");
    Seed(name + "\\two.mp3", "2");

    const std::string one = files_.GetShortPathName(In(name + "\\one.mp3"));
    const std::string two = files_.GetShortPathName(In(name + "\\two.mp3"));

    EXPECT_LE(base::Len(one), 255U);
    EXPECT_NE(one, two);
    EXPECT_EQ(files_.ReadText(one), "1");
    EXPECT_EQ(files_.ReadText(two), "2");
    EXPECT_EQ(files_.GetShortPathName(In(name + "\\one.mp3")), one);
    EXPECT_EQ(base::Right(one, 4), ".mp3");
}

TEST_P(FilesContract, AMissingFileHasNoShortName) {
    EXPECT_EQ(files_.GetShortPathName(In("gone.mp3")), "");
}

TEST_P(FilesContract, TheNameInAFolderIsTheRealOne) {
    SeedFolder("My Music");
    Seed("My Music\\a b.mp3");

    EXPECT_EQ(files_.NameInFolder(files_.GetShortPathName(In("My Music\\a b.mp3"))), "a b.mp3");
    EXPECT_EQ(files_.NameInFolder(In("My Music")), "My Music");
    EXPECT_EQ(files_.NameInFolder(In("My Music\\")), "My Music");
    EXPECT_EQ(files_.NameInFolder(In("gone")), "");
    EXPECT_EQ(files_.NameInFolder("C:\\"), "");
    EXPECT_EQ(files_.NameInFolder("C:"), "");
    EXPECT_EQ(files_.NameInFolder(""), "");
}

TEST_P(FilesContract, EveryNameOfTheSystemHasAPathThatLeadsBackToIt) {
    const std::vector<std::string> names = {
        "Bj\xF6rk.mp3",  // Latin-1
        "a\\b.mp3",      // a backslash
        "\\",            // nothing but one
        "line\nbreak.mp3",
        "quo\"te.mp3",
        " blank at both ends ",
        "tab\t.mp3",
        "\x01\x1F\x7F",
        "a*?<>|:.mp3",
        "song~1.mp3",
        "a^b & c's (x) [y] {z} $HOME %20.mp3",
        "-rf",
        "...",
        "\xEF\x81\x9C.mp3",          // the stand-in of a backslash, as a real character
        "\xEF\x83\xB6\xF6.mp3",      // a stand-in beside what it would stand for
        "\xC3",                      // cut off in the middle of a character
        "\xED\xA0\x80\xFE\xFF.mp3",  // never UTF-8
        "\xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x8E\xB5.mp3",
        std::string(255, 'n'),
    };
    for (const std::string& name : names) {
        const std::string path = InNative(name);
        EXPECT_TRUE(base::IsUtf8(path));
        EXPECT_EQ(files_.WriteText(path, name), ports::FileResult::Done) << path;
        EXPECT_EQ(files_.ToNative(path), files_.ToNative(bench_->Folder()) + "/" + name);
    }

    const auto listing = files_.ListFolder(bench_->Folder());

    ASSERT_TRUE(listing.has_value());
    EXPECT_EQ(listing->Files.size(), names.size());
    for (const std::string& name : listing->Files) {
        const std::string path = files_.BuildPath(bench_->Folder(), name);
        const auto text = files_.ReadText(path);
        ASSERT_TRUE(text.has_value()) << path;
        EXPECT_EQ(path, InNative(*text));
        EXPECT_EQ(files_.NameInFolder(path), name);
        EXPECT_EQ(files_.ReadText(files_.GetShortPathName(path)), text);
        EXPECT_TRUE(base::IsUtf8(files_.DisplayPath(path)));
    }
}

TEST_P(FilesContract, APathIsShownInItsNativeForm) {
    const std::string native = files_.ToNative(In("My Music\\a.mp3"));

    EXPECT_EQ(native, files_.ToNative(bench_->Folder()) + "/My Music/a.mp3");
    EXPECT_EQ(files_.DisplayPath(In("My Music\\a.mp3")), native);
    EXPECT_EQ(files_.DisplayPath(InNative("a\\b")), files_.ToNative(bench_->Folder()) + "/a\\b");
    EXPECT_EQ(files_.DisplayPath("Z:\\a.mp3"), "Z:\\a.mp3");
    EXPECT_EQ(files_.DisplayPath("C:\\"), "/");
}

TEST_P(FilesContract, OnlyANativePathFromTheRootIsTurnedIntoADrivePath) {
    EXPECT_EQ(files_.FromNative("/no such folder/a.mp3"), "C:\\no such folder\\a.mp3");
    EXPECT_EQ(files_.FromNative("/"), "C:\\");
    EXPECT_EQ(files_.FromNative("//a//b"), "C:\\a\\b");
    EXPECT_EQ(files_.FromNative("C:\\a.mp3"), "C:\\a.mp3");
    EXPECT_EQ(files_.FromNative("a.mp3"), "a.mp3");
    EXPECT_EQ(files_.FromNative(""), "");
}

TEST_P(FilesContract, TheFirstDriveIsC) {
    const auto drives = files_.Drives();

    ASSERT_FALSE(drives.empty());
    EXPECT_EQ(drives.front().Letter, 'C');
    EXPECT_EQ(drives.front().Label, "");
}

TEST_P(FilesContract, TheApplicationFolderIsAFolderWithoutASeparatorAtItsEnd) {
    const std::string folder = files_.ApplicationFolder();

    EXPECT_TRUE(files_.IsFolder(folder));
    EXPECT_NE(base::Right(folder, 1), "\\");
    EXPECT_FALSE(files_.ApplicationFileName().empty());
}

}  // namespace contracts
