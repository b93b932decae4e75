#include "store/Table.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "store/Layouts.h"

namespace {

using store::RowNumber;
using store::Table;
using Views = std::vector<std::string_view>;

const ports::TableLayout& HistoryLayout() {
    return store::layout::kHistoryTables[0];
}

void Add(Table& table, std::string_view text) {
    table.Append(Views{"1", "Web", text});
}

std::vector<RowNumber> RowsForwards(const Table& table) {
    std::vector<RowNumber> rows;
    for (RowNumber row = table.FirstFrom(0); row < table.End(); row = table.FirstFrom(row + 1))
        rows.push_back(row);
    return rows;
}

std::vector<RowNumber> RowsBackwards(const Table& table) {
    std::vector<RowNumber> rows;
    for (RowNumber end = table.EndOfLastBefore(table.End()); end > 0; end = table.EndOfLastBefore(end - 1)) {
        rows.push_back(end - 1);
    }
    return rows;
}

TEST(Table, PassesOverGapsInBothDirections) {
    Table table(HistoryLayout());
    for (int i = 0; i < 8; ++i)
        Add(table, "x");
    for (const RowNumber gone : {0U, 2U, 3U, 4U, 7U})
        table.Remove(gone);

    EXPECT_EQ(RowsForwards(table), (std::vector<RowNumber>{1, 5, 6}));
    EXPECT_EQ(RowsBackwards(table), (std::vector<RowNumber>{6, 5, 1}));
    EXPECT_EQ(table.Count(), 3U);
}

TEST(Table, FindsRowsThatCameAfterALookAtTrailingGaps) {
    Table table(HistoryLayout());
    for (int i = 0; i < 4; ++i)
        Add(table, "x");
    for (RowNumber row = 0; row < 4; ++row)
        table.Remove(row);
    const RowNumber none = table.FirstFrom(0);
    Add(table, "new");

    EXPECT_EQ(none, 4U);
    EXPECT_EQ(table.FirstFrom(0), 4U);
    EXPECT_EQ(table.FirstFrom(2), 4U);
    EXPECT_EQ(table.EndOfLastBefore(table.End()), 5U);
    EXPECT_EQ(table.EndOfLastBefore(4), 0U);
}

TEST(Table, LooksOverAMillionGapsQuicklyAfterTheFirstTime) {
    Table table(HistoryLayout());
    constexpr RowNumber kRows = 1'000'000;
    for (RowNumber row = 0; row < kRows; ++row)
        Add(table, "");
    for (RowNumber row = 0; row < kRows; ++row)
        table.Remove(row);

    // A hundred thousand rounds over a million gaps end only when the gaps are not looked at one by one.
    for (int round = 0; round < 100'000; ++round) {
        Add(table, "x");
        const RowNumber end = table.EndOfLastBefore(table.End());
        ASSERT_EQ(table.FirstFrom(0), end - 1);
        table.Remove(end - 1);
    }

    EXPECT_EQ(table.Count(), 0U);
}

TEST(Table, GivesMemoryBackWhenRowsAreChangedOrRemovedInAPass) {
    Table table(HistoryLayout());
    const std::string text(100, 'x');
    const std::string longer(101, 'y');
    for (int i = 0; i < 100'000; ++i)
        Add(table, text);
    const std::size_t full = table.BytesHeld();

    for (RowNumber row = 0; row < table.End(); ++row)
        table.Replace(row, Views{"1", "Web", longer});
    const std::size_t changed = table.BytesHeld();
    for (RowNumber row = 0; row < table.End(); ++row)
        table.Remove(row);

    EXPECT_LT(changed, full + full / 5);
    EXPECT_LT(table.BytesHeld(), full / 4);
}

TEST(Table, GivesMemoryBackWhenRowsGoHereAndThere) {
    Table table(HistoryLayout());
    const std::string text(100, 'x');
    for (int i = 0; i < 200'000; ++i)
        Add(table, text);
    const std::size_t full = table.BytesHeld();

    for (RowNumber row = 0; row < table.End(); ++row) {
        if (row % 20 != 0) table.Remove(row);
    }

    EXPECT_LT(table.BytesHeld(), full / 2);
    for (RowNumber row = table.FirstFrom(0); row < table.End(); row = table.FirstFrom(row + 1)) {
        ASSERT_EQ(row % 20, 0U);
        ASSERT_EQ(table.Value(row, 2), text);
    }
}

TEST(Table, KeepsAMillionSongsSmall) {
    Table table(store::layout::kMediaTables[0]);
    const std::string artist(18, 'a');
    const std::string title(22, 't');
    const std::string path(80, 'p');

    for (int i = 0; i < 1'000'000; ++i)
        table.Append(Views{"1000000", artist, title, path, "0"});

    EXPECT_LT(table.BytesHeld(), 220U << 20U);
    EXPECT_EQ(table.Journal().size(), 1'000'000U);
}

TEST(Table, JournalTellsTheShortestWayToTheImage) {
    Table table(HistoryLayout());
    table.Load(10, Views{"1", "Web", "kept"});
    table.Load(11, Views{"2", "Web", "changed"});
    table.Load(15, Views{"3", "Web", "changed and removed"});
    table.Replace(1, Views{"2", "Web", "new"});
    table.Replace(2, Views{"3", "Web", "new"});
    table.Remove(2);
    Add(table, "added");
    table.Replace(3, Views{"4", "Web", "added and changed"});
    Add(table, "added and removed");
    table.Remove(4);

    std::vector<std::string> told;
    ports::RowChange change;
    Views values;
    for (const RowNumber row : table.Journal()) {
        if (!table.ChangeOf(row, change, values)) continue;
        const std::array<std::string_view, 3> kinds{"insert ", "update ", "delete "};
        told.push_back(std::string(kinds[static_cast<std::size_t>(change.kind)]) +
                       std::to_string(change.row) + " " + std::string(values.empty() ? "" : values[2]));
    }

    EXPECT_EQ(told, (std::vector<std::string>{"update 11 new", "delete 15 ", "insert 16 added and changed"}));
}

TEST(Table, HasAnEmptyJournalAfterForgettingIt) {
    Table table(HistoryLayout());
    Add(table, "a");
    Add(table, "b");
    table.Remove(0);
    table.ForgetJournal();
    const bool empty_before = table.Journal().empty();
    table.Replace(1, Views{"2", "Web", "c"});

    ports::RowChange change;
    Views values;
    ASSERT_TRUE(table.ChangeOf(1, change, values));
    EXPECT_TRUE(empty_before);
    EXPECT_EQ(table.Journal().size(), 1U);
    EXPECT_EQ(change.kind, ports::ChangeKind::Update);
}

}  // namespace
