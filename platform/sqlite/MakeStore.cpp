#include "platform/sqlite/MakeStore.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "platform/sqlite/Journal.h"
#include "platform/sqlite/Versions.h"

namespace sqlite {
namespace {

using ports::DatabaseError;
using ports::DatabaseResult;

// A table needs a column even when none is used by name.
constexpr std::string_view kUnusedColumn = "[FolderPath] TEXT";

std::string CreateText(const ports::TableLayout& table) {
    std::string columns;
    for (const ports::FieldLayout& field : table.fields) {
        columns +=
            (columns.empty() ? "" : ", ") + Quoted(field.name) + (field.is_integer ? " INTEGER" : " TEXT");
    }
    if (columns.empty()) columns = kUnusedColumn;
    return "CREATE TABLE " + Quoted(table.name) + " (" + columns + ")";
}

DatabaseResult MakeFile(const std::string& path, bool owner_only) {
    const mode_t mode = owner_only ? S_IRUSR | S_IWUSR : S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
    const int file = ::open(path.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, mode);
    if (file < 0) return {DatabaseError::InputOutput, std::strerror(errno)};
    ::close(file);
    return {};
}

DatabaseResult Number(sqlite3* connection, const ports::StoreLayout& layout) {
    const auto store =
        std::find_if(kStoreVersions.begin(), kStoreVersions.end(),
                     [&layout](const auto& known) { return layout.file.ends_with(known.file); });
    if (store == kStoreVersions.end()) return {};
    return Execute(connection, ("PRAGMA user_version = " + std::to_string(store->Current())).c_str());
}

// Gives the rows one after another as inserts.
class RowReader {
public:
    RowReader(const ports::StoreLayout& layout, std::span<const StartingRow> rows)
        : rows_(rows), last_row_(layout.tables.size()) {}

    const ports::RowChange* Next() {
        if (place_ == rows_.size()) return nullptr;
        const StartingRow& row = rows_[place_++];
        change_ = {ports::ChangeKind::Insert, row.table, ++last_row_[row.table], row.values};
        return &change_;
    }

private:
    std::span<const StartingRow> rows_;
    std::vector<std::int64_t> last_row_;
    std::size_t place_ = 0;
    ports::RowChange change_;
};

}  // namespace

DatabaseResult MakeStore(const std::string& native_path, const ports::StoreLayout& layout,
                         std::span<const StartingRow> rows) {
    DatabaseResult result = MakeFile(native_path, layout.owner_only);
    Connection connection;
    if (result.Ok()) result = Connect(native_path, SQLITE_OPEN_READWRITE, connection);
    for (const ports::TableLayout& table : layout.tables) {
        if (result.Ok()) result = Execute(connection.get(), CreateText(table).c_str());
    }
    if (result.Ok()) result = Number(connection.get(), layout);
    if (!result.Ok()) return result;
    RowReader reader(layout, rows);
    return ApplyChanges(connection.get(), layout, [&reader] { return reader.Next(); });
}

}  // namespace sqlite
