#include "library/PlayListFile.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"
#include "fakes/FakeFiles.h"

namespace {

using library::ListedSong;
using library::NamesInLine;
using Texts = std::vector<std::string>;

class PlayListFileTest : public testing::Test {
protected:
    std::vector<ListedSong> Read(std::string_view path, std::string_view bytes) {
        return library::ReadPlayListFile(path, bytes, files);
    }
    Texts Lines(std::string_view path, std::string_view bytes) {
        Texts lines;
        for (const ListedSong& song : Read(path, bytes))
            lines.push_back(song.line);
        return lines;
    }
    /// The places of the only song in the list.
    Texts Paths(std::string_view path, std::string_view bytes) {
        const auto songs = Read(path, bytes);
        return songs.size() == 1 ? songs[0].paths : Texts{"not one song"};
    }
    static std::string Repeated(std::string_view line, int count) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text.append(line);
        return text;
    }

    fakes::FakeFiles files;
};

TEST_F(PlayListFileTest, EveryLineEndAndNoneAtTheEndAreUnderstood) {
    for (const char* bytes : {"a - b\r\nc\r\n\r\n", "a - b\nc\n", "a - b\rc", "\r\n\n\ra - b\n\r\nc"})
        EXPECT_EQ(Lines("C:\\x.mpl", bytes), (Texts{"a - b", "c"})) << bytes;
}

TEST_F(PlayListFileTest, LinesAreTrimmedAndBlankOnesSkipped) {
    EXPECT_EQ(Lines("C:\\x.mpl", "  a - b  \n   \n\n \t\n"), (Texts{"a - b", "\t"}));
    EXPECT_TRUE(Read("C:\\x.mpl", "").empty());
    EXPECT_TRUE(Read("C:\\x.mpl", " \r\n \r\n").empty());
}

TEST_F(PlayListFileTest, AThousandLinesAreReadAndTheRestIsLost) {
    EXPECT_EQ(Read("C:\\x.mpl", Repeated("a - b\r\n", 1000)).size(), 1000U);
    const auto songs = Read("C:\\x.mpl", Repeated("a\r\n \r\n", 1000) + "the thousand and first\r\nb");
    EXPECT_EQ(songs.size(), 1000U);
    EXPECT_EQ(songs.back().line, "a");
}

TEST_F(PlayListFileTest, AnOwnListIsWindows1252OrMarkedUtf8) {
    EXPECT_EQ(Lines("C:\\x.mpl", "Bj\xF6rk - \x80"), Texts{"Bj\u00F6rk - \u20AC"});
    EXPECT_EQ(Lines("C:\\x.mpl", "\xEF\xBB\xBF\u0416 - \u00F6"), Texts{"\u0416 - \u00F6"});
    EXPECT_EQ(Lines("C:\\x.mpl", "\xC3\xB6"), Texts{"\u00C3\u00B6"});
}

TEST_F(PlayListFileTest, AnOwnListNamesNoPlaces) {
    for (const char* line : {"/Music/a.mp3", "#EXTINF:1,a - b", "File1=a.mp3", "<track/>"}) {
        const auto songs = Read("C:\\x.MPL", line);
        ASSERT_EQ(songs.size(), 1U);
        EXPECT_EQ(songs[0].line, line);
        EXPECT_TRUE(songs[0].paths.empty());
    }
}

TEST_F(PlayListFileTest, AnEndlessLineIsCut) {
    std::string endless;
    endless.assign(10'000'000, 'x');

    const auto songs = Read("C:\\x.mpl", "a - b\n" + endless + "\nc - d");

    ASSERT_EQ(songs.size(), 3U);
    EXPECT_EQ(base::Len(songs[1].line), library::kLongestLine);
    EXPECT_EQ(songs[2].line, "c - d");
}

TEST_F(PlayListFileTest, AnyBytesAreRead) {
    std::string bytes;
    for (int i = 0; i < 4096; ++i)
        bytes += static_cast<char>((i * 37 + i / 251) & 0xFF);
    for (const char* path : {"C:\\x.mpl", "C:\\x.m3u", "C:\\x.m3u8", "C:\\x.pls", "C:\\x.xspf"}) {
        for (const ListedSong& song : Read(path, bytes)) {
            EXPECT_FALSE(song.line.empty()) << path;
            EXPECT_LE(base::Len(song.line), library::kLongestLine) << path;
        }
    }
    EXPECT_EQ(Read("C:\\x.mpl", std::string_view("\xFF\xFE"
                                                 "a\0 \0\n\0",
                                                 8))
                  .size(),
              2U);
}

