// The rows of one query, walked one at a time, in table order.
//
// A record set stands on a row, or behind the last (Eof), or before the first (Bof). Rows are those of the table as it
// is now: a row that another record set added is met by MoveNext and MoveLast, a deleted one is passed over. Values
// are texts; a number is its decimal text, an empty value is the empty text.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "store/Tables.h"

namespace store {

class Table;

class RecordSet {
public:
    /// To the first, the last, the next, the previous row. False when there is no such row; the record set is then at
    /// Eof or Bof (at both when the table is empty). A pending AddNew or Edit is abandoned.
    bool MoveFirst();
    bool MoveLast();
    bool MoveNext();
    bool MovePrevious();
    bool Eof() const;
    bool Bof() const;
    /// Rows of the query.
    std::size_t RecordCount() const;

    /// The value of the current row's field, or what Set gave it since AddNew or Edit. Empty when there is no current
    /// row (also right after Delete). The view holds until the table changes.
    std::string_view Text(Field field) const;

    /// Begins a new row; Update puts it behind the last. The current row stays the current one.
    bool AddNew();
    /// Begins to change the current row; false when there is none.
    bool Edit();
    /// A value of the row begun with AddNew or Edit; false without one.
    bool Set(Field field, std::string_view value);
    /// Keeps the row begun with AddNew or Edit. False without one.
    bool Update();
    /// Abandons the row begun with AddNew or Edit.
    void CancelUpdate();
    /// Removes the current row; false when there is none. There is no current row then until the next move, and
    /// MoveNext goes to the row that followed.
    bool Delete();

private:
    friend class DataSource;
    struct Change;

    const Table* TableForReading() const;

public:
    RecordSet();
    RecordSet(RecordSet&&) noexcept;
    RecordSet& operator=(RecordSet&&) noexcept;
    ~RecordSet();

private:
    Table* table_ = nullptr;
    std::vector<std::size_t> order_;  // rows in the query's order; empty for table order
    std::size_t position_ = 0;
    std::unique_ptr<Change> change_;
};

}  // namespace store
