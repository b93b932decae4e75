#include "base/RowTexts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace base {
namespace {

std::vector<std::string> All(const RowTexts& rows) {
    std::vector<std::string> all;
    all.reserve(rows.Size());
    for (std::size_t row = 0; row < rows.Size(); ++row)
        all.emplace_back(rows.At(row));
    return all;
}

TEST(RowTexts, BeginsEmpty) {
    const RowTexts rows;

    EXPECT_TRUE(rows.Empty());
    EXPECT_EQ(rows.Size(), 0U);
}

TEST(RowTexts, KeepsTextsOfAnyContent) {
    RowTexts rows;
    const std::string with_zero("a\0b", 3);
    const std::string long_text(3U << 20U, 'x');

    rows.PushBack("");
    rows.PushBack(with_zero);
    rows.PushBack(long_text);
    rows.PushBack("last");

    EXPECT_EQ(All(rows), (std::vector<std::string>{"", with_zero, long_text, "last"}));
}

TEST(RowTexts, InsertsBeforeARowAndAtTheEnd) {
    RowTexts rows;
    rows.PushBack("b");

    rows.Insert(0, "a");
    rows.Insert(2, "c");

    EXPECT_EQ(All(rows), (std::vector<std::string>{"a", "b", "c"}));
}

TEST(RowTexts, ErasesARow) {
    RowTexts rows;
    for (const char* text : {"a", "b", "c"})
        rows.PushBack(text);

    rows.Erase(1);

    EXPECT_EQ(All(rows), (std::vector<std::string>{"a", "c"}));
}

TEST(RowTexts, ATextMayComeFromTheListItself) {
    RowTexts rows;
    rows.PushBack("song");

    for (int i = 0; i < 10000; ++i)
        rows.PushBack(rows.At(0));

    EXPECT_EQ(rows.At(10000), "song");
}

TEST(RowTexts, TidyingUpKeepsTheRowsThatAreLeft) {
    RowTexts rows;
    for (int i = 0; i < 4000; ++i)
        rows.PushBack(std::to_string(i) + std::string(1000, '.'));

    for (int i = 0; i < 3900; ++i)
        rows.Erase(0);

    ASSERT_EQ(rows.Size(), 100U);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(rows.At(static_cast<std::size_t>(i)), std::to_string(3900 + i) + std::string(1000, '.'));
    }
}

TEST(RowTexts, PartsBecomeOneRow) {
    RowTexts rows;

    rows.PushBack({"artist", " - ", "title"});
    rows.PushBack({"", ""});

    EXPECT_EQ(All(rows), (std::vector<std::string>{"artist - title", ""}));
}

TEST(RowTexts, SortsLikeASortedList) {
    RowTexts rows;
    for (const char* text : {"b", "A", "C", "a", "B"})
        rows.PushBack(text);

    rows.Sort();

    EXPECT_EQ(All(rows), (std::vector<std::string>{"A", "a", "B", "b", "C"}));
}

TEST(RowTexts, LowerBoundIsTheFirstRowThatDoesNotStandBefore) {
    RowTexts rows;
    for (const char* text : {"a", "C", "c", "e"})
        rows.PushBack(text);

    EXPECT_EQ(rows.LowerBound("a"), 0U);
    EXPECT_EQ(rows.LowerBound("B"), 1U);
    EXPECT_EQ(rows.LowerBound("c"), 2U);
    EXPECT_EQ(rows.LowerBound("f"), 4U);
    EXPECT_EQ(RowTexts().LowerBound("a"), 0U);
}

TEST(RowTexts, ACopyIsWholeAndItsOwn) {
    base::RowTexts original;
    for (int i = 0; i < 30'000; ++i)
        original.PushBack("row " + std::to_string(i) + std::string(static_cast<std::size_t>(i % 90), 'x'));
    // Rows out of the order they came in, and gaps between them.
    for (std::size_t row = 0; row < 5'000; ++row)
        original.Erase(row * 2);
    original.Insert(3, "between");
    original.Sort();
    base::RowTexts copy;
    copy.PushBack("goes");

    copy.CopyFrom(original);

    ASSERT_EQ(copy.Size(), original.Size());
    for (std::size_t row = 0; row < copy.Size(); ++row)
        ASSERT_EQ(copy.At(row), original.At(row)) << row;
    const std::string first(copy.At(0));
    original.Clear();
    original.PushBack(std::string(200, '?'));
    copy.PushBack("new");
    EXPECT_EQ(copy.At(0), first);
    EXPECT_EQ(copy.At(copy.Size() - 1), "new");
}

TEST(RowTexts, ACopyOfNothingIsEmpty) {
    const base::RowTexts nothing;
    base::RowTexts copy;
    copy.PushBack("goes");

    copy.CopyFrom(nothing);
    const bool was_empty = copy.Empty();
    copy.PushBack("new");

    EXPECT_TRUE(was_empty);
    EXPECT_EQ(copy.At(0), "new");
}

TEST(RowTexts, ClearingMakesRoomForNewRows) {
    RowTexts rows;
    rows.PushBack("a");

    rows.Clear();
    rows.PushBack("b");

    EXPECT_EQ(All(rows), (std::vector<std::string>{"b"}));
}

TEST(RowTexts, AClearedListTakesRowsOfOtherLengths) {
    RowTexts rows;
    const std::string longer(5000, 'x');
    for (int round = 0; round < 3; ++round) {
        rows.Clear();
        for (int i = 0; i < 300; ++i)
            rows.PushBack(i % 2 == round % 2 ? std::to_string(i) : longer);
    }

    ASSERT_EQ(rows.Size(), 300U);
    for (std::size_t i = 0; i < rows.Size(); ++i)
        EXPECT_EQ(rows.At(i), i % 2 == 0 ? std::to_string(i) : longer);
}

}  // namespace
}  // namespace base