TEST_F(PlayListFileTest, NamesAreSplitAtTheFirstSeparator) {
    const struct {
        const char* line;
        const char* artist;
        const char* title;
    } cases[] = {{"Foo - Bar", "Foo", "Bar"},
                 {"Foo - Bar - Baz", "Foo", "Bar - Baz"},
                 {"Foo-Bar", "Unknown", "Foo-Bar"},
                 {"Foo   -   Bar", "Foo", "Bar"},
                 {" - Bar", "", "Bar"},
                 {"Foo - ", "Foo", ""}};

    for (const auto& one : cases) {
        EXPECT_EQ(NamesInLine(one.line).artist, one.artist) << one.line;
        EXPECT_EQ(NamesInLine(one.line).title, one.title) << one.line;
    }
}

TEST_F(PlayListFileTest, AnM3uNamesItsSongsInHeadersOrByTheirFiles) {
    EXPECT_EQ(
        Lines(
            "C:\\x.m3u",
            "#EXTM3U\r\n#EXTINF:213,Foo - Bar\r\na.mp3\r\n# remark\r\n#EXTINF:-1 logo=\"a,b\" g=\"c\",Far\r\n"
            "#EXTGRP:x\r\n\r\nb.mp3\r\nMusic\\Lark - "
            "Post.mp3\r\n#EXTINF:1,\r\nhttp://one.example/c%20d.mp3\r\n"),
        (Texts{"Foo - Bar", "Far", "Lark - Post", "c d"}));
}

TEST_F(PlayListFileTest, PlacesAreCountedFromTheListsOwnFolder) {
    const struct {
        const char* place;
        const char* path;
    } cases[] = {{"a.mp3", "C:\\Lists\\In\\a.mp3"},
                 {"Sub/b c.mp3", "C:\\Lists\\In\\Sub\\b c.mp3"},
                 {"..\\a.mp3", "C:\\Lists\\a.mp3"},
                 {".././../../a.mp3", "C:\\a.mp3"},
                 {"/home/./x//a.mp3", "C:\\home\\x\\a.mp3"},
                 {"c:/Music/a.mp3", "C:\\Music\\a.mp3"},
                 {"D:\\Music\\..\\a.mp3", "D:\\a.mp3"},
                 {"\\Music\\a.mp3", "C:\\Music\\a.mp3"},
                 {"file:///home/a%20b.mp3", "C:\\home\\a b.mp3"},
                 {"file:///C:/a.mp3", "C:\\a.mp3"},
                 {"C:a.mp3", "C:\\Lists\\In\\C:a.mp3"}};

    for (const auto& one : cases)
        EXPECT_EQ(Paths("C:\\Lists\\In\\x.m3u", one.place), Texts{one.path}) << one.place;
    EXPECT_TRUE(Paths("C:\\x.m3u", "http://one.example/a.mp3").empty());
    EXPECT_TRUE(Paths("C:\\x.m3u", "file://server/a.mp3").empty());
    EXPECT_EQ(Paths("C:\\x.m3u", "file:file:file:a.mp3"), Texts{"C:\\file:file:a.mp3"});
}

TEST_F(PlayListFileTest, AMountedVolumeIsFoundByItsNativePath) {
    files.AddDrive('D', "Stick");

    EXPECT_EQ(Paths("C:\\x.m3u", "/media/Stick/a.mp3"), Texts{"D:\\a.mp3"});
}

TEST_F(PlayListFileTest, ForeignListsAreUtf8OrElseWindows1252) {
    EXPECT_EQ(Lines("C:\\x.m3u", "\xEF\xBB\xBF\u00F6.mp3"), Texts{"\u00F6"});
    EXPECT_EQ(Paths("C:\\x.m3u8", "\u00F6.mp3"), Texts{"C:\\\u00F6.mp3"});
    EXPECT_EQ(Lines("C:\\x.m3u", "\xF6.mp3"), Texts{"\u00F6"});
    // A file may have a name of just these bytes, or of these letters.
    EXPECT_EQ(Paths("C:\\x.m3u", "/\xF6.mp3"), (Texts{"C:\\\uF0F6.mp3", "C:\\\u00F6.mp3"}));
    EXPECT_EQ(Paths("C:\\x.m3u", "\xF6.mp3"), (Texts{"C:\\\uF0F6.mp3", "C:\\\u00F6.mp3"}));
}

