// Makes the store files that are shipped. The program itself never makes one.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ports/Database.h"

namespace sqlite {

/// A row to begin with: its table's place in the layout, and one value a field.
struct StartingRow {
    std::size_t table = 0;
    std::vector<std::string_view> values;
};

/// Makes a new file with all tables of the layout and the rows, numbered from 1 in each table. An owner-only
/// file has that mode from its first byte on. Fails, without touching it, when the path is in use.
ports::DatabaseResult MakeStore(const std::string& native_path, const ports::StoreLayout& layout,
                                std::span<const StartingRow> rows);

}  // namespace sqlite
