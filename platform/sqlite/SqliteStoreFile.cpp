#include "platform/sqlite/SqliteStoreFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "platform/sqlite/Journal.h"

namespace sqlite {
namespace {

using ports::DatabaseError;
using ports::DatabaseResult;

// After a big transaction the log is cut back to this size.
constexpr const char* kCutLog = "PRAGMA journal_size_limit = 4194304";

// An address that opens a file nobody changes, without making the log's side files.
std::string UnchangingAddress(const std::string& path) {
    constexpr std::string_view kHex = "0123456789ABCDEF";
    std::string address = "file:";
    for (const char character : path) {
        const auto byte = static_cast<unsigned char>(character);
        const bool is_plain = byte == '/' || (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
                              (byte >= 'a' && byte <= 'z');
        if (is_plain) {
            address += character;
        } else {
            address += {'%', kHex[byte >> 4U], kHex[byte & 0xFU]};
        }
    }
    return address + "?immutable=1";
}

bool IsWriteTrouble(DatabaseError error) {
    return error == DatabaseError::ReadOnly || error == DatabaseError::DiskFull;
}

std::string_view ColumnText(sqlite3_stmt* statement, int column) {
    const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    if (text == nullptr) return {};
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

std::string ReadSql(const ports::TableLayout& table) {
    std::string fields = "rowid";
    for (const ports::FieldLayout& field : table.fields)
        fields += ", " + Quoted(field.name);
    return "SELECT " + fields + " FROM " + Quoted(table.name) + " WHERE rowid >= ?1 ORDER BY rowid LIMIT ?2";
}

}  // namespace

// The page size of a database file stands in two bytes of its head, 1 for 65,536.
bool EndsInsideAPage(const std::string& native_path) {
    struct stat status = {};
    if (::stat(native_path.c_str(), &status) != 0) return false;
    constexpr std::size_t kPageSizeAt = 16;
    std::array<char, kPageSizeAt + 2> head{};
    std::ifstream file(native_path, std::ios::binary);
    if (!file.read(head.data(), head.size())) return false;
    const auto high = static_cast<unsigned char>(head[kPageSizeAt]);
    const auto low = static_cast<unsigned char>(head[kPageSizeAt + 1]);
    const std::uintmax_t stored = static_cast<std::uintmax_t>(high) * 256U + low;
    const std::uintmax_t page = stored == 1 ? 65'536U : stored;
    return page != 0 && static_cast<std::uintmax_t>(status.st_size) % page != 0;
}

SqliteStoreFile::SqliteStoreFile(std::string native_path, const ports::StoreLayout& layout)
    : path_(std::move(native_path)), layout_(layout) {}

DatabaseResult SqliteStoreFile::Open(int wait_milliseconds) {
    if (::stat(path_.c_str(), &identity_) != 0) return {DatabaseError::Missing, std::strerror(errno)};
    if (!HasLog() && EndsInsideAPage(path_)) return {DatabaseError::Damaged, "the file ends inside a page"};
    DatabaseResult result = Reconnect(path_, SQLITE_OPEN_READWRITE, wait_milliseconds);
    can_write_ = result.Ok() && sqlite3_db_readonly(connection_.get(), "main") == 0;
    // A log that was left behind holds rows; reading past it would lose them.
    if (!IsWriteTrouble(result.error) || HasLog()) return result;
    result = Reconnect(UnchangingAddress(path_), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, wait_milliseconds);
    if (IsWriteTrouble(result.error)) result.error = DatabaseError::InputOutput;
    return result;
}

bool SqliteStoreFile::HasLog() const {
    struct stat log = {};
    return ::stat((path_ + "-wal").c_str(), &log) == 0 && log.st_size > 0;
}

DatabaseResult SqliteStoreFile::Reconnect(const std::string& name, int flags, int wait_milliseconds) {
    Connection connection;
    DatabaseResult result = Connect(name, flags, connection);
    if (!result.Ok()) return result;
    sqlite3_busy_timeout(connection.get(), wait_milliseconds);
    result = CheckTables(connection.get());
    if (result.Ok()) connection_ = std::move(connection);
    return result;
}

DatabaseResult SqliteStoreFile::CheckTables(sqlite3* connection) const {
    for (const ports::TableLayout& table : layout_.tables) {
        if (Prepare(connection, ReadSql(table)) == nullptr) return LastError(connection);
    }
    return {};
}

DatabaseResult SqliteStoreFile::ReadRows(std::size_t table, const ports::RowPiece& piece,
                                         const ports::RowSink& sink) {
    using Number = std::numeric_limits<std::int64_t>;
    if (piece.after == Number::max()) return {};
    const ports::TableLayout& layout = layout_.tables[table];
    const Statement statement = Prepare(connection_.get(), ReadSql(layout));
    if (statement == nullptr) return LastError(connection_.get());
    const std::int64_t first = piece.after ? *piece.after + 1 : Number::min();
    const auto most = static_cast<std::int64_t>(std::min<std::uint64_t>(piece.most, Number::max()));
    sqlite3_bind_int64(statement.get(), 1, first);
    sqlite3_bind_int64(statement.get(), 2, most);
    std::vector<std::string_view> values(layout.fields.size());
    int code = SQLITE_OK;
    while ((code = sqlite3_step(statement.get())) == SQLITE_ROW) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            values[i] = ColumnText(statement.get(), static_cast<int>(i) + 1);
        }
        const std::int64_t row = sqlite3_column_int64(statement.get(), 0);
        // Whoever reads piece by piece would meet the rows of a damaged table again and again.
        if (row < first) return {DatabaseError::Damaged, "rows out of order"};
        sink(row, values);
    }
    return code == SQLITE_DONE ? DatabaseResult{} : LastError(connection_.get());
}

DatabaseResult SqliteStoreFile::CheckStillThere() const {
    struct stat now = {};
    if (::stat(path_.c_str(), &now) != 0) return {DatabaseError::Missing, std::strerror(errno)};
    const bool is_same = now.st_dev == identity_.st_dev && now.st_ino == identity_.st_ino;
    return is_same ? DatabaseResult{}
                   : DatabaseResult{DatabaseError::Missing, "another file stands in its place"};
}

DatabaseResult SqliteStoreFile::GetReadyToWrite(int wait_milliseconds) {
    if (!can_write_) {
        DatabaseResult result = Reconnect(path_, SQLITE_OPEN_READWRITE, wait_milliseconds);
        if (!result.Ok()) return result;
        can_write_ = sqlite3_db_readonly(connection_.get(), "main") == 0;
        if (!can_write_) return {DatabaseError::ReadOnly, "opened for reading only"};
    }
    sqlite3_busy_timeout(connection_.get(), wait_milliseconds);
    if (keeps_log_) return {};
    DatabaseResult result = Execute(connection_.get(), "PRAGMA journal_mode = WAL");
    if (result.Ok()) result = Execute(connection_.get(), "PRAGMA synchronous = FULL");
    if (result.Ok()) result = Execute(connection_.get(), kCutLog);
    keeps_log_ = result.Ok();
    return result;
}

DatabaseResult SqliteStoreFile::Apply(const ports::NextChange& changes, int wait_milliseconds) {
    DatabaseResult result = CheckStillThere();
    if (result.Ok()) result = GetReadyToWrite(wait_milliseconds);
    if (!result.Ok()) return result;
    return ApplyChanges(connection_.get(), layout_, changes);
}

}  // namespace sqlite
