// A row that was taken out of a table, as it was: to be put back where it was, in this run or in a later one.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace store {

struct KeptRow {
    std::int64_t place = 0;           ///< rises in table order and stays the same from run to run
    std::vector<std::string> values;  ///< one a field

    bool operator==(const KeptRow&) const = default;
};

}  // namespace store
