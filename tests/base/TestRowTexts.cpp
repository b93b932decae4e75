#include "base/RowTexts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace base {
namespace {

bool Less(std::string_view left, std::string_view right) {
    return left < right;
}

std::vector<std::string> All(const RowTexts& rows) {
    std::vector<std::string> all;
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

TEST(RowTexts, SortingKeepsTheOrderOfEqualRows) {
    RowTexts rows;
    for (const char* text : {"b1", "a1", "b2", "a2"})
        rows.PushBack(text);

    rows.Sort([](std::string_view left, std::string_view right) { return left[0] < right[0]; });

    EXPECT_EQ(All(rows), (std::vector<std::string>{"a1", "a2", "b1", "b2"}));
}

TEST(RowTexts, LowerBoundIsTheFirstRowThatIsNotLess) {
    RowTexts rows;
    for (const char* text : {"a", "c", "c", "e"})
        rows.PushBack(text);

    EXPECT_EQ(rows.LowerBound("a", Less), 0U);
    EXPECT_EQ(rows.LowerBound("b", Less), 1U);
    EXPECT_EQ(rows.LowerBound("c", Less), 1U);
    EXPECT_EQ(rows.LowerBound("f", Less), 4U);
    EXPECT_EQ(RowTexts().LowerBound("a", Less), 0U);
}

TEST(RowTexts, ClearingMakesRoomForNewRows) {
    RowTexts rows;
    rows.PushBack("a");

    rows.Clear();
    rows.PushBack("b");

    EXPECT_EQ(All(rows), (std::vector<std::string>{"b"}));
}

}  // namespace
}  // namespace base
