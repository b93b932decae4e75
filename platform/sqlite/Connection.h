// A connection and its statements, closed automatically, and the engine's errors in the words of the port.
#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>
#include <string_view>

#include "ports/Database.h"

namespace sqlite {

struct CloseConnection {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};
using Connection = std::unique_ptr<sqlite3, CloseConnection>;

struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// What the connection's last call failed with. Never None.
ports::DatabaseResult LastError(sqlite3* connection);

/// Opens `name`, a path or, with SQLITE_OPEN_URI in the flags, an address. `connection` stays null after an
/// error.
ports::DatabaseResult Connect(const std::string& name, int flags, Connection& connection);

/// Null after an error, which LastError then returns.
Statement Prepare(sqlite3* connection, const std::string& sql);

/// Runs statements and ignores their rows.
ports::DatabaseResult Execute(sqlite3* connection, const char* sql);

/// A name quoted for use in a statement.
std::string Quoted(std::string_view name);

}  // namespace sqlite
