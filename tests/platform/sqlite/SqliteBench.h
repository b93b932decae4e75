// A folder of its own for SQLite files, and another program at work on them.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/sqlite/Connection.h"
#include "platform/sqlite/SqliteDatabase.h"

namespace sqlite_tests {

class SqliteBench {
public:
    SqliteBench();
    ~SqliteBench();
    SqliteBench(const SqliteBench&) = delete;
    SqliteBench& operator=(const SqliteBench&) = delete;

    ports::Database& Database() { return database_; }
    const std::filesystem::path& Folder() const { return folder_; }
    /// "C:\app\dbMedia.mdb" for "\dbMedia.mdb"; it stands in the folder.
    static std::string PathOf(std::string_view file) { return "C:\\app" + std::string(file); }
    std::filesystem::path NativeOf(std::string_view path) const;

    /// A file with the tables of its layout and no rows.
    void MakeStore(std::string_view path);
    void RemoveStore(std::string_view path);

    /// Runs statements as another program would; false when they fail.
    bool RunElsewhere(std::string_view path, const char* sql);
    /// Columns of a query's rows joined by "|", read by another program.
    std::vector<std::string> AskElsewhere(std::string_view path, const std::string& sql);
    /// Another program takes the file for itself, until Unlock.
    void Lock(std::string_view path);
    void Unlock();

private:
    std::filesystem::path folder_;
    sqlite::SqliteDatabase database_;
    sqlite::Connection locking_;
};

/// Does what it is told as a person who is not the superuser, whose rights no mode of a file can bound.
class AsOrdinaryPerson {
public:
    AsOrdinaryPerson();
    ~AsOrdinaryPerson();
    AsOrdinaryPerson(const AsOrdinaryPerson&) = delete;
    AsOrdinaryPerson& operator=(const AsOrdinaryPerson&) = delete;

private:
    uid_t before_;
};

}  // namespace sqlite_tests
