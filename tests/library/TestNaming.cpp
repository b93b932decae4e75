#include "library/Naming.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "base/Text.h"
#include "fakes/FakeDialogs.h"
#include "fakes/FakeFiles.h"
#include "fakes/SeededStores.h"

namespace library {
namespace {

class FixedChance final : public ports::Chance {
public:
    explicit FixedChance(double value) : value_(value) {}
    double Below1() override { return value_; }

private:
    double value_;
};

TEST(Naming, APlayListFileEndsInMplInAnyCase) {
    EXPECT_TRUE(IsPlayListFile("C:\\lists\\Summer.MPL"));
    EXPECT_TRUE(IsPlayListFile("mpl"));

    EXPECT_FALSE(IsPlayListFile("C:\\lists\\Summer.mp3"));
    EXPECT_FALSE(IsPlayListFile("\"C:\\lists\\Summer.mpl\""));
    EXPECT_FALSE(IsPlayListFile("pl"));
    EXPECT_FALSE(IsPlayListFile(""));
}

TEST(Naming, MediaFilesAreThoseThatCanBePlayed) {
    for (const char* kind :
         {"mp3", "wma", "mpg", "wav", "wmv", "mid", "mp4", "m4a", "mov", "avi", "vob", "peg"}) {
        EXPECT_TRUE(IsMediaFile(std::string("C:\\a.") + kind)) << kind;
        EXPECT_TRUE(IsMediaFile(std::string("C:\\a.") + base::UCase(kind))) << kind;
    }
    for (const char* kind : {"ogg", "mpl", "txt", "midi", "flac", ""}) {
        EXPECT_FALSE(IsMediaFile(std::string("C:\\a.") + kind)) << kind;
    }
}

TEST(Naming, VideoFilesAreThoseWithPictures) {
    for (const char* kind : {"mpg", "peg", "mov", "wmv", "avi", "vob", "mp4"}) {
        EXPECT_TRUE(IsVideoFile(std::string("C:\\a.") + kind)) << kind;
    }
    for (const char* kind : {"mp3", "wma", "wav", "mid", "m4a"}) {
        EXPECT_FALSE(IsVideoFile(std::string("C:\\a.") + kind)) << kind;
    }
}

TEST(Naming, AScanTakesFewerKindsThanCanBePlayed) {
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

TEST(Naming, OnlyTheLastThreeLettersCount) {
    EXPECT_TRUE(IsMediaFile("C:\\holiday.jpeg"));
    EXPECT_TRUE(IsVideoFile("C:\\holiday.jpeg"));
    EXPECT_TRUE(IsMediaFile("C:\\clip.mpeg"));
    EXPECT_TRUE(IsMediaFile("C:\\nodotmp3"));
    EXPECT_TRUE(IsScanFile("mpg"));
}

TEST(Naming, AFolderIsNoFile) {
    fakes::FakeFiles files;
    files.AddFile("C:\\music\\a.mp3");
    files.AddFolder("C:\\dbMedia.mdb");

    EXPECT_TRUE(FileExists(files, "C:\\music\\a.mp3"));
    EXPECT_FALSE(FileExists(files, "C:\\dbMedia.mdb"));
    EXPECT_FALSE(FileExists(files, "C:\\music"));
    EXPECT_FALSE(FileExists(files, "C:\\music\\b.mp3"));
    EXPECT_FALSE(FileExists(files, ""));
}

TEST(Naming, TheFileNameIsWhatStandsBehindTheLastSeparator) {
    EXPECT_EQ(FileNameOf("C:\\music\\song.mp3"), "song.mp3");
    EXPECT_EQ(FileNameOf("C:/music/song.mp3"), "song.mp3");
    EXPECT_EQ(FileNameOf("C:\\music/new\\song.mp3"), "song.mp3");
    EXPECT_EQ(FileNameOf("C:\\music\\new/song.mp3"), "song.mp3");
    EXPECT_EQ(FileNameOf("song.mp3"), "song.mp3");
    EXPECT_EQ(FileNameOf("C:\\music\\"), "");
    EXPECT_EQ(FileNameOf(""), "");
}

TEST(Naming, AShortPathIsExpandedNameByName) {
    fakes::FakeFiles files;
    fakes::FakeDialogs dialogs;
    files.AddFile("C:\\My Music\\The Best\\a song.mp3");
    const std::string short_path = files.GetShortPathName("C:\\My Music\\The Best\\a song.mp3");

    const std::string path = ExpandLongPath(short_path, files, dialogs);

    EXPECT_EQ(short_path.find(' '), std::string::npos);
    EXPECT_EQ(path, "C:\\My Music\\The Best\\a song.mp3");
    EXPECT_TRUE(dialogs.Boxes.empty());
}

TEST(Naming, APathWithATildeInARealNameStays) {
    fakes::FakeFiles files;
    fakes::FakeDialogs dialogs;
    files.AddFile("C:\\music\\song~1.mp3");

    const std::string path = ExpandLongPath("C:\\music\\song~1.mp3", files, dialogs);

    EXPECT_EQ(path, "C:\\music\\song~1.mp3");
    EXPECT_TRUE(dialogs.Boxes.empty());
}

TEST(Naming, AMissingNameShowsThePathAndLeavesItAsItIs) {
    fakes::FakeFiles files;
    fakes::FakeDialogs dialogs;
    files.AddFolder("C:\\music");

    const std::string path = ExpandLongPath("C:\\music\\GONE~1.MP3", files, dialogs);

    EXPECT_EQ(path, "C:\\music\\GONE~1.MP3");
    ASSERT_EQ(dialogs.Boxes.size(), 1U);
    EXPECT_EQ(dialogs.Boxes[0].text, "/music/GONE~1.MP3");
    EXPECT_EQ(dialogs.Boxes[0].title, "");
    EXPECT_EQ(dialogs.Boxes[0].buttons, ports::BoxButtons::Ok);
    EXPECT_EQ(dialogs.Boxes[0].icon, ports::BoxIcon::None);
}

TEST(Naming, AMissingFolderOnTheWayShowsOneBox) {
    fakes::FakeFiles files;
    fakes::FakeDialogs dialogs;

    const std::string path = ExpandLongPath("C:\\a~1\\b~1\\c~1.mp3", files, dialogs);

    EXPECT_EQ(path, "C:\\a~1\\b~1\\c~1.mp3");
    EXPECT_EQ(dialogs.Boxes.size(), 1U);
}

TEST(Naming, EachWordGetsACapitalAndABlankBehindIt) {
    EXPECT_EQ(ProperCaseWords("back in BLACK"), "Back In Black ");
    EXPECT_EQ(ProperCaseWords("AC-DC"), "Ac-dc ");
    EXPECT_EQ(ProperCaseWords("\xC3\xA9milie \xC3\x89TOILE"), "\xC3\x89milie \xC3\x89toile ");
    EXPECT_EQ(ProperCaseWords("a"), "A ");
    EXPECT_EQ(ProperCaseWords(""), "");
}

TEST(Naming, ABracketSharesTheCapitalWithItsNeighbour) {
    EXPECT_EQ(ProperCaseWords("(live"), "(Live ");
    EXPECT_EQ(ProperCaseWords("-remix"), "-Remix ");
    EXPECT_EQ(ProperCaseWords("[VIDEO]"), "[Video] ");
    EXPECT_EQ(ProperCaseWords(")x ]y !z"), ")X ]Y !Z ");
    EXPECT_EQ(ProperCaseWords("( -"), "( - ");
    EXPECT_EQ(ProperCaseWords("{live"), "{live ");
}

TEST(Naming, WordsBeyondTheFiftyFirstAreDropped) {
    std::string text;
    for (int word = 0; word < 60; ++word)
        text += "w ";

    const std::string result = ProperCaseWords(text);

    EXPECT_EQ(base::Split(result, " ").size(), 51U + 1U);
    EXPECT_EQ(result.size(), 51U * 2U);
}

TEST(Naming, TwoBlanksKeepTheirEmptyWord) {
    EXPECT_EQ(ProperCaseWords("a  b"), "A  B ");
}

struct NameCase {
    const char* path;
    const char* artist;
    const char* title;
};

TEST(Naming, ANameIsSplitAtTheFirstSeparator) {
    const NameCase cases[] = {
        {"C:\\m\\track.mp3", "Unknown", "track"},
        {"C:\\m\\Abba - Waterloo.mp3", "Abba", "Waterloo"},
        {"C:\\m\\Abba - Waterloo - Live.mp3", "Abba", "Waterloo - Live"},
        {"C:\\m\\AC-DC.mp3", "Unknown", "AC-DC"},
        {"C:\\m\\ - x.mp3", "", "x"},
        {"C:\\x - y\\track.mp3", "Unknown", "track"},
        {"track.mpeg", "Unknown", "track"},
        {"C:\\m\\Mr. Big - To be.with.you.mp3", "Mr. Big", "To be.with.you"},
        {"C:\\m\\No extension at all", "Unknown", "No extension at all"},
        {"C:\\m\\one.dot far away", "Unknown", "one.dot far away"},
        {"C:\\m\\a - .mp3", "a", ""},
        {"a.b", "Unknown", "a"},
        {"", "Unknown", ""},
    };

    for (const NameCase& one : cases) {
        const SongName name = SongNameFromPath(one.path);
        EXPECT_EQ(name.artist, one.artist) << one.path;
        EXPECT_EQ(name.title, one.title) << one.path;
    }
}

TEST(Naming, StandInsOfANameBecomeReadable) {
    const std::string path = "C:\\m\\" + base::NameToText("Bj\xF6rk - a\\b.mp3");

    const SongName name = SongNameFromPath(path);

    EXPECT_EQ(name.artist, "Bj\xC3\xB6rk");
    EXPECT_EQ(name.title, "a\\b");
}

TEST(Naming, ASongIsCleanedOnItsWayIntoTheLibrary) {
    const std::string path = "C:\\m\\AC-DC & friends - Back.in.black.mp3";

    const auto name = CleanSongName(path, SongNameFromPath(path));

    ASSERT_TRUE(name.has_value());
    EXPECT_EQ(name->artist, "Ac-dc + Friends");
    EXPECT_EQ(name->title, "Back In Black");
}

TEST(Naming, CleaningReplacesInItsOrder) {
    const NameCase cases[] = {
        {"a.mp3", "a&b", "c&&d"},      // no blanks come with the plus
        {"a.mp3", "a*b!c.d", "x"},     // each becomes one blank
        {"a.mp3", "a..b", "a...b"},    // two blanks become one, once
        {"a.mp3", "  a  ", "!bang!"},  // trimmed at the end
    };
    const NameCase wanted[] = {
        {"", "A+b", "C++d"}, {"", "A B C D", "X"}, {"", "A B", "A  B"}, {"", "A", "Bang"}};

    for (std::size_t i = 0; i < std::size(cases); ++i) {
        const auto name = CleanSongName(cases[i].path, {cases[i].artist, cases[i].title});
        ASSERT_TRUE(name.has_value());
        EXPECT_EQ(name->artist, wanted[i].artist);
        EXPECT_EQ(name->title, wanted[i].title);
    }
}

TEST(Naming, AScannedVideoIsMarked) {
    const auto name = CleanSongName("C:\\a.mpg", {"Unknown", "holiday"});

    ASSERT_TRUE(name.has_value());
    EXPECT_EQ(name->title, "Holiday [Video]");
}

TEST(Naming, AFileThatAScanDoesNotTakeIsRefused) {
    EXPECT_FALSE(CleanSongName("C:\\a.mp4", {"x", "y"}).has_value());
    EXPECT_FALSE(CleanSongName("C:\\a.txt", {"x", "y"}).has_value());
    EXPECT_FALSE(CleanSongName("", {"x", "y"}).has_value());
}

TEST(Naming, TheLibraryHoldsEightyCharactersOfANameAnd255OfAPath) {
    const std::string eighty = base::Replace(std::string(80, 'x'), "x", "\xC3\xA9");
    const std::string longest_path(255, 'p');

    EXPECT_TRUE(FitsLibrary(longest_path, {eighty, eighty}));
    EXPECT_TRUE(FitsLibrary(" " + longest_path + " ", {" " + eighty + " ", eighty + " "}));
    EXPECT_FALSE(FitsLibrary(longest_path, {eighty + "x", eighty}));
    EXPECT_FALSE(FitsLibrary(longest_path, {eighty, eighty + "x"}));
    EXPECT_FALSE(FitsLibrary(longest_path + "p", {eighty, eighty}));
}

TEST(Naming, ARandomIndexIsRoundedSoThatTheCountComesOutToo) {
    FixedChance lowest(0.0);
    FixedChance middle(0.5);
    FixedChance highest(0.9999999);

    EXPECT_EQ(RandomIndex(10, lowest), 0);
    EXPECT_EQ(RandomIndex(10, middle), 5);
    EXPECT_EQ(RandomIndex(5, middle), 2);  // 2.5 goes to the even neighbour
    EXPECT_EQ(RandomIndex(10, highest), 10);
    EXPECT_EQ(RandomIndex(0, highest), 0);
}

TEST(Naming, ASongKeyLeadsToThePathOfTheFirstRowThatHasIt) {
    fakes::SeededStores stores;
    stores.Seed("tblSong", {{"1", "A", "a", "C:\\a.mp3", "0"},
                            {" 7 ", "B", "b", "C:\\b.mp3", "0"},
                            {"7", "C", "c", "C:\\c.mp3", "0"}});
    const auto datSong = stores.OpenTable("tblSong");
    datSong->Recordset().MoveLast();

    EXPECT_EQ(SongPathFromId(*datSong, "7"), "C:\\b.mp3");
    EXPECT_EQ(SongPathFromId(*datSong, "1"), "C:\\a.mp3");
    EXPECT_EQ(SongPathFromId(*datSong, "2"), "");
    EXPECT_EQ(SongPathFromId(*datSong, ""), "");
}

TEST(Naming, AnUnboundSourceHasNoSongs) {
    store::DataSource datSong("datSong");

    EXPECT_EQ(SongPathFromId(datSong, "1"), "");
}

}  // namespace
}  // namespace library
