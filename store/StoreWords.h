// The words for a box about a store that cannot be used.
#pragma once

#include <string>
#include <string_view>

#include "ports/Database.h"

namespace store {

/// Why, as the end of a sentence.
std::string_view ReasonOf(ports::DatabaseError error);

/// `file` and `copy` are names without a folder; `copy` may be empty.
std::string NewerStoreMessage(std::string_view file, int version, int known, std::string_view copy);
std::string OlderStoreMessage(std::string_view file, const ports::DatabaseResult& result);

}  // namespace store
