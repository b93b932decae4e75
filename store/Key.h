// Keys of new rows: one more than the key of the last row, by way of the caption of a hidden label.
#pragma once

#include <string>
#include <string_view>

#include "store/RecordSet.h"

namespace store {

/// The caption that lblEntryCount starts with; it counts as 0.
inline constexpr std::string_view kNoKeyYet = "Song ID";

/// The key that follows the one in `caption`: its number plus 1; 1 for kNoKeyYet and for the empty text.
std::string KeyAfter(std::string_view caption);

/// Begins a new row whose key is one more than that of the last row, 1 in a table without rows. `caption`
/// becomes the new key. The rest of the row is the caller's, and so is Update or CancelUpdate. False when
/// there is no table.
bool NextKey(RecordSet& records, Field key, std::string& caption);

}  // namespace store
