// One store as an SQLite file.
//
// Reading does not touch the file. The first change turns on the write-ahead log, every change is synced. A
// file or folder that cannot be written is read all the same; every later Apply tries again to get hold of it
// for writing.
#pragma once

#include <sys/stat.h>

#include <string>

#include "platform/sqlite/Connection.h"

namespace sqlite {

/// Whether a database file was cut off; the engine would read it as far as it goes. A file with a log may end
/// anywhere.
bool EndsInsideAPage(const std::string& native_path);

class SqliteStoreFile final : public ports::StoreFile {
public:
    SqliteStoreFile(std::string native_path, const ports::StoreLayout& layout);

    /// Once, before everything else.
    ports::DatabaseResult Open(int wait_milliseconds);

    // ports::StoreFile
    ports::DatabaseResult ReadRows(std::size_t table, const ports::RowPiece& piece,
                                   const ports::RowSink& sink) override;
    ports::DatabaseResult Apply(const ports::NextChange& changes, int wait_milliseconds) override;

private:
    /// Takes a connection in the place of the present one; an error leaves that one.
    ports::DatabaseResult Reconnect(const std::string& name, int flags, int wait_milliseconds);
    ports::DatabaseResult CheckTables(sqlite3* connection) const;
    ports::DatabaseResult GetReadyToWrite(int wait_milliseconds);
    ports::DatabaseResult CheckStillThere() const;
    bool HasLog() const;

    std::string path_;
    const ports::StoreLayout& layout_;
    Connection connection_;
    struct stat identity_ = {};
    bool can_write_ = false;  // as far as is known since the opening
    bool keeps_log_ = false;  // the write-ahead log is on
};

}  // namespace sqlite
