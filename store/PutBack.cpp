// Rows that come back into a table.

#include <algorithm>
#include <utility>

#include "store/Table.h"

namespace store {

/// The columns of an image while rows come back among them.
struct Table::Mended {
    std::vector<RowStorage::Place> places;
    std::vector<State> states;
    std::vector<std::int64_t> file_rows;
    std::vector<RowNumber> journal;  // of the rows that came back and are not in the file

    void Take(RowStorage::Place place, State state, std::int64_t file_row) {
        places.push_back(place);
        states.push_back(state);
        file_rows.push_back(file_row);
    }
    void TakeBack(RowStorage::Place place, std::int64_t file_row) {
        journal.push_back(static_cast<RowNumber>(states.size()));
        Take(place, State::Added, file_row);
    }
};

RowStorage::Place Table::Store(const KeptRow& row) {
    std::vector<std::string_view> values(row.values.begin(), row.values.end());
    values.resize(FieldCount());
    return storage_.Add(values);
}

std::vector<std::size_t> Table::PutBack(std::span<const KeptRow> rows) {
    std::vector<std::size_t> order(rows.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::stable_sort(order.begin(), order.end(), [rows](std::size_t left, std::size_t right) {
        return rows[left].place < rows[right].place;
    });
    std::vector<std::size_t> refused;
    Mended mended;
    std::vector<RowNumber> moved(End());  // where each row is afterwards
    RowNumber old = 0;
    const auto take_old = [&] {
        moved[old] = static_cast<RowNumber>(mended.states.size());
        mended.Take(places_[old], states_[old], file_rows_[old]);
        ++old;
    };
    for (const std::size_t i : order) {
        const std::int64_t place = rows[i].place;
        while (old < End() && file_rows_[old] < place)
            take_old();
        const bool is_known = old < End() && file_rows_[old] == place;
        const bool is_twice = !mended.file_rows.empty() && mended.file_rows.back() == place;
        if (place <= 0 || is_twice || (is_known && IsThere(old))) {
            refused.push_back(i);
        } else if (!is_known) {
            mended.TakeBack(Store(rows[i]), place);
        } else {
            ComeBack(old, rows[i], mended);
            take_old();
        }
    }
    while (old < End())
        take_old();
    if (refused.size() < rows.size()) TakeOver(std::move(mended), moved, rows.size() - refused.size());
    return refused;
}

/// Into the gap that the row left. One that the journal still names needs no second mention.
void Table::ComeBack(RowNumber row, const KeptRow& kept, Mended& mended) {
    const State before = states_[row];
    places_[row] = Store(kept);
    states_[row] = before == State::Removed ? State::Changed : State::Added;
    if (before == State::Gone) mended.journal.push_back(static_cast<RowNumber>(mended.states.size()));
}

void Table::TakeOver(Mended mended, const std::vector<RowNumber>& moved, std::size_t more) {
    for (RowNumber& row : journal_)
        row = moved[row];
    journal_.insert(journal_.end(), mended.journal.begin(), mended.journal.end());
    places_ = std::move(mended.places);
    states_ = std::move(mended.states);
    file_rows_ = std::move(mended.file_rows);
    count_ += more;
    // Walks had made gaps longer, which may have rows in them now.
    for (RowNumber row = 0; row < End(); ++row) {
        if (!IsThere(row)) places_[row] = Gap{row, row + 1};
    }
    for (std::uint64_t& rewrites : rewrites_)
        ++rewrites;
}

}  // namespace store
