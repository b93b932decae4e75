#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <vector>

#include "base/ListOrder.h"
#include "controls/ListBox.h"
#include "controls/RecordingObserver.h"

// The linker sends every sorting of a list through here, so that it can be counted.
namespace {
std::atomic<int> sortings = 0;
}
extern "C" {
void RealSortForList(std::vector<std::string_view>& texts) __asm__(
    "__real__ZN4base11SortForListERSt6vectorISt17basic_string_viewIcSt11char_traitsIcEESaIS4_EE");
void CountedSortForList(std::vector<std::string_view>& texts) __asm__(
    "__wrap__ZN4base11SortForListERSt6vectorISt17basic_string_viewIcSt11char_traitsIcEESaIS4_EE");
void CountedSortForList(std::vector<std::string_view>& texts) {
    ++sortings;
    RealSortForList(texts);
}
}

namespace controls {
namespace {

std::vector<std::string> Rows(const ListBox& list) {
    std::vector<std::string> rows;
    rows.reserve(static_cast<std::size_t>(list.ListCount()));
    for (int row = 0; row < list.ListCount(); ++row)
        rows.emplace_back(list.List(row));
    return rows;
}

class ListBoxTest : public testing::Test {
protected:
    ListBoxTest() {
        for (const char* row : {"one", "two", "three"})
            list_.AddItem(row);
        claims_.Claim(list_.Click, [this] { ++clicks_; });
    }

