// Names of artists and titles as the track matcher compares them.
#pragma once

#include <string>
#include <string_view>

namespace library {

/// A name in upper case without blanks, without most signs, and without "featuring", "feat" and "ft".
std::string CorrectedName(std::string_view name);

}  // namespace library
