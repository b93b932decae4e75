// The stores as SQLite files, readable by any tool for such files.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "ports/Database.h"

namespace sqlite {

class SqliteDatabase final : public ports::Database {
public:
    /// Turns a drive-letter path into the bytes of the path that the system knows.
    using NativePath = std::function<std::string(std::string_view)>;

    explicit SqliteDatabase(NativePath native_path);

    // ports::Database
    ports::OpenedStore Open(std::string_view path, const ports::StoreLayout& layout,
                            int wait_milliseconds) override;

private:
    NativePath native_path_;
};

}  // namespace sqlite
