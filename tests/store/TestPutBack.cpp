// Rows that come back into a table.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

#include "store/Layouts.h"
#include "store/Table.h"

namespace {

using store::KeptRow;
using store::RowNumber;
using store::Table;
using Texts = std::vector<std::string>;
/// What is in a file, by its row numbers.
using File = std::map<std::int64_t, Texts>;

const ports::TableLayout& HistoryLayout() {
    return store::layout::kHistoryTables[0];
}

Texts RowOf(const Table& table, RowNumber row) {
    Texts values;
    for (std::size_t column = 0; column < table.FieldCount(); ++column)
        values.emplace_back(table.Value(row, column));
    return values;
}

void Add(Table& table, const std::string& text) {
    table.Append(std::vector<std::string_view>{"1", "Web", text});
}

KeptRow TakeOut(Table& table, RowNumber row) {
    KeptRow kept{.place = table.FileRow(row), .values = RowOf(table, row)};
    table.Remove(row);
    return kept;
}

std::vector<Texts> Forwards(const Table& table) {
    std::vector<Texts> rows;
    for (RowNumber row = table.FirstFrom(0); row < table.End(); row = table.FirstFrom(row + 1))
        rows.push_back(RowOf(table, row));
    return rows;
}

std::vector<Texts> Backwards(const Table& table) {
    std::vector<Texts> rows;
    for (RowNumber end = table.EndOfLastBefore(table.End()); end > 0; end = table.EndOfLastBefore(end - 1))
        rows.insert(rows.begin(), RowOf(table, end - 1));
    return rows;
}

/// Makes the file equal to the image, as the journal says, and nothing is told twice.
void Commit(Table& table, File& file) {
    std::vector<std::string_view> values;
    std::map<RowNumber, int> told;
    for (const RowNumber row : table.Journal()) {
        EXPECT_EQ(++told[row], 1);
        ports::RowChange change;
        if (!table.ChangeOf(row, change, values)) continue;
        if (change.kind == ports::ChangeKind::Delete) {
            EXPECT_EQ(file.erase(change.row), 1U);
            continue;
        }
        EXPECT_EQ(file.contains(change.row), change.kind == ports::ChangeKind::Update);
        file[change.row] = Texts(change.values.begin(), change.values.end());
    }
    table.ForgetJournal();
}

void Load(Table& table, const File& file) {
    for (const auto& [row, texts] : file)
        table.Load(row, std::vector<std::string_view>(texts.begin(), texts.end()));
}

TEST(PutBack, ARowComesBackWhereItWas) {
    Table table(HistoryLayout());
    for (const char* text : {"a", "b", "c"})
        Add(table, text);
    const std::vector<Texts> before = Forwards(table);
    const std::vector<KeptRow> kept{TakeOut(table, 1)};

    EXPECT_TRUE(table.PutBack(kept).empty());

    EXPECT_EQ(Forwards(table), before);
    EXPECT_EQ(table.Count(), 3U);
}

TEST(PutBack, ATakenPlaceIsRefused) {
    Table table(HistoryLayout());
    Add(table, "a");
    const KeptRow there{.place = table.FileRow(0), .values = {"9", "Web", "other"}};
    const KeptRow twice{.place = 7, .values = {"7", "Web", "x"}};
    const KeptRow nowhere{.place = 0, .values = {"7", "Web", "x"}};

    EXPECT_EQ(table.PutBack(std::vector<KeptRow>{there, twice, twice, nowhere}),
              (std::vector<std::size_t>{3, 0, 2}));

    EXPECT_EQ(Forwards(table), (std::vector<Texts>{{"1", "Web", "a"}, {"7", "Web", "x"}}));
}

TEST(PutBack, AnyRowsComeBackInAnyRunAndTheFileFollows) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        std::mt19937 random(seed);
        File file;
        auto table = std::make_unique<Table>(HistoryLayout());
        for (int i = 0; i < 30; ++i)
            Add(*table, std::to_string(i));
        std::vector<KeptRow> out;
        for (int step = 0; step < 60; ++step) {
            switch (random() % 6) {
                case 0:
                    Commit(*table, file);
                    break;
                case 1:
                    Commit(*table, file);
                    table = std::make_unique<Table>(HistoryLayout());
                    Load(*table, file);
                    break;
                case 2:
                case 3: {
                    const RowNumber row = table->FirstFrom(static_cast<RowNumber>(random() % 40));
                    if (row < table->End()) out.push_back(TakeOut(*table, row));
                    break;
                }
                default: {
                    std::vector<KeptRow> back;
                    while (!out.empty() && random() % 3 != 0) {
                        const std::size_t i = random() % out.size();
                        back.push_back(out[i]);
                        out.erase(out.begin() + static_cast<std::ptrdiff_t>(i));
                    }
                    const std::uint64_t rewrites = table->Rewrites(2);
                    EXPECT_TRUE(table->PutBack(back).empty());
                    EXPECT_EQ(table->Rewrites(2) > rewrites, !back.empty());
                    break;
                }
            }
            ASSERT_EQ(Forwards(*table).size(), 30 - out.size());
            ASSERT_EQ(Forwards(*table), Backwards(*table));
        }
        EXPECT_TRUE(table->PutBack(out).empty());
        std::vector<Texts> all;
        all.reserve(30);
        for (int i = 0; i < 30; ++i)
            all.push_back({"1", "Web", std::to_string(i)});
        ASSERT_EQ(Forwards(*table), all) << seed;
        Commit(*table, file);
        ASSERT_EQ(file.size(), 30U);
        table = std::make_unique<Table>(HistoryLayout());
        Load(*table, file);
        EXPECT_EQ(Forwards(*table), all) << seed;
    }
}

}  // namespace
