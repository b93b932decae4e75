#include "base/ListOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

#include "base/Text.h"

namespace {

bool StandsBefore(std::string_view one, std::string_view other) {
    return base::CompareForSort(one, other) < 0;
}

std::vector<std::string_view> Views(const std::vector<std::string>& texts) {
    return {texts.begin(), texts.end()};
}

class ListOrderTest : public testing::TestWithParam<int> {
protected:
    ListOrderTest() : random_(static_cast<unsigned>(GetParam())) {}

    std::size_t Below(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
    }
    // Letters in both cases, texts that begin alike, letters beyond ASCII (two of which have a small letter
    // in ASCII), stray bytes, and a zero, which also stands behind the end of a shorter text.
    std::string RandomText() {
        static const std::array<std::string, 20> pieces = {"a",
                                                           "A",
                                                           "b",
                                                           "B",
                                                           "The Same Beginning ",
                                                           "THE SAME BEGINNING ",
                                                           " ",
                                                           "-",
                                                           "\u00e9",
                                                           "\u00c9",
                                                           "\u0130",
                                                           "\u212a",
                                                           "\u0416",
                                                           "\u0436",
                                                           "\U0001f600",
                                                           "\xff",
                                                           "\x80",
                                                           "\xc3",
                                                           std::string(1, '\0'),
                                                           "k"};
        std::string text;
        for (std::size_t i = Below(8); i > 0; --i)
            text += pieces[Below(pieces.size())];
        return text;
    }

private:
    std::mt19937 random_;
};

TEST_P(ListOrderTest, StandsAsComparingPairByPairTells) {
    std::vector<std::string> texts(2000);
    std::generate(texts.begin(), texts.end(), [this] { return RandomText(); });
    std::vector<std::string_view> expected = Views(texts);
    std::stable_sort(expected.begin(), expected.end(), StandsBefore);

    std::vector<std::string_view> sorted = Views(texts);
    base::SortForList(sorted);

    EXPECT_EQ(sorted, expected);
}

INSTANTIATE_TEST_SUITE_P(Seeds, ListOrderTest, testing::Range(1, 13));

TEST_P(ListOrderTest, VeryManyTextsWithAFewBeginningsStandSoToo) {
    std::vector<std::string> texts(20'000);
    std::generate(texts.begin(), texts.end(), [this] {
        static const std::array<std::string, 4> beginnings = {"", "Abcdefgh", "ABCDEFGHIJKLMNOPQ", "\u00c9"};
        return beginnings[Below(beginnings.size())] + RandomText() + std::to_string(Below(5000));
    });
    std::vector<std::string_view> expected = Views(texts);
    std::stable_sort(expected.begin(), expected.end(), StandsBefore);

    std::vector<std::string_view> sorted = Views(texts);
    base::SortForList(sorted);

    EXPECT_EQ(sorted, expected);
}

TEST(ListOrder, EveryCharacterOfAsciiStandsWhereItsSmallLetterDoes) {
    std::vector<std::string> texts;
    for (int one = 0; one < 128; ++one) {
        for (int other = 0; other < 128; ++other)
            texts.push_back({static_cast<char>(one), static_cast<char>(other)});
    }
    std::vector<std::string_view> expected = Views(texts);
    std::stable_sort(expected.begin(), expected.end(), StandsBefore);

    std::vector<std::string_view> sorted = Views(texts);
    base::SortForList(sorted);

    EXPECT_EQ(sorted, expected);
}

TEST(ListOrder, ManyEqualTextsStandTogether) {
    std::vector<std::string> texts(1000, "A text that is longer than a number");
    texts.emplace_back("A text that is longer");
    texts.emplace_back("a text that is longer than a number");

    std::vector<std::string_view> sorted = Views(texts);
    base::SortForList(sorted);

    EXPECT_EQ(sorted.front(), "A text that is longer");
    EXPECT_EQ(sorted.back(), "a text that is longer than a number");
    EXPECT_EQ(std::count(sorted.begin(), sorted.end(), texts.front()), 1000);
}

TEST(ListOrder, NoTextsAreInOrder) {
    std::vector<std::string_view> none;

    base::SortForList(none);

    EXPECT_TRUE(none.empty());
}

}  // namespace
