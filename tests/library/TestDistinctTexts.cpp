#include "library/DistinctTexts.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>

namespace {

using library::DistinctTexts;

TEST(DistinctTexts, OnlyTheFirstOfEqualTextsIsNew) {
    DistinctTexts texts;

    EXPECT_TRUE(texts.IsNew("a"));
    EXPECT_FALSE(texts.IsNew("a"));
    EXPECT_TRUE(texts.IsNew("A"));
    EXPECT_TRUE(texts.IsNew(""));
    EXPECT_FALSE(texts.IsNew(""));
    EXPECT_FALSE(texts.IsNew("a"));
    EXPECT_EQ(texts.Size(), 3U);
}

TEST(DistinctTexts, TellsTensOfThousandsApart) {
    DistinctTexts texts;
    std::set<std::string> known;
    std::mt19937 random(7);
    for (int i = 0; i < 100'000; ++i) {
        const std::string text = "Artist " + std::to_string(random() % 30'000);

        ASSERT_EQ(texts.IsNew(text), known.insert(text).second) << text;
    }

    EXPECT_EQ(texts.Size(), known.size());
}

TEST(DistinctTexts, AfterClearingEveryTextIsNew) {
    DistinctTexts texts;
    texts.IsNew("a");

    texts.Clear();

    EXPECT_EQ(texts.Size(), 0U);
    EXPECT_TRUE(texts.IsNew("a"));
}

}  // namespace