    ListBox list_{"lstTracks"};
    EventClaims claims_;
    int clicks_ = 0;
};

TEST_F(ListBoxTest, AddingRowsSelectsNoneAndRaisesNothing) {
    EXPECT_EQ(list_.ListCount(), 3);
    EXPECT_EQ(list_.ListIndex(), -1);
    EXPECT_EQ(list_.Text(), "");
    EXPECT_EQ(clicks_, 0);
}

TEST_F(ListBoxTest, AssigningListIndexRaisesClickEachTime) {
    EXPECT_TRUE(list_.SetListIndex(1));
    EXPECT_TRUE(list_.SetListIndex(1));
    EXPECT_TRUE(list_.SetListIndex(-1));

    EXPECT_EQ(clicks_, 3);
}

TEST_F(ListBoxTest, TheTextIsTheSelectedRow) {
    list_.SetListIndex(2);

    EXPECT_EQ(list_.Text(), "three");
}

TEST_F(ListBoxTest, ClickIsRaisedWhenTheRowIsAlreadySelected) {
    std::string seen;
    claims_.Release();
    claims_.Claim(list_.Click, [&] { seen = list_.Text(); });

    list_.SetListIndex(1);

    EXPECT_EQ(seen, "two");
}

TEST_F(ListBoxTest, ARowThatIsNotThereIsNotSelected) {
    list_.SetListIndex(1);
    clicks_ = 0;

    EXPECT_FALSE(list_.SetListIndex(3));
    EXPECT_FALSE(list_.SetListIndex(-2));

    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(clicks_, 0);
    EXPECT_EQ(list_.List(3), "");
    EXPECT_EQ(list_.List(-1), "");
}

TEST_F(ListBoxTest, ClearingSelectsNoneAndRaisesNothing) {
    list_.SetListIndex(1);
    clicks_ = 0;

    list_.Clear();

    EXPECT_EQ(list_.ListCount(), 0);
    EXPECT_EQ(list_.ListIndex(), -1);
    EXPECT_EQ(list_.Text(), "");
    EXPECT_EQ(clicks_, 0);
}

TEST_F(ListBoxTest, RemovingARowKeepsTheSelectionOnItsRow) {
    list_.SetListIndex(1);
    clicks_ = 0;

    EXPECT_TRUE(list_.RemoveItem(0));
    EXPECT_EQ(list_.Text(), "two");
    EXPECT_TRUE(list_.RemoveItem(1));
    EXPECT_EQ(list_.Text(), "two");

    EXPECT_EQ(list_.ListIndex(), 0);
    EXPECT_EQ(clicks_, 0);
}

TEST_F(ListBoxTest, RemovingTheSelectedRowSelectsNone) {
    list_.SetListIndex(1);
    clicks_ = 0;

    list_.RemoveItem(1);

    EXPECT_EQ(list_.ListIndex(), -1);
    EXPECT_EQ(clicks_, 0);
}

TEST_F(ListBoxTest, ARowThatIsNotThereIsNotRemoved) {
    EXPECT_FALSE(list_.RemoveItem(3));
    EXPECT_FALSE(list_.RemoveItem(-1));

    EXPECT_EQ(list_.ListCount(), 3);
}

TEST_F(ListBoxTest, TheFirstRowWithATextIsSelectedByIt) {
    list_.AddItem("two");

    EXPECT_TRUE(list_.SelectText("two"));
    EXPECT_FALSE(list_.SelectText("Two"));

    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(clicks_, 1);
}

TEST_F(ListBoxTest, TheScreenIsToldOfRowsAndSelection) {
    RecordingObserver screen;
    list_.SetObserver(&screen);

    list_.AddItem("four");
    list_.SetListIndex(0);
    list_.RemoveItem(3);
    list_.Clear();
    list_.Clear();
    list_.SetHint("nothing here");
    list_.SetHint("nothing here");

    EXPECT_EQ(screen.Told, (std::vector<Property>{Property::Items, Property::ListIndex, Property::Items,
                                                  Property::Items, Property::Refresh}));
}

TEST_F(ListBoxTest, ARowMayBeAddedFromTheListItself) {
    for (int i = 0; i < 1000; ++i)
        list_.AddItem(list_.List(0));

    EXPECT_EQ(list_.List(1002), "one");
}

TEST_F(ListBoxTest, TheRowsOfAnotherListTakeThePlaceOfItsOwn) {
    controls::ListBox other("lstOther", controls::Sorted::Yes);
    for (const char* row : {"b", "c", "a"})
        other.AddItem(row);
    controls::ListBox list("lstOwn");
    list.AddItem("goes");
    list.SetListIndex(0);

    list.CopyRowsFrom(other);

    ASSERT_EQ(list.ListCount(), 3);
    EXPECT_EQ(list.List(0), "a");
    EXPECT_EQ(list.List(2), "c");
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST(SortedListBox, RowsTakenOverAreSortedToo) {
    controls::ListBox other("lstOther");
    for (const char* row : {"b", "c", "a"})
        other.AddItem(row);
    controls::ListBox sorted("lstSorted", controls::Sorted::Yes);

    sorted.CopyRowsFrom(other);

    EXPECT_EQ(sorted.List(0), "a");
    EXPECT_EQ(sorted.List(2), "c");
}

TEST(SortedListBox, RowsStandInTheOrderOfASortedList) {
    ListBox list("lstArtists", Sorted::Yes);

    for (const char* row : {"banana", "Apple", "cherry", "apple", "  [All Artists]", "Banana"})
        list.AddItem(row);

    EXPECT_EQ(Rows(list),
              (std::vector<std::string>{"  [All Artists]", "Apple", "apple", "Banana", "banana", "cherry"}));
}

TEST(SortedListBox, TheSelectionFollowsItsRow) {
    ListBox list("lstArtists", Sorted::Yes);
    list.AddItem("m");
    list.AddItem("z");
    list.SetListIndex(0);

    list.AddItem("a");

    EXPECT_EQ(list.Text(), "m");
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST(SortedListBox, ARowIsRemovedByItsPlaceInOrder) {
    ListBox list("lstArtists", Sorted::Yes);
    for (const char* row : {"c", "a", "b"})
        list.AddItem(row);

    list.RemoveItem(0);

    EXPECT_EQ(Rows(list), (std::vector<std::string>{"b", "c"}));
}

TEST(SortedListBox, ManyRowsAreSortedOnceWhenTheyAreRead) {
    ListBox list("lstCleanup", Sorted::Yes);
    constexpr int kRows = 100000;
    sortings = 0;
    for (int i = 0; i < kRows; ++i)
        list.AddItem("song " + std::to_string(i * 7919 % kRows));
    const int after_adding = sortings.exchange(0);

    EXPECT_EQ(list.List(0), "song 0");
    const int after_first_reading = sortings.exchange(0);
    for (int i = 0; i < kRows; ++i)
        EXPECT_FALSE(list.List(i).empty());
    list.SetListIndex(5);
    list.RemoveItem(9);

    EXPECT_EQ(after_adding, 0);
    EXPECT_EQ(after_first_reading, 1);
    EXPECT_EQ(sortings, 0);
}

TEST(LongListBox, HoldsAMillionRows) {
    ListBox list("lstTracks");
    constexpr int kRows = 1000000;
    for (int i = 0; i < kRows; ++i)
        list.AddItem("row " + std::to_string(i));

    list.SetListIndex(kRows - 1);
    list.RemoveItem(0);

    EXPECT_EQ(list.ListCount(), kRows - 1);
    EXPECT_EQ(list.List(0), "row 1");
    EXPECT_EQ(list.ListIndex(), kRows - 2);
    EXPECT_EQ(list.Text(), "row 999999");
    EXPECT_FALSE(list.SetListIndex(kRows - 1));
}

}  // namespace
}  // namespace controls
