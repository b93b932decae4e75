#include "fakes/FakeDatabase.h"

#include <cassert>

#include "base/Text.h"
#include "store/Layouts.h"

namespace fakes {
namespace {

using ports::DatabaseError;
using ports::DatabaseResult;

DatabaseResult Failed(DatabaseError error) {
    return {error, "failed as the test said"};
}

std::size_t TablePlace(const ports::StoreLayout& layout, std::string_view table) {
    std::size_t place = 0;
    while (place < layout.tables.size() && !base::EqualIgnoringCase(layout.tables[place].name, table))
        ++place;
    return place;
}

}  // namespace

class FakeDatabase::OpenFile final : public ports::StoreFile {
public:
    OpenFile(FakeDatabase& owner, std::string_view path) : owner_(owner), path_(path) {}

    DatabaseResult ReadRows(std::size_t table, const ports::RowPiece& piece,
                            const ports::RowSink& sink) override {
        File* const file = Find();
        if (file == nullptr) return Failed(DatabaseError::Missing);
        if (file->read_error != DatabaseError::None) return Failed(file->read_error);
        const Table& rows = file->tables[table];
        std::vector<std::string_view> values;
        std::size_t given = 0;
        for (auto row = piece.after ? rows.upper_bound(*piece.after) : rows.begin();
             row != rows.end() && given < piece.most; ++row, ++given) {
            values.assign(row->second.begin(), row->second.end());
            sink(row->first, values);
        }
        owner_.RowsRead += given;
        return {};
    }

    DatabaseResult Apply(const ports::NextChange& changes, int wait_milliseconds) override {
        ++owner_.Attempts;
        owner_.LastWait = wait_milliseconds;
        File* const file = Find();
        if (file == nullptr) return Failed(DatabaseError::Missing);
        if (file->apply_error != DatabaseError::None) return Failed(file->apply_error);
        while (const ports::RowChange* change = changes())
            Change(file->tables[change->table], *change);
        ++owner_.Commits;
        return {};
    }

private:
    File* Find() {
        const auto found = owner_.files_.find(path_);
        return found == owner_.files_.end() ? nullptr : &found->second;
    }
    static void Change(Table& table, const ports::RowChange& change) {
        if (change.kind == ports::ChangeKind::Delete) {
            table.erase(change.row);
        } else {
            table[change.row] = Row(change.values.begin(), change.values.end());
        }
    }

    FakeDatabase& owner_;
    std::string path_;
};

void FakeDatabase::MakeStore(std::string_view path) {
    const ports::StoreLayout* const layout = store::LayoutOf(path);
    assert(layout != nullptr);
    File& file = files_[std::string(path)];
    file.layout = layout;
    file.tables.assign(layout->tables.size(), {});
}

void FakeDatabase::Seed(std::string_view path, std::string_view table, const std::vector<Row>& rows) {
    File& file = files_[std::string(path)];
    if (file.layout == nullptr) MakeStore(path);
    assert(file.layout != nullptr);
    const std::size_t place = TablePlace(*file.layout, table);
    assert(place < file.tables.size());
    Table& target = file.tables[place];
    for (Row row : rows) {
        row.resize(file.layout->tables[place].fields.size());
        const std::int64_t number = target.empty() ? 1 : target.rbegin()->first + 1;
        target.emplace(number, std::move(row));
    }
}

void FakeDatabase::Remove(std::string_view path) {
    files_.erase(std::string(path));
}

const FakeDatabase::Table* FakeDatabase::Find(std::string_view path, std::string_view table) const {
    const auto file = files_.find(path);
    if (file == files_.end()) return nullptr;
    const std::size_t place = TablePlace(*file->second.layout, table);
    return place < file->second.tables.size() ? &file->second.tables[place] : nullptr;
}

std::vector<FakeDatabase::Row> FakeDatabase::Rows(std::string_view path, std::string_view table) const {
    std::vector<Row> rows;
    if (const Table* const found = Find(path, table)) {
        for (const auto& [number, row] : *found)
            rows.push_back(row);
    }
    return rows;
}

std::vector<std::int64_t> FakeDatabase::RowNumbers(std::string_view path, std::string_view table) const {
    std::vector<std::int64_t> numbers;
    if (const Table* const found = Find(path, table)) {
        for (const auto& [number, row] : *found)
            numbers.push_back(number);
    }
    return numbers;
}

void FakeDatabase::FailOpen(std::string_view path, DatabaseError error) {
    files_[std::string(path)].open_error = error;
}

void FakeDatabase::FailRead(std::string_view path, DatabaseError error) {
    files_[std::string(path)].read_error = error;
}

void FakeDatabase::FailApply(std::string_view path, DatabaseError error) {
    files_[std::string(path)].apply_error = error;
}

ports::OpenedStore FakeDatabase::Open(std::string_view path, const ports::StoreLayout& layout,
                                      int wait_milliseconds) {
    LastWait = wait_milliseconds;
    const auto found = files_.find(path);
    if (found == files_.end()) return {nullptr, Failed(DatabaseError::Missing)};
    const File& file = found->second;
    if (file.open_error != DatabaseError::None) return {nullptr, Failed(file.open_error)};
    if (file.layout == nullptr) return {nullptr, Failed(DatabaseError::Missing)};
    if (file.layout->file != layout.file) return {nullptr, Failed(DatabaseError::OtherKind)};
    ++Opens;
    return {std::make_unique<OpenFile>(*this, path), {}};
}

}  // namespace fakes
