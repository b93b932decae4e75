// The image of one table in memory, and the journal of what was changed in it since the file was last equal
// to it.
//
// A row keeps its number (counted from 0 in table order) for the life of the image, unless removed rows are
// put back before it: a deleted row stays as a gap that walks skip. New rows come last. The journal remembers
// which rows differ from the file, not how: writing it reads the image, so a row that was added and then
// edited is one insert.
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "ports/Database.h"
#include "store/KeptRow.h"
#include "store/RowStorage.h"

namespace store {

using RowNumber = std::uint32_t;

class Table {
public:
    explicit Table(const ports::TableLayout& layout);
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

    const ports::TableLayout& Layout() const { return layout_; }
    std::size_t FieldCount() const { return layout_.fields.size(); }

    /// Takes over a row of the file; rising `file_row`s.
    void Load(std::int64_t file_row, std::span<const std::string_view> values);
    /// Forgets everything, for a load that failed half way.
    void Clear();

    /// Rows there are.
    std::size_t Count() const { return count_; }
    /// One more than the highest row number so far, gaps included.
    RowNumber End() const { return static_cast<RowNumber>(states_.size()); }
    bool IsThere(RowNumber row) const { return row < End() && states_[row] <= State::Changed; }
    /// The first row at or after `row`; End() when there is none.
    RowNumber FirstFrom(RowNumber row) const;
    /// The first row whose value in a column is just this text; End() when there is none.
    RowNumber FirstWith(std::size_t column, std::string_view text) const;
    /// One more than the last row before `end`; 0 when there is none.
    RowNumber EndOfLastBefore(RowNumber end) const;
    /// The value of a row that is there. The view holds until the table changes.
    std::string_view Value(RowNumber row, std::size_t column) const {
        assert(IsThere(row));
        return storage_.Text(places_[row], column);
    }

    /// Where a row lies; nullptr for one that is not there.
    const char* Begin(RowNumber row) const { return IsThere(row) ? storage_.Begin(places_[row]) : nullptr; }

    /// Adds a row of one value per field after the last.
    void Append(std::span<const std::string_view> values);
    /// Gives a row that is there other values; they may be views of its old ones.
    void Replace(RowNumber row, std::span<const std::string_view> values);
    /// Removes a row that is there.
    void Remove(RowNumber row);
    /// The number under which the file has the row, or will have it: it rises in table order, and outlasts
    /// the image.
    std::int64_t FileRow(RowNumber row) const { return file_rows_[row]; }
    /// Puts rows that were removed back where they were. Those whose place is taken stay out; the result
    /// names them. Rows after them may get other numbers, so every text counts as rewritten.
    std::vector<std::size_t> PutBack(std::span<const KeptRow> rows);

    /// How often a row got another text in this column, Clear counted too.
    std::uint64_t Rewrites(std::size_t column) const { return rewrites_[column]; }

    /// Rows that the journal names.
    std::span<const RowNumber> Journal() const { return journal_; }
    /// What became of a row of the journal; false if the file needs no change (added and removed
    /// again).
    bool ChangeOf(RowNumber row, ports::RowChange& change, std::vector<std::string_view>& values) const;
    /// The file holds the image now.
    void ForgetJournal();

    std::size_t BytesHeld() const;

private:
    // Those up to Changed are there; those from Added differ from the file, Gone excepted.
    // Dropped rows never came into the file, and the journal still names them; Gone ones it does not.
    enum class State : std::uint8_t { Kept, Added, Changed, Removed, Dropped, Gone };
    struct Mended;

    // In a gap, the place's numbers say where to go on: `block` is the end of the rows to look at before it,
    // `offset` the row to look at after it. Walks lengthen them on the way; where rows come back all begin
    // again, each as itself alone.
    using Gap = RowStorage::Place;

    void Mark(RowNumber row, State state);
    void TidyUp();
    RowStorage::Place Store(const KeptRow& row);
    void ComeBack(RowNumber row, const KeptRow& kept, Mended& mended);
    void TakeOver(Mended mended, const std::vector<RowNumber>& moved, std::size_t more);

    const ports::TableLayout& layout_;
    RowStorage storage_;
    mutable std::vector<RowStorage::Place> places_;
    std::vector<State> states_;
    std::vector<std::int64_t> file_rows_;
    std::vector<RowNumber> journal_;
    std::vector<std::uint64_t> rewrites_;
    std::size_t count_ = 0;
};

inline RowNumber Table::FirstFrom(RowNumber row) const {
    RowNumber found = row;
    while (found < End() && states_[found] > State::Changed)
        found = places_[found].offset;
    while (row < found) {  // every gap on the way leads there at once the next time
        const RowNumber next = places_[row].offset;
        places_[row].offset = found;
        row = next;
    }
    return found;
}

}  // namespace store
