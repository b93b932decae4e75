#include "library/CleanedSongs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "base/Text.h"
#include "fakes/SeededStores.h"

namespace {

using library::CleanedSongs;
using library::RuleOf;
using library::SearchField;
using library::SearchRule;
namespace tblSong = store::tblSong;
using Rows = std::vector<store::Bookmark>;

class CleanedSongsTest : public testing::Test {
protected:
    CleanedSongsTest() : source_(stores_.OpenTable("tblSong")) {}

    store::RecordSet& Songs() { return source_->Recordset(); }
    void Add(std::string_view artist, std::string_view title, std::string_view path = "") {
        Songs().AddNew();
        Songs().Set(tblSong::artist, artist);
        Songs().Set(tblSong::title, title);
        Songs().Set(tblSong::FilePath, path);
        Songs().Update();
    }
    Rows Search(SearchField field, std::string_view cleaned_text) {
        cleaned_.Prepare(RuleOf(field), Songs(), Songs().EndOfBookmarks());
        return cleaned_.RowsWith(cleaned_text);
    }

    CleanedSongs cleaned_;

private:
    fakes::SeededStores stores_;
    std::unique_ptr<store::DataSource> source_;
};

TEST_F(CleanedSongsTest, ATextIsFoundAtEveryPlaceOfALongRow) {
    for (std::size_t before = 0; before < 200; ++before)
        Add("", std::string(before, 'x') + "X-y Z" + std::string(200 - before, 'z'));

    EXPECT_EQ(Search(SearchField::Title, "xyz").size(), 200U);
}

// Rows of every length around that of the steps in which the texts are searched.
TEST_F(CleanedSongsTest, ATextOfAnyLengthIsFoundWhereverItIs) {
    constexpr std::string_view kLetters = "qqqr";
    std::minstd_rand random(7);
    for (const std::string wanted : {"r", "rr", "rqr", "rqqr", "qqqqqqqqqqqq", "rqqqqqr"}) {
        const store::Bookmark first = Songs().EndOfBookmarks();
        Rows expected;
        for (std::size_t length = 0; length < 200; ++length) {
            std::string title(length, 'q');
            for (char& letter : title)
                letter = kLetters[random() / 7 % kLetters.size()];
            if (title.find(wanted) != std::string::npos) expected.push_back(Songs().EndOfBookmarks());
            Add("", title);
        }
        ASSERT_GT(expected.size(), 10U) << wanted;

        Rows found = Search(SearchField::Title, wanted);

        std::erase_if(found, [first](store::Bookmark row) { return row < first; });
        EXPECT_EQ(found, expected) << wanted;
    }
}

TEST_F(CleanedSongsTest, ATextDoesNotGoOnInTheNextRow) {
    Add("", "Back In");
    Add("", "Black");

    EXPECT_EQ(Search(SearchField::Title, "inb"), Rows{});
    EXPECT_EQ(Search(SearchField::Title, "b"), (Rows{0, 1}));
}

TEST_F(CleanedSongsTest, ABroadTextBeginsInTheArtistAndEndsInTheTitle) {
    Add("Ac-dc", "Back In Black");
    Add("Back In Black", "Ac-dc");

    EXPECT_EQ(Search(SearchField::Broad, "dcback"), Rows{0});
}

TEST_F(CleanedSongsTest, ARowIsFoundOnce) {
    Add("", "la la la");

    EXPECT_EQ(Search(SearchField::Title, "la"), Rows{0});
}

TEST_F(CleanedSongsTest, SongsThatCameLaterAreFound) {
    Add("", "One");
    EXPECT_EQ(Search(SearchField::Title, "two"), Rows{});

    Add("", "Two");

    EXPECT_EQ(Search(SearchField::Title, "two"), Rows{1});
}

TEST_F(CleanedSongsTest, AnotherTextInAnOldRowIsSearched) {
    Add("", "One");
    EXPECT_EQ(Search(SearchField::Title, "one"), Rows{0});

    Songs().MoveFirst();
    Songs().Edit();
    Songs().Set(tblSong::title, "Two");
    Songs().Update();

    EXPECT_EQ(Search(SearchField::Title, "one"), Rows{});
    EXPECT_EQ(Search(SearchField::Title, "two"), Rows{0});
}

TEST_F(CleanedSongsTest, PreparingGoesOnWhereItStopped) {
    for (int i = 0; i < 20'000; ++i)
        Add("", "Title " + std::to_string(i));

    EXPECT_FALSE(cleaned_.Prepare(RuleOf(SearchField::Title), Songs(), 9'000));
    EXPECT_FALSE(cleaned_.Prepare(RuleOf(SearchField::Title), Songs(), 9'000));
    EXPECT_TRUE(cleaned_.Prepare(RuleOf(SearchField::Title), Songs(), 9'000));

    EXPECT_EQ(cleaned_.RowsWith("title19999"), Rows{19'999});
    EXPECT_EQ(cleaned_.RowsWith("title8999"), Rows{8'999});
    EXPECT_EQ(cleaned_.RowsWith("title").size(), 20'000U);
}

// From side by side to as far apart as a library is long.
TEST_F(CleanedSongsTest, RowsAreFoundHoweverFarApart) {
    constexpr store::Bookmark kEnd = 40'000;
    Rows wanted;
    for (store::Bookmark row = 0, gap = 3; row < kEnd; row += gap++ / 3)
        wanted.push_back(row);
    for (store::Bookmark row = 0; row + 1 < kEnd; ++row)
        Add("", std::binary_search(wanted.begin(), wanted.end(), row) ? "Wanted" : "Other");
    Add("", "Last");

    EXPECT_EQ(Search(SearchField::Title, "wanted"), wanted);
    EXPECT_EQ(Search(SearchField::Title, "other").size(), kEnd - wanted.size() - 1);
    EXPECT_EQ(Search(SearchField::Title, "last"), Rows{kEnd - 1});
}

TEST_F(CleanedSongsTest, APartOfACharacterIsNotFound) {
    Add("", "\u00e9");
    Add("", "\xa9");

    EXPECT_EQ(Search(SearchField::Title, "\xa9"), Rows{1});
}

// Cleaning as it is told, one step after another.
std::string PlainlyCleaned(std::string_view text, std::string_view dropped) {
    std::string cleaned(base::Trim(base::LCase(text)));
    for (const char character : dropped)
        cleaned = base::Replace(cleaned, std::string(1, character), "");
    return cleaned;
}

class RandomLibrary : public CleanedSongsTest, public testing::WithParamInterface<unsigned> {
protected:
    RandomLibrary() : random_(GetParam()) {}

    std::size_t Below(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
    }
    std::string RandomText(std::size_t longest) {
        static constexpr std::array<std::string_view, 24> kPieces = {
            "a",      "A",      "b",      "B",      "i",      "k",      "K",      " ",
            "-",      "'",      "&",      "+",      "(",      "!",      "*",      "\"",
            "\u00a3", "\u00e9", "\u00c9", "\u0130", "\u212a", "\u0416", "\u0436", "\xc3"};
        std::string text;
        for (std::size_t i = Below(longest + 1); i > 0; --i)
            text += kPieces[Below(kPieces.size())];
        return text;
    }
    void ChangeTheTable() {
        if (Below(3) == 0 && Songs().MoveTo(static_cast<store::Bookmark>(Below(100)))) Songs().Delete();
        if (Below(3) == 0) Add(RandomText(12), RandomText(12), RandomText(40));
        if (Below(5) == 0 && Songs().MoveTo(static_cast<store::Bookmark>(Below(100)))) {
            Songs().Edit();
            Songs().Set(Below(2) == 0 ? tblSong::artist : tblSong::FilePath, RandomText(12));
            Songs().Update();
        }
    }
    Rows FoundByAPlainWalk(const SearchRule& rule, std::string_view wanted) {
        Rows rows;
        for (Songs().MoveFirst(); !Songs().Eof(); Songs().MoveNext()) {
            std::string text(Songs().Text(rule.first));
            if (rule.second) text += Songs().Text(*rule.second);
            if (base::Contains(PlainlyCleaned(text, rule.dropped), wanted))
                rows.push_back(Songs().CurrentBookmark());
        }
        return rows;
    }

private:
    std::mt19937 random_;
};

TEST_P(RandomLibrary, IsSearchedAsByAPlainWalk) {
    for (int song = 0; song < 100; ++song)
        Add(RandomText(12), RandomText(12), RandomText(40));
    std::size_t hits = 0;
    for (int round = 0; round < 400; ++round) {
        static constexpr std::array kFields = {SearchField::Broad, SearchField::Artist, SearchField::Title,
                                               SearchField::Filename};
        const SearchRule& rule = RuleOf(kFields[Below(kFields.size())]);
        const std::string wanted = PlainlyCleaned(RandomText(3), rule.dropped);
        if (wanted.empty()) continue;
        ChangeTheTable();

        cleaned_.Prepare(rule, Songs(), Songs().EndOfBookmarks());
        Rows found = cleaned_.RowsWith(wanted);
        std::erase_if(found, [this](store::Bookmark row) { return !Songs().MoveTo(row); });

        ASSERT_EQ(found, FoundByAPlainWalk(rule, wanted)) << rule.text << " '" << wanted << "'";
        hits += found.size();
    }

    EXPECT_GT(hits, 500U);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomLibrary, testing::Range(1U, 9U));

}  // namespace
