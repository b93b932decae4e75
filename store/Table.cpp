#include "store/Table.h"

#include <algorithm>
#include <cassert>

namespace store {
namespace {

// Less than this is not worth a walk over all rows.
constexpr std::size_t kWorthTidying = 4U << 20U;

}  // namespace

Table::Table(const ports::TableLayout& layout)
    : layout_(layout), storage_(layout.fields.size()), rewrites_(layout.fields.size()) {}

void Table::Load(std::int64_t file_row, std::span<const std::string_view> values) {
    assert(file_rows_.empty() || file_row > file_rows_.back());
    places_.push_back(storage_.Add(values));
    states_.push_back(State::Kept);
    file_rows_.push_back(file_row);
    ++count_;
}

void Table::Clear() {
    storage_ = RowStorage(layout_.fields.size());
    places_.clear();
    states_.clear();
    file_rows_.clear();
    journal_.clear();
    for (std::uint64_t& rewrites : rewrites_)
        ++rewrites;
    count_ = 0;
}

RowNumber Table::FirstWith(std::size_t column, std::string_view text) const {
    // Nothing but the comparison: this walk may be a million rows long and stands between a click and its
    // song.
    for (RowNumber row = 0; row < End(); ++row) {
        if (states_[row] <= State::Changed && Value(row, column) == text) return row;
    }
    return End();
}

RowNumber Table::EndOfLastBefore(RowNumber end) const {
    RowNumber found = std::min(end, End());
    RowNumber gap = found;
    while (found > 0 && states_[found - 1] > State::Changed)
        found = places_[found - 1].block;
    while (gap > found) {
        const RowNumber next = places_[gap - 1].block;
        places_[gap - 1].block = found;
        gap = next;
    }
    return found;
}

void Table::Append(std::span<const std::string_view> values) {
    const std::int64_t file_row = file_rows_.empty() ? 1 : file_rows_.back() + 1;
    journal_.push_back(End());
    places_.push_back(storage_.Add(values));
    states_.push_back(State::Added);
    file_rows_.push_back(file_row);
    ++count_;
}

void Table::Mark(RowNumber row, State state) {
    if (states_[row] == State::Kept) journal_.push_back(row);
    states_[row] = state;
}

void Table::Replace(RowNumber row, std::span<const std::string_view> values) {
    assert(IsThere(row));
    for (std::size_t column = 0; column < values.size(); ++column) {
        if (values[column] != Value(row, column)) ++rewrites_[column];
    }
    places_[row] = storage_.Replace(places_[row], values);
    if (states_[row] == State::Kept) Mark(row, State::Changed);
    TidyUp();
}

void Table::Remove(RowNumber row) {
    assert(IsThere(row));
    storage_.Remove(places_[row]);
    places_[row] = Gap{row, row + 1};
    Mark(row, states_[row] == State::Added ? State::Dropped : State::Removed);
    --count_;
    TidyUp();
}

bool Table::ChangeOf(RowNumber row, ports::RowChange& change, std::vector<std::string_view>& values) const {
    assert(row < End() && states_[row] != State::Kept);
    if (states_[row] >= State::Dropped) return false;
    change.row = file_rows_[row];
    values.clear();
    if (states_[row] == State::Removed) {
        change.kind = ports::ChangeKind::Delete;
    } else {
        change.kind = states_[row] == State::Added ? ports::ChangeKind::Insert : ports::ChangeKind::Update;
        for (std::size_t column = 0; column < FieldCount(); ++column)
            values.push_back(Value(row, column));
    }
    change.values = values;
    return true;
}

void Table::ForgetJournal() {
    for (const RowNumber row : journal_)
        states_[row] = IsThere(row) ? State::Kept : State::Gone;
    journal_.clear();
    journal_.shrink_to_fit();
}

void Table::TidyUp() {
    if (storage_.BytesWasted() < std::max(kWorthTidying, storage_.BytesHeld() / 2)) return;
    for (RowNumber row = FirstFrom(0); row < End(); row = FirstFrom(row + 1)) {
        places_[row] = storage_.MoveToEnd(places_[row]);
    }
}

std::size_t Table::BytesHeld() const {
    return storage_.BytesHeld() + places_.capacity() * sizeof(RowStorage::Place) + states_.capacity() +
           file_rows_.capacity() * sizeof(std::int64_t) + journal_.capacity() * sizeof(RowNumber);
}

}  // namespace store
