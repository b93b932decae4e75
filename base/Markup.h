// Text of markup documents: entities, and where a tag ends.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace base {

/// The text with its entities decoded: the five of XML and characters by number. An "&" that begins no known
/// entity stays.
std::string DecodeEntities(std::string_view text);

/// The text as it is written between tags and in a quoted value.
std::string EncodeEntities(std::string_view text);

/// Where a tag ends that begins just before `tag`: the place of its ">", or the length when there is none. A
/// ">" between quotes is part of a value.
std::size_t EndOfTag(std::string_view tag);

}  // namespace base
