// Forty ways in which a file can be broken.
//
// Every one of them is the same each time: where it needs a place, the place comes from the number of the
// damage and the size of the file.
#pragma once

#include <string>
#include <string_view>

namespace damage {

inline constexpr int kDamages = 40;

/// `number` is 0 to kDamages - 1; beyond, the same damages come again at other places.
std::string_view NameOf(int number);

/// The bytes of a good file after a damage; `other` is a good file of another kind, for a head or a content
/// that does not belong there.
std::string Damaged(std::string bytes, const std::string& other, int number);

}  // namespace damage
