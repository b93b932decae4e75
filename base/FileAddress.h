// Addresses of files of this computer, as pages, desktops and lists of other players write them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace base {

/// A text with each "%" and two hexadecimal digits replaced by the byte; any other "%" stays.
std::string PercentDecoded(std::string_view text);

/// True for a text that begins like an address, such as "http://": letters, then "://"; and for "file:".
bool HasScheme(std::string_view text);

/// The path that a "file:" address names, in the bytes of the system or with a drive letter; nothing for any
/// other text and for a file of another computer.
std::optional<std::string> PathOfFileAddress(std::string_view address);

}  // namespace base
