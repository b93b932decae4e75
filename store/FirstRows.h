// Finds the rows that hold given texts, all in one walk.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "store/RecordSet.h"

namespace store {

/// For each text the bookmark of the first row whose field equals it; nothing if there is no such row.
/// Moves the record set.
std::vector<std::optional<Bookmark>> FirstRowsWith(RecordSet& rows, Field field,
                                                   const std::vector<std::string>& texts);

}  // namespace store
