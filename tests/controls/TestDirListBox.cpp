#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/FolderLists.h"
#include "controls/ListBox.h"
#include "fakes/FakeFiles.h"

namespace controls {
namespace {

std::vector<std::string> Rows(const ListBox& list) {
    std::vector<std::string> rows;
    rows.reserve(static_cast<std::size_t>(list.ListCount()));
    for (int row = 0; row < list.ListCount(); ++row)
        rows.emplace_back(list.List(row));
    return rows;
}

fakes::FakeFiles MusicFolders() {
    fakes::FakeFiles files("C:\\Music");
    files.AddFile("C:\\Music\\a.mp3");
    files.AddFolder("C:\\Music\\rock\\live");
    files.AddFolder("C:\\Music\\Blues");
    files.AddFolder("C:\\Music\\.hidden");
    return files;
}

TEST(DirListBox, BeginsAtTheRootOfC) {
    const fakes::FakeFiles files = MusicFolders();

    const DirListBox folders("Dir1", files);

    EXPECT_EQ(folders.Path(), "C:\\");
    EXPECT_EQ(Rows(folders), (std::vector<std::string>{"C:\\", "   Music"}));
    EXPECT_EQ(folders.ListIndex(), 0);
    EXPECT_EQ(folders.ControlKind(), Kind::DirListBox);
}

TEST(DirListBox, ShowsTheWayDownAndTheFoldersBelow) {
    const fakes::FakeFiles files = MusicFolders();
    DirListBox folders("Dir1", files);

    EXPECT_TRUE(folders.SetPath("C:\\Music"));

    EXPECT_EQ(Rows(folders), (std::vector<std::string>{"C:\\", "   Music", "      Blues", "      rock"}));
    EXPECT_EQ(folders.ListIndex(), 1);
    EXPECT_EQ(folders.PathRow(), 1);
    EXPECT_EQ(folders.RowPath(0), "C:\\");
    EXPECT_EQ(folders.RowPath(3), "C:\\Music\\rock");
    EXPECT_EQ(folders.RowPath(4), "");
    EXPECT_EQ(folders.RowPath(-1), "");
}

TEST(DirListBox, ADoubleClickOpensTheSelectedRow) {
    const fakes::FakeFiles files = MusicFolders();
    DirListBox folders("Dir1", files);
    folders.SetPath("C:\\Music");
    int changes = 0;
    EventClaims claims;
    claims.Claim(folders.Change, [&changes] { ++changes; });
    folders.SetListIndex(3);

    folders.DblClick.Raise();

    EXPECT_EQ(folders.Path(), "C:\\Music\\rock");
    EXPECT_EQ(folders.ListIndex(), 2);
    EXPECT_EQ(changes, 1);
}

TEST(DirListBox, ADoubleClickOnARowAboveGoesBackUp) {
    const fakes::FakeFiles files = MusicFolders();
    DirListBox folders("Dir1", files);
    folders.SetPath("C:\\Music\\rock");
    folders.SetListIndex(0);

    folders.DblClick.Raise();

    EXPECT_EQ(folders.Path(), "C:\\");
}

TEST(DirListBox, ChoosingARowDoesNotChangeTheFolder) {
    const fakes::FakeFiles files = MusicFolders();
    DirListBox folders("Dir1", files);
    int changes = 0;
    EventClaims claims;
    claims.Claim(folders.Change, [&changes] { ++changes; });

    folders.SetListIndex(1);

    EXPECT_EQ(folders.Path(), "C:\\");
    EXPECT_EQ(changes, 0);
}

TEST(DirListBox, TheSameFolderIsReadAgainWithoutAChange) {
    fakes::FakeFiles files = MusicFolders();
    DirListBox folders("Dir1", files);
    files.AddFolder("C:\\Videos");
    int changes = 0;
    EventClaims claims;
    claims.Claim(folders.Change, [&changes] { ++changes; });

    EXPECT_TRUE(folders.SetPath("C:\\"));

    EXPECT_EQ(folders.ListCount(), 3);
    EXPECT_EQ(changes, 0);
}

TEST(DirListBox, PathsAreWrittenOneWay) {
    fakes::FakeFiles files = MusicFolders();
    files.AddDrive('D', "Stick");
    files.AddFolder("D:\\clips");
    DirListBox folders("Dir1", files);
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"c:/Music/rock/", "C:\\Music\\rock"},
        {"C:\\\\Music\\.\\rock\\..\\Blues", "C:\\Music\\Blues"},
        {"/Music", "C:\\Music"},
        {"D:", "D:\\"},
        {"D:\\clips\\", "D:\\clips"},
        {"/media/Stick/clips", "D:\\clips"},
        {"C:\\Music\\.hidden", "C:\\Music\\.hidden"},
    };

    for (const auto& [given, wanted] : cases) {
        EXPECT_TRUE(folders.SetPath(given)) << given;
        EXPECT_EQ(folders.Path(), wanted) << given;
    }
}

TEST(DirListBox, WhatIsNoFolderChangesNothing) {
    const fakes::FakeFiles files = MusicFolders();
    DirListBox folders("Dir1", files);
    folders.SetPath("C:\\Music");

    for (const char* path : {"C:\\Music\\a.mp3", "C:\\Music\\gone", "Q:\\", "rock", ""}) {
        EXPECT_FALSE(folders.SetPath(path)) << path;
    }

    EXPECT_EQ(folders.Path(), "C:\\Music");
    EXPECT_EQ(folders.ListCount(), 4);
}

TEST(DirListBox, AnUnreadableFolderShowsNoFoldersBelow) {
    fakes::FakeFiles files = MusicFolders();
    files.MakeUnreadable("C:\\Music");
    DirListBox folders("Dir1", files);

    EXPECT_TRUE(folders.SetPath("C:\\Music"));

    EXPECT_EQ(Rows(folders), (std::vector<std::string>{"C:\\", "   Music"}));
}

TEST(DirListBox, ARowWhoseFolderIsGoneOpensNothing) {
    fakes::FakeFiles files = MusicFolders();
    DirListBox folders("Dir1", files);
    folders.SetPath("C:\\Music");
    files.Remove("C:\\Music\\rock");

    EXPECT_FALSE(folders.OpenRow(3));
    EXPECT_FALSE(folders.OpenRow(9));
    EXPECT_FALSE(folders.OpenRow(-1));

    EXPECT_EQ(folders.Path(), "C:\\Music");
}

}  // namespace
}  // namespace controls
