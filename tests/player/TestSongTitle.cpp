#include <gtest/gtest.h>

#include "player/SongTitle.h"

namespace {

using player::CaptionOf;
using player::TitleOfFile;

TEST(SongTitle, SplitsAtTheFirstDashBetweenBlanks) {
    const auto song = TitleOfFile("The Owls - Night - Jar.mp3", false);

    EXPECT_EQ(song.artist, "The Owls ");
    EXPECT_EQ(song.title, "Night - Jar");
    EXPECT_EQ(CaptionOf(song), "The Owls - Night - Jar");
}

TEST(SongTitle, NamesAFileWithoutADashUnknown) {
    const auto song = TitleOfFile("track.mp3", false);

    EXPECT_EQ(song.artist, "Unknown");
    EXPECT_EQ(CaptionOf(song), "Unknown - track");
}

TEST(SongTitle, MarksAVideo) {
    EXPECT_EQ(CaptionOf(TitleOfFile("Owls - Fly.avi", true)), "Owls - Fly [Video]");
}

TEST(SongTitle, KeepsATitleThatIsShorterThanAnExtension) {
    EXPECT_EQ(TitleOfFile("mp3", false).title, "mp3");
}

TEST(SongTitle, CutsFourCharactersWhateverTheyAre) {
    EXPECT_EQ(TitleOfFile("Owls - Fly.mpeg", false).title, "Fly.");
}

TEST(SongTitle, CountsCharactersNotBytes) {
    const auto song = TitleOfFile("Ärzte - Größe.mp3", false);

    EXPECT_EQ(song.artist, "Ärzte ");
    EXPECT_EQ(song.title, "Größe");
}

TEST(SongTitle, TakesALeadingDashAsAnArtistOfOneBlank) {
    const auto song = TitleOfFile(" - Fly.mp3", false);

    EXPECT_EQ(song.artist, " ");
    EXPECT_EQ(CaptionOf(song), " - Fly");
}

}  // namespace
