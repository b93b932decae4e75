// The rows of one query, walked one at a time, in table order.
//
// A record set is on a row, or after the last (Eof), or before the first (Bof). Rows are those of the
// table as it is now: MoveNext and MoveLast also visit a row that another record set added, and skip a
// deleted one. Values are texts; a number is its decimal text, an empty value is the empty text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/KeptRow.h"
#include "store/Tables.h"

namespace store {

class Table;

/// The place of a row in its table: counted from 0 in table order, gaps of deleted rows included. A row keeps
/// its bookmark, and no other row ever gets it.
using Bookmark = std::uint32_t;

class RecordSet {
public:
    /// To the first, the last, the next, the previous row. False when there is no such row; the record set is
    /// then at Eof or Bof (at both when the table is empty). A pending AddNew or Edit is abandoned.
    bool MoveFirst();
    bool MoveLast();
    bool MoveNext();
    /// To the first row whose field holds just this text; at Eof when there is none.
    bool MoveToFirst(Field field, std::string_view text);
    bool MovePrevious();
    bool Eof() const;
    bool Bof() const;
    /// Rows of the query.
    std::size_t RecordCount() const;

    /// The bookmark of the current row; there must be one.
    Bookmark CurrentBookmark() const;
    /// Where the current row is in its file, which outlasts the run; there must be one.
    std::int64_t Place() const;
    /// Puts rows that were deleted back where they were. Those whose place is taken stay out; the result
    /// names them. Bookmarks of before hold no more, and every field counts as rewritten.
    std::vector<std::size_t> PutBack(std::span<const KeptRow> rows);
    /// To the row of a bookmark, in a record set in table order. False when that row is gone.
    bool MoveTo(Bookmark bookmark);
    /// As above. The row of `later`, to which one of the next calls moves, comes from memory meanwhile.
    bool MoveTo(Bookmark bookmark, Bookmark later);
    /// One more than the highest bookmark so far; 0 without a table.
    Bookmark EndOfBookmarks() const;
    /// Rises each time that an existing row gets another text in this field: what was computed from the
    /// field's texts is valid as long as this number stays the same.
    std::uint64_t Rewrites(Field field) const;

    /// The value of the current row's field, or what Set gave it since Edit; between AddNew and Update, of
    /// the new row, where a field that was not set is empty. Empty when there is no current row (also right
    /// after Delete). The view holds until the table changes.
    std::string_view Text(Field field) const;

    /// Begins a new row; Update puts it after the last. The current row stays the current one.
    bool AddNew();
    /// Begins to change the current row; false when there is none.
    bool Edit();
    /// A value of the row begun with AddNew or Edit; false without one.
    bool Set(Field field, std::string_view value);
    /// Keeps the row begun with AddNew or Edit. False without one.
    bool Update();
    /// Abandons the row begun with AddNew or Edit.
    void CancelUpdate();
    /// Removes the current row; false when there is none. There is no current row then until the next move,
    /// and MoveNext goes to the row that followed.
    bool Delete();

    RecordSet();
    RecordSet(RecordSet&&) noexcept;
    RecordSet& operator=(RecordSet&&) noexcept;
    ~RecordSet();

private:
    friend class DataSource;
    struct Change;
    enum class Standing { BeforeFirst, OnRow, BehindLast };

    /// Of a table in its own order, or with the rows there are now in `order` and later ones after them.
    explicit RecordSet(Table& table, std::vector<std::uint32_t> order = {});

    // Positions count the rows of `order_` and go on after them with the table's own.
    std::uint32_t RowAt(std::uint32_t position) const;
    std::uint32_t EndPosition() const;
    std::uint32_t FirstFrom(std::uint32_t position) const;
    std::uint32_t EndOfLastBefore(std::uint32_t end) const;
    bool StandOn(std::uint32_t position);
    bool StandBefore(std::uint32_t end);
    bool HasCurrentRow() const;
    bool Begin(bool adding);

    Table* table_ = nullptr;
    std::vector<std::uint32_t> order_;  // row numbers in the query's order; empty for table order
    std::uint32_t behind_order_ = 0;    // the table's first row that is not in `order_`
    std::uint32_t position_ = 0;
    Standing standing_ = Standing::BeforeFirst;
    std::unique_ptr<Change> change_;  // kept for the next one when it is over
};

}  // namespace store
