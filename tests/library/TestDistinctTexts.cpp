#include "library/DistinctTexts.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>

namespace {

using library::DistinctTexts;

TEST(DistinctTexts, OnlyTheFirstOfEqualTextsMayBeNew) {
    DistinctTexts texts;

    EXPECT_TRUE(texts.MayBeNew("a"));
    EXPECT_FALSE(texts.MayBeNew("a"));
    EXPECT_TRUE(texts.MayBeNew("A"));
    EXPECT_TRUE(texts.MayBeNew(""));
    EXPECT_FALSE(texts.MayBeNew(""));
    EXPECT_FALSE(texts.MayBeNew("a"));
    EXPECT_EQ(texts.Size(), 3U);
}

TEST(DistinctTexts, TellsTensOfThousandsApart) {
    DistinctTexts texts;
    std::set<std::string> known;
    std::mt19937 random(7);
    for (int i = 0; i < 100'000; ++i) {
        const std::string text = "Artist " + std::to_string(random() % 30'000);

        ASSERT_EQ(texts.MayBeNew(text), known.insert(text).second) << text;
    }

    EXPECT_EQ(texts.Size(), known.size());
}

TEST(DistinctTexts, WhereNearlyAllDifferItStopsLooking) {
    constexpr int kMany = 65'536;
    DistinctTexts texts;
    for (int i = 0; i < kMany; ++i)
        EXPECT_TRUE(texts.MayBeNew(std::to_string(i)));
    EXPECT_TRUE(texts.MayBeNew("0"));
    EXPECT_LT(texts.Size(), std::size_t{kMany});

    texts.Clear();
    EXPECT_TRUE(texts.MayBeNew("0"));
    EXPECT_FALSE(texts.MayBeNew("0"));
}

TEST(DistinctTexts, WhereHalfOfThemCameBeforeItGoesOnLooking) {
    DistinctTexts texts;
    for (int i = 0; i < 200'000; ++i)
        ASSERT_EQ(texts.MayBeNew(std::to_string(i / 2)), i % 2 == 0);
    EXPECT_FALSE(texts.MayBeNew("7"));
}

TEST(DistinctTexts, AfterClearingEveryTextMayBeNew) {
    DistinctTexts texts;
    texts.MayBeNew("a");

    texts.Clear();

    EXPECT_EQ(texts.Size(), 0U);
    EXPECT_TRUE(texts.MayBeNew("a"));
}

}  // namespace
