#include "platform/sqlite/Connection.h"

#include <cerrno>

namespace sqlite {
namespace {

using ports::DatabaseError;

bool IsFullDisk(int system_error) {
    return system_error == ENOSPC || system_error == EDQUOT || system_error == EFBIG;
}

DatabaseError Meaning(int code, int system_error) {
    switch (code & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
        case SQLITE_PROTOCOL:
            return DatabaseError::Locked;
        case SQLITE_FULL:
            return DatabaseError::DiskFull;
        case SQLITE_CANTOPEN:
        case SQLITE_IOERR:
            if (IsFullDisk(system_error)) return DatabaseError::DiskFull;
            return (code & 0xFF) == SQLITE_CANTOPEN ? DatabaseError::ReadOnly : DatabaseError::InputOutput;
        case SQLITE_READONLY:
        case SQLITE_PERM:
            return DatabaseError::ReadOnly;
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT:
            return DatabaseError::Damaged;
        case SQLITE_ERROR:  // no such table, no such column
        case SQLITE_SCHEMA:
            return DatabaseError::OtherKind;
        default:
            return DatabaseError::InputOutput;
    }
}

}  // namespace

ports::DatabaseResult LastError(sqlite3* connection) {
    const int code = sqlite3_extended_errcode(connection);
    return {Meaning(code, sqlite3_system_errno(connection)), sqlite3_errmsg(connection)};
}

ports::DatabaseResult Connect(const std::string& name, int flags, Connection& connection) {
    sqlite3* raw = nullptr;
    const int code = sqlite3_open_v2(name.c_str(), &raw, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    connection.reset(raw);
    if (code == SQLITE_OK) {
        sqlite3_extended_result_codes(raw, 1);
        return {};
    }
    if (raw == nullptr) return {DatabaseError::InputOutput, sqlite3_errstr(code)};
    ports::DatabaseResult error = LastError(raw);
    connection.reset();
    return error;
}

Statement Prepare(sqlite3* connection, const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection, sql.c_str(), static_cast<int>(sql.size()), &statement, nullptr);
    return Statement(statement);
}

ports::DatabaseResult Execute(sqlite3* connection, const char* sql) {
    const int code = sqlite3_exec(connection, sql, nullptr, nullptr, nullptr);
    return code == SQLITE_OK ? ports::DatabaseResult{} : LastError(connection);
}

std::string Quoted(std::string_view name) {
    return "[" + std::string(name) + "]";
}

}  // namespace sqlite
