// Database files that live in memory, outlast their openings, and fail when a test says so.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "ports/Database.h"

namespace fakes {

class FakeDatabase final : public ports::Database {
public:
    using Row = std::vector<std::string>;

    /// Puts a file there, with all tables of its layout (chosen by the end of its path) and no rows.
    void MakeStore(std::string_view path);
    /// Puts the file there if it is missing, and rows after those of a table: one value a field, missing
    /// ones empty.
    void Seed(std::string_view path, std::string_view table, const std::vector<Row>& rows);
    /// Takes the file away, also from whoever has it open.
    void Remove(std::string_view path);
    /// The rows that are in the file now, in table order.
    std::vector<Row> Rows(std::string_view path, std::string_view table) const;
    /// Their row numbers.
    std::vector<std::int64_t> RowNumbers(std::string_view path, std::string_view table) const;

    /// What opening, reading or writing the file fails with from now on; None heals it.
    void FailOpen(std::string_view path, ports::DatabaseError error);
    void FailRead(std::string_view path, ports::DatabaseError error);
    void FailApply(std::string_view path, ports::DatabaseError error);

    // ports::Database
    ports::OpenedStore Open(std::string_view path, const ports::StoreLayout& layout,
                            int wait_milliseconds) override;

    int Opens = 0;  ///< files opened
    std::size_t RowsRead = 0;
    int Commits = 0;    ///< transactions that were kept
    int Attempts = 0;   ///< transactions that were tried
    int LastWait = -1;  ///< milliseconds that the last opening or transaction would have waited

private:
    class OpenFile;
    using Table = std::map<std::int64_t, Row>;
    struct File {
        const ports::StoreLayout* layout = nullptr;
        std::vector<Table> tables;
        ports::DatabaseError open_error = ports::DatabaseError::None;
        ports::DatabaseError read_error = ports::DatabaseError::None;
        ports::DatabaseError apply_error = ports::DatabaseError::None;
    };

    const Table* Find(std::string_view path, std::string_view table) const;

    std::map<std::string, File, std::less<>> files_;
};

}  // namespace fakes
