#include "library/Naming.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <set>
#include <string>
#include <string_view>

#include "base/Text.h"
#include "fakes/FakeDialogs.h"
#include "fakes/FakeFiles.h"

namespace library {
namespace {

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

// Words of ASCII alone are cased byte by byte, all others character by character.
TEST(Naming, EveryWordIsCasedAlikeWithAndWithoutOtherLetters) {
    EXPECT_EQ(ProperCaseWords("@[`{az AZ"), "@[`{az Az ");
    EXPECT_EQ(ProperCaseWords("ZZ\xC3\x89 zz"), "Zz\xC3\xA9 Zz ");
    EXPECT_EQ(ProperCaseWords("(\xC3\xA9TE (eTE"), "(\xC3\x89te (Ete ");
    EXPECT_EQ(ProperCaseWords("\xFF"
                              "AB AB"),
              "\xFF"
              "ab Ab ");
    EXPECT_EQ(ProperCaseWords("!"), "! ");
}

TEST(Naming, TheLongestNamesAreCountedInCharacters) {
    std::string letters;
    for (int i = 0; i < 80; ++i)
        letters += "\xC3\xA9";
    EXPECT_TRUE(library::FitsLibrary("C:\\a.mp3", {letters, std::string(80, 'x')}));
    EXPECT_FALSE(library::FitsLibrary("C:\\a.mp3", {letters + "x", "x"}));
    EXPECT_FALSE(library::FitsLibrary("C:\\a.mp3", {"x", std::string(81, 'x')}));
    EXPECT_TRUE(library::FitsLibrary("C:\\a.mp3", {"x", std::string(80, 'x') + "   "}));
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

std::string RandomName(std::mt19937& random) {
    static constexpr std::array<std::string_view, 16> kPieces = {
        "a", "B", " ",      " ",      "&",    ".",         "*",  "!",
        "(", "-", "\u00e9", "\u00c9", "\xff", "Two words", "  ", "[x"};
    std::string name;
    for (auto pieces = random() % 12; pieces > 0; --pieces)
        name += kPieces[random() % kPieces.size()];
    return name;
}

// Word by word and step by step, as it is told.
std::string PlainlyCleaned(std::string text) {
    text = base::Replace(text, "&", "+");
    for (const std::string_view dropped : {".", "*", "!", "  "})
        text = base::Replace(text, dropped, " ");
    std::string result;
    for (const std::string& word : base::Split(base::Trim(text), " "))
        result += word.empty() ? " " : ProperCaseWords(word);
    return std::string(base::Trim(result));
}

TEST(Naming, RandomNamesAreCleanedWordByWordAndStepByStep) {
    std::mt19937 random(1);
    for (int i = 0; i < 5000; ++i) {
        const library::SongName raw{RandomName(random), RandomName(random)};
        const auto name = CleanSongName("C:\\a.mp3", raw);
        ASSERT_TRUE(name.has_value());
        EXPECT_EQ(name->artist, PlainlyCleaned(raw.artist)) << raw.artist;
        EXPECT_EQ(name->title, PlainlyCleaned(raw.title)) << raw.title;
    }
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

}  // namespace
}  // namespace library