TEST_F(PlayListFileTest, APlsIsReadInTheOrderOfItsNumbers) {
    const auto songs = Read("C:\\L\\x.PLS",
                            "[playlist]\nNumberOfEntries=3\nFile10=c.mp3\nTitle2=Foo - Bar\nfile2 = b.mp3 \n"
                            "File1=a.mp3\nLength1=9\nTitle1=\nTitle7=Alone\nFileX=z\nVersion=2\nFile=\n");

    ASSERT_EQ(songs.size(), 4U);
    EXPECT_EQ(songs[0].line, "a");
    EXPECT_EQ(songs[0].paths, Texts{"C:\\L\\a.mp3"});
    EXPECT_EQ(songs[1].line, "Foo - Bar");
    EXPECT_EQ(songs[1].paths, Texts{"C:\\L\\b.mp3"});
    EXPECT_EQ(songs[2].line, "Alone");
    EXPECT_TRUE(songs[2].paths.empty());
    EXPECT_EQ(songs[3].line, "c");
}

TEST_F(PlayListFileTest, AnXspfIsReadWithItsEntitiesAndPlaces) {
    const auto songs = Read("C:\\L\\x.xspf", R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE playlist [<!ELEMENT a ANY>]>
<playlist version="1" xmlns="http://xspf.org/ns/0/"><title>The list</title><creator>Me</creator>
 <trackList>
  <track><location>file:///home/a%20b.mp3</location><creator>Foo &amp; Co</creator>
   <title>Bar &#x26; &#233;</title><extension><title>Not this</title><location>x</location></extension></track>
  <!-- <track><title>Nor this</title></track> -->
  <x:track><x:title attr="a>b"><![CDATA[<Two>]]></x:title><x:location>Sub/c%C3%A9.mp3</x:location>
   <x:location>second.mp3</x:location></x:track>
  <track/>
  <track><location>d.mp3</location></track>
  <track><title>  In
	lines </title><creator></creator></track>
  <track><creator>No title</creator><location>http://one.example/e.mp3</location></track>
 </trackList></playlist>)");

    ASSERT_EQ(songs.size(), 5U);
    EXPECT_EQ(songs[0].line, "Foo & Co - Bar & \u00E9");
    EXPECT_EQ(songs[0].paths, Texts{"C:\\home\\a b.mp3"});
    EXPECT_EQ(songs[1].line, "<Two>");
    EXPECT_EQ(songs[1].paths, Texts{"C:\\L\\Sub\\c\u00E9.mp3"});
    EXPECT_EQ(songs[2].line, "d");
    EXPECT_EQ(songs[3].line, "In  lines");
    EXPECT_EQ(songs[4].line, "e");
    EXPECT_TRUE(songs[4].paths.empty());
}

TEST_F(PlayListFileTest, ABrokenXspfGivesWhatCanBeReadOfIt) {
    EXPECT_EQ(Lines("C:\\x.xspf", "<track><title>One</title></track><track><title>Two"), Texts{"One"});
    EXPECT_EQ(Lines("C:\\x.xspf", "<track><title>a & b &lt &bogus; &#0; &#xD800; &amp;amp;</title></track>"),
              Texts{"a & b &lt &bogus; &#0; &#xD800; &amp;"});
    EXPECT_EQ(Lines("C:\\x.xspf", "</x></y><track><title>One</title></track>"), Texts{"One"});
    EXPECT_TRUE(Lines("C:\\x.xspf", "<track><title>One</title").empty());
    EXPECT_TRUE(Lines("C:\\x.xspf", "a - b\nc - d").empty());
    EXPECT_EQ(Lines("C:\\x.xspf", "<track><title>\xF6</title></track>"), Texts{"\u00F6"});
}

TEST_F(PlayListFileTest, AHundredThousandSongsOfAForeignListAreRead) {
    EXPECT_EQ(Read("C:\\x.m3u", Repeated("a.mp3\n", 1001)).size(), 1001U);
    EXPECT_EQ(Read("C:\\x.m3u", Repeated("a\n", 100'001)).size(), 100'000U);
    EXPECT_EQ(Read("C:\\x.xspf", Repeated("<track><title>a</title></track>", 100'001)).size(), 100'000U);
}

}  // namespace
