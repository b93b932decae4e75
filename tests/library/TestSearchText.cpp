#include "library/SearchText.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

#include "base/Text.h"

namespace {

using library::SearchText;

// Cleaning as it is told, one step after another.
std::string Cleaned(std::string_view text, std::string_view dropped) {
    std::string cleaned = base::LCase(text);
    for (const char character : dropped)
        cleaned = base::Replace(cleaned, std::string(1, character), "");
    return cleaned;
}

class SearchTextTest : public testing::Test {
protected:
    std::string RandomText(int longest) {
        static constexpr std::array<std::string_view, 20> kPieces = {
            "a", "A", "b", "B", "i",      "k",      "K",      " ",      "-",      "'",
            "&", "+", "(", "!", "\u00e9", "\u00c9", "\u0130", "\u212a", "\u0416", "\u0436"};
        std::string text;
        for (int i = Below(longest + 1); i > 0; --i)
            text += kPieces[static_cast<std::size_t>(Below(kPieces.size()))];
        return text;
    }
    int Below(std::size_t count) {
        return std::uniform_int_distribution<int>(0, static_cast<int>(count) - 1)(random_);
    }

private:
    std::mt19937 random_{20090117};
};

TEST_F(SearchTextTest, OnlyTheFourFieldsCanBeSearched) {
    EXPECT_TRUE(SearchText::For("Artist", "x"));
    EXPECT_TRUE(SearchText::For("Title", "x"));
    EXPECT_TRUE(SearchText::For("Broad", "x"));
    EXPECT_TRUE(SearchText::For("Filename", "x"));

    EXPECT_FALSE(SearchText::For("", "x"));
    EXPECT_FALSE(SearchText::For("artist", "x"));
}

TEST_F(SearchTextTest, ATextOfDroppedSignsIsInEverything) {
    auto search = SearchText::For("Filename", " -'&+()*!");

    EXPECT_TRUE(search->IsIn("", ""));
}

TEST_F(SearchTextTest, ATextBeginsInTheFrontAndEndsInTheBack) {
    auto search = SearchText::For("Broad", "dc back");

    EXPECT_TRUE(search->IsIn("Ac-dc", "Back In Black"));
    EXPECT_FALSE(search->IsIn("Back In Black", "Ac-dc"));
}

TEST_F(SearchTextTest, ATextIsFoundAtEveryPlace) {
    auto search = SearchText::For("Title", "Xyz");
    for (std::size_t before = 0; before < 20; ++before) {
        for (std::size_t behind = 0; behind < 20; ++behind) {
            const std::string text = std::string(before, 'x') + "x-Y z" + std::string(behind, 'z');

            EXPECT_TRUE(search->IsIn(text, "")) << text;
        }
    }
}

TEST_F(SearchTextTest, TheKelvinSignIsALetter) {
    auto search = SearchText::For("Title", "kiss");

    EXPECT_TRUE(search->IsIn("A Long \u212aISS Goodbye", ""));
}

TEST_F(SearchTextTest, TheScanFindsJustWhatCleaningBothSidesFinds) {
    int found = 0;
    for (int round = 0; round < 20000; ++round) {
        const bool by_name = Below(2) == 0;
        const std::string_view dropped = by_name ? " -'&+()*!" : " -";
        const std::string wanted = RandomText(3);
        const std::string front = RandomText(24);
        const std::string back = by_name ? "" : RandomText(12);
        auto search = SearchText::For(by_name ? "Filename" : "Broad", wanted);

        const bool expected = base::Contains(Cleaned(front + back, dropped), Cleaned(wanted, dropped));

        ASSERT_EQ(search->IsIn(front, back), expected)
            << "'" << wanted << "' in '" << front << "' '" << back << "'";
        if (expected) ++found;
    }

    EXPECT_GT(found, 1000);
    EXPECT_LT(found, 19000);
}

}  // namespace
