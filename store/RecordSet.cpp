#include "store/RecordSet.h"

#include <cassert>
#include <utility>

#include "store/Table.h"

namespace store {

// The row begun with AddNew or Edit.
struct RecordSet::Change {
    bool is_pending = false;
    bool is_adding = false;
    std::vector<std::string> values;
    std::vector<bool> is_set;
    std::vector<std::string_view> views;  // all values of the row, at Update
};

namespace {

[[maybe_unused]] bool Has(const Table& table, Field field) {
    const auto column = static_cast<std::size_t>(field.column);
    return column < table.FieldCount() && table.Layout().fields[column].name == field.name;
}

}  // namespace

RecordSet::RecordSet() = default;
RecordSet::RecordSet(RecordSet&&) noexcept = default;
RecordSet& RecordSet::operator=(RecordSet&&) noexcept = default;
RecordSet::~RecordSet() = default;

RecordSet::RecordSet(Table& table, std::vector<std::uint32_t> order)
    : table_(&table), order_(std::move(order)), behind_order_(order_.empty() ? 0 : table.End()) {
    MoveFirst();
}

// Inline, since every step of a walk goes through them.

inline std::uint32_t RecordSet::RowAt(std::uint32_t position) const {
    const auto ordered = static_cast<std::uint32_t>(order_.size());
    return position < ordered ? order_[position] : position - ordered + behind_order_;
}

inline bool RecordSet::HasCurrentRow() const {
    return table_ != nullptr && standing_ == Standing::OnRow && table_->IsThere(RowAt(position_));
}

inline std::uint32_t RecordSet::EndPosition() const {
    return static_cast<std::uint32_t>(order_.size()) + table_->End() - behind_order_;
}

inline std::uint32_t RecordSet::FirstFrom(std::uint32_t position) const {
    const auto ordered = static_cast<std::uint32_t>(order_.size());
    for (; position < ordered; ++position) {
        if (table_->IsThere(order_[position])) return position;
    }
    return table_->FirstFrom(RowAt(position)) - behind_order_ + ordered;
}

std::uint32_t RecordSet::EndOfLastBefore(std::uint32_t end) const {
    const auto ordered = static_cast<std::uint32_t>(order_.size());
    if (end > ordered) {
        const RowNumber found = table_->EndOfLastBefore(RowAt(end));
        if (found > behind_order_) return found - behind_order_ + ordered;
        end = ordered;
    }
    while (end > 0 && !table_->IsThere(order_[end - 1]))
        --end;
    return end;
}

inline bool RecordSet::StandOn(std::uint32_t position) {
    if (change_ != nullptr) CancelUpdate();
    position_ = position;
    standing_ = position < EndPosition() ? Standing::OnRow : Standing::BehindLast;
    return standing_ == Standing::OnRow;
}

bool RecordSet::StandBefore(std::uint32_t end) {
    CancelUpdate();
    const std::uint32_t found = EndOfLastBefore(end);
    standing_ = found > 0 ? Standing::OnRow : Standing::BeforeFirst;
    if (found > 0) position_ = found - 1;
    return found > 0;
}

bool RecordSet::MoveFirst() {
    return table_ != nullptr && StandOn(FirstFrom(0));
}

bool RecordSet::MoveToFirst(Field field, std::string_view text) {
    if (table_ == nullptr) return false;
    assert(Has(*table_, field));
    if (order_.empty()) return StandOn(table_->FirstWith(static_cast<std::size_t>(field.column), text));
    MoveFirst();
    while (!Eof() && Text(field) != text)
        MoveNext();
    return !Eof();
}

bool RecordSet::MoveLast() {
    return table_ != nullptr && StandBefore(EndPosition());
}

bool RecordSet::MoveNext() {
    if (table_ == nullptr) return false;
    if (standing_ == Standing::BeforeFirst) return MoveFirst();
    if (standing_ == Standing::OnRow) return StandOn(FirstFrom(position_ + 1));
    CancelUpdate();
    return false;
}

bool RecordSet::MovePrevious() {
    if (table_ == nullptr) return false;
    if (standing_ == Standing::BehindLast) return MoveLast();
    if (standing_ == Standing::OnRow) return StandBefore(position_);
    CancelUpdate();
    return false;
}

bool RecordSet::Eof() const {
    return standing_ == Standing::BehindLast || RecordCount() == 0;
}

bool RecordSet::Bof() const {
    return standing_ == Standing::BeforeFirst || RecordCount() == 0;
}

std::size_t RecordSet::RecordCount() const {
    return table_ == nullptr ? 0 : table_->Count();
}

Bookmark RecordSet::CurrentBookmark() const {
    assert(HasCurrentRow());
    return RowAt(position_);
}

std::int64_t RecordSet::Place() const {
    assert(HasCurrentRow());
    return table_->FileRow(RowAt(position_));
}

std::vector<std::size_t> RecordSet::PutBack(std::span<const KeptRow> rows) {
    assert(order_.empty() && table_ != nullptr);
    return table_->PutBack(rows);
}

bool RecordSet::MoveTo(Bookmark bookmark) {
    assert(order_.empty());
    if (table_ == nullptr || !table_->IsThere(bookmark)) return false;
    return StandOn(bookmark);
}

// Here and not in a function of its own: the compiler takes one that does nothing else for one without
// effect.
bool RecordSet::MoveTo(Bookmark bookmark, Bookmark later) {
    constexpr std::size_t kCacheLine = 64;
    if (const char* const row = table_ == nullptr ? nullptr : table_->Begin(later)) {
        __builtin_prefetch(row);
        __builtin_prefetch(row + kCacheLine);
    }
    return MoveTo(bookmark);
}

Bookmark RecordSet::EndOfBookmarks() const {
    return table_ == nullptr ? 0 : table_->End();
}

std::uint64_t RecordSet::Rewrites(Field field) const {
    return table_ == nullptr ? 0 : table_->Rewrites(static_cast<std::size_t>(field.column));
}

std::string_view RecordSet::Text(Field field) const {
    if (table_ == nullptr) return {};
    assert(Has(*table_, field));
    const auto column = static_cast<std::size_t>(field.column);
    if (change_ != nullptr && change_->is_pending && (change_->is_adding || change_->is_set[column])) {
        return change_->values[column];
    }
    return HasCurrentRow() ? table_->Value(RowAt(position_), column) : std::string_view();
}

bool RecordSet::Begin(bool adding) {
    if (change_ == nullptr) change_ = std::make_unique<Change>();
    change_->is_pending = true;
    change_->is_adding = adding;
    change_->values.resize(table_->FieldCount());
    for (std::string& value : change_->values)
        value.clear();
    change_->is_set.assign(table_->FieldCount(), false);
    return true;
}

bool RecordSet::AddNew() {
    return table_ != nullptr && Begin(true);
}

bool RecordSet::Edit() {
    CancelUpdate();
    return HasCurrentRow() && Begin(false);
}

bool RecordSet::Set(Field field, std::string_view value) {
    if (change_ == nullptr || !change_->is_pending) return false;
    assert(Has(*table_, field));
    const auto column = static_cast<std::size_t>(field.column);
    change_->values[column] = value;
    change_->is_set[column] = true;
    return true;
}

bool RecordSet::Update() {
    if (change_ == nullptr || !change_->is_pending) return false;
    change_->is_pending = false;
    if (!change_->is_adding && !HasCurrentRow()) return false;
    change_->views.assign(change_->values.begin(), change_->values.end());
    if (change_->is_adding) {
        table_->Append(change_->views);
        return true;
    }
    const std::uint32_t row = RowAt(position_);
    for (std::size_t column = 0; column < change_->views.size(); ++column) {
        if (!change_->is_set[column]) change_->views[column] = table_->Value(row, column);
    }
    table_->Replace(row, change_->views);
    return true;
}

void RecordSet::CancelUpdate() {
    if (change_ != nullptr) change_->is_pending = false;
}

bool RecordSet::Delete() {
    CancelUpdate();
    if (!HasCurrentRow()) return false;
    table_->Remove(RowAt(position_));
    return true;
}

}  // namespace store
