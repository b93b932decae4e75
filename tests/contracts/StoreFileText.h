// Rows and changes of store files as plain values.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ports/Database.h"

namespace contracts {

using Row = std::vector<std::string>;

struct ReadRow {
    std::int64_t number = 0;
    Row values;
    bool operator==(const ReadRow&) const = default;
};

struct Change {
    ports::ChangeKind kind = ports::ChangeKind::Insert;
    std::size_t table = 0;
    std::int64_t row = 0;
    Row values;
};

inline ports::DatabaseResult Apply(ports::StoreFile& file, const std::vector<Change>& changes) {
    std::size_t next = 0;
    ports::RowChange change;
    std::vector<std::string_view> values;
    return file.Apply(
        [&]() -> const ports::RowChange* {
            if (next == changes.size()) return nullptr;
            const Change& one = changes[next++];
            values.assign(one.values.begin(), one.values.end());
            change = {one.kind, one.table, one.row, values};
            return &change;
        },
        ports::kNoWaiting);
}

inline std::vector<ReadRow> Read(ports::StoreFile& file, std::size_t table) {
    std::vector<ReadRow> rows;
    const auto result =
        file.ReadRows(table, {}, [&rows](std::int64_t number, std::span<const std::string_view> values) {
            rows.push_back({number, Row(values.begin(), values.end())});
        });
    EXPECT_TRUE(result.Ok()) << result.text;
    return rows;
}

}  // namespace contracts
