// The row that a file becomes: its key, its limits, its texts.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "library/AddMediaDialog.h"

namespace {

using library_tests::AddMediaDialog;
using SongRows = std::vector<fakes::SeededStores::Row>;

class AddMediaRowsTest : public testing::Test, protected AddMediaDialog {
protected:
    std::string Add(std::string_view path, std::string_view artist, std::string_view title) {
        std::string rejected;
        Room.addfile(path, artist, title, rejected);
        return rejected;
    }
};

TEST_F(AddMediaRowsTest, KeysGoOnFromTheLastRow) {
    Stores.Seed("tblSong", {{"7", "a", "b", "C:\\c.mp3", ""}, {"3", "a", "b", "C:\\d.mp3", ""}});

    Add("C:\\Music\\song.mp3", "Lark", "Post");

    EXPECT_EQ(Songs().back()[0], "4");
    EXPECT_EQ(Form.lblEntryCount.Caption(), "4");
}

TEST_F(AddMediaRowsTest, AnEmptyTableBeginsAtOneEvenAfterARefusal) {
    Add("C:\\Music\\song.mp3", "Lark", std::string(81, 'x'));

    Add("C:\\Music\\song.mp3", "Lark", "Post");

    EXPECT_EQ(Songs(), (SongRows{{"1", "Lark", "Post", "C:\\Music\\song.mp3", ""}}));
}

TEST_F(AddMediaRowsTest, TheLimitsAreThoseOfTheTable) {
    const std::string path = "C:\\Music\\song.mp3";
    const auto path_of = [](std::size_t length) { return "C:\\" + std::string(length - 7, 'p') + ".mp3"; };

    EXPECT_EQ(Add(path, "Lark", std::string(80, 'x')), "");
    EXPECT_EQ(Add(path, std::string(80, 'x'), "Post"), "");
    EXPECT_EQ(Add(path_of(255), "Lark", "Post"), "");
    EXPECT_EQ(Add(path, "Lark", std::string(81, 'x')), path + "\r\n");
    EXPECT_EQ(Add(path, std::string(81, 'x'), "Post"), path + "\r\n");
    EXPECT_EQ(Add(path_of(256), "Lark", "Post"), path_of(256) + "\r\n");
    EXPECT_EQ(Songs().size(), 3U);
}

TEST_F(AddMediaRowsTest, LettersAreCountedNotBytes) {
    std::string title;
    for (int i = 0; i < 80; ++i)
        title += "\u00e9";

    EXPECT_EQ(Add("C:\\Music\\song.mp3", "Lark", title), "");
}

TEST_F(AddMediaRowsTest, TheMarkOfAVideoCountsToItsTitle) {
    EXPECT_EQ(Add("C:\\clip.avi", "Lark", std::string(72, 'x')), "");
    EXPECT_EQ(Add("C:\\clip.avi", "Lark", std::string(73, 'x')), "C:\\clip.avi\r\n");
}

TEST_F(AddMediaRowsTest, APathWithoutAScanExtensionIsLeftOutInSilence) {
    const std::string rejected = Add("C:\\Music\\movie.mp4", "Lark", "Post");

    EXPECT_EQ(rejected, "");
    EXPECT_TRUE(Songs().empty());
}

TEST_F(AddMediaRowsTest, BlanksAroundThePathAreCut) {
    Add("  C:\\Music\\song.mp3", "Lark", "Post");

    EXPECT_EQ(Songs()[0][3], "C:\\Music\\song.mp3");
}

TEST_F(AddMediaRowsTest, AFileCanBeAddedBeforeTheDialogWasEverShown) {
    Add("C:\\Music\\song.mp3", "Lark", "Post");

    EXPECT_EQ(Songs().size(), 1U);
    EXPECT_TRUE(Form.frmAddMedia.IsLoaded());
}

}  // namespace
