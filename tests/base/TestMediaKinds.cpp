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

}  // namespace
}  // namespace base
