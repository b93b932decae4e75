#include <gtest/gtest.h>

#include <string>

#include "base/MediaKinds.h"
#include "base/Text.h"

namespace base {
namespace {

TEST(MediaKinds, APlayListFileEndsInMplInAnyCase) {
    EXPECT_TRUE(IsPlayListFile("C:\\lists\\Summer.MPL"));
    EXPECT_TRUE(IsPlayListFile("mpl"));

    EXPECT_FALSE(IsPlayListFile("C:\\lists\\Summer.mp3"));
    EXPECT_FALSE(IsPlayListFile("\"C:\\lists\\Summer.mpl\""));
    EXPECT_FALSE(IsPlayListFile("pl"));
    EXPECT_FALSE(IsPlayListFile(""));
}

TEST(MediaKinds, MediaFilesAreThoseThatCanBePlayed) {
    for (const char* kind :
         {"mp3", "wma", "mpg", "wav", "wmv", "mid", "mp4", "m4a", "mov", "avi", "vob", "peg"}) {
        EXPECT_TRUE(IsMediaFile(std::string("C:\\a.") + kind)) << kind;
        EXPECT_TRUE(IsMediaFile(std::string("C:\\a.") + UCase(kind))) << kind;
    }
    for (const char* kind : {"ogg", "mpl", "txt", "midi", "flac", ""}) {
        EXPECT_FALSE(IsMediaFile(std::string("C:\\a.") + kind)) << kind;
    }
}

TEST(MediaKinds, VideoFilesAreThoseWithPictures) {
    for (const char* kind : {"mpg", "peg", "mov", "wmv", "avi", "vob", "mp4"}) {
        EXPECT_TRUE(IsVideoFile(std::string("C:\\a.") + kind)) << kind;
    }
    for (const char* kind : {"mp3", "wma", "wav", "mid", "m4a"}) {
        EXPECT_FALSE(IsVideoFile(std::string("C:\\a.") + kind)) << kind;
    }
}

TEST(MediaKinds, AScanTakesFewerKindsThanCanBePlayed) {
    for (const char* kind : {"mp3", "wma", "wav", "mid"}) {
        EXPECT_TRUE(IsScanAudioFile(std::string("C:\\a.") + kind)) << kind;
        EXPECT_FALSE(IsScanVideoFile(std::string("C:\\a.") + kind)) << kind;
    }
    for (const char* kind : {"mpg", "peg", "wmv", "avi"}) {
        EXPECT_TRUE(IsScanVideoFile(std::string("C:\\a.") + kind)) << kind;
        EXPECT_FALSE(IsScanAudioFile(std::string("C:\\a.") + kind)) << kind;
    }
    for (const char* kind : {"mp4", "m4a", "mov", "vob"}) {
        EXPECT_FALSE(IsScanFile(std::string("C:\\a.") + kind)) << kind;
    }
}

TEST(MediaKinds, OnlyTheLastThreeLettersCount) {
    EXPECT_TRUE(IsMediaFile("C:\\holiday.jpeg"));
    EXPECT_TRUE(IsVideoFile("C:\\holiday.jpeg"));
    EXPECT_TRUE(IsMediaFile("C:\\clip.mpeg"));
    EXPECT_TRUE(IsMediaFile("C:\\nodotmp3"));
    EXPECT_TRUE(IsScanFile("mpg"));
}

TEST(MediaKinds, TheFileNameIsWhatIsAfterTheLastSeparator) {
    EXPECT_EQ(FileNameOf("C:\\music\\song.mp3"), "song.mp3");
    EXPECT_EQ(FileNameOf("C:/music/song.mp3"), "song.mp3");
    EXPECT_EQ(FileNameOf("C:\\music/new\\song.mp3"), "song.mp3");
    EXPECT_EQ(FileNameOf("C:\\music\\new/song.mp3"), "song.mp3");
    EXPECT_EQ(FileNameOf("song.mp3"), "song.mp3");
    EXPECT_EQ(FileNameOf("C:\\music\\"), "");
    EXPECT_EQ(FileNameOf(""), "");
}

TEST(MediaKinds, ListsOfOtherPlayersAreKnownByTheirWholeExtension) {
    for (const char* path : {"C:\\a.m3u", "C:\\a.M3U8", "/home/a.b.pls", "a.Xspf"})
        EXPECT_TRUE(IsForeignPlayListFile(path)) << path;
    for (const char* path : {"C:\\a.mpl", "C:\\a.am3u", "C:\\m3u", "C:\\a.m3u\\b", "m3u", "", "a.m3u8x"})
        EXPECT_FALSE(IsForeignPlayListFile(path)) << path;
}

TEST(MediaKinds, TheExtensionIsTheTextAfterTheLastDotOfTheName) {
    EXPECT_EQ(ExtensionOf("C:\\a.b\\Song.One.MP3"), "mp3");
    EXPECT_EQ(ExtensionOf("C:\\a.mp3\\song"), "");
    EXPECT_EQ(ExtensionOf("C:/a.mp3/song"), "");
    EXPECT_EQ(ExtensionOf("song."), "");
    EXPECT_EQ(ExtensionOf(".mp3"), "mp3");
    EXPECT_EQ(ExtensionOf(""), "");
}

TEST(MediaKinds, PegStandsForEveryExtensionThatEndsInIt) {
    constexpr std::array<std::string_view, 2> kKinds{"mp3", "peg"};

    for (const char* path : {"a.peg", "a.mpeg", "a.JPEG", "a.mp3"})
        EXPECT_TRUE(HasExtension(path, kKinds)) << path;
    for (const char* path : {"a.xmp3", "a.mpg", "peg", "C:\\a.b\\peg", "a"})
        EXPECT_FALSE(HasExtension(path, kKinds)) << path;
    EXPECT_FALSE(HasExtension("a.mpeg", std::array<std::string_view, 1>{"mp3"}));
}

}  // namespace
}  // namespace base
