// What Enter in the address row means.
#pragma once

#include <array>
#include <string_view>

namespace roles {

/// The rows of `cmbType`. None: no row is chosen; what is entered then counts as in Web.
enum class AddressMode { None, Web, Msn, File, Search };

struct AddressModeText {
    AddressMode mode;
    std::string_view text;
};

inline constexpr std::array kAddressModes = {
    AddressModeText{AddressMode::Web, "Web"},
    AddressModeText{AddressMode::Msn, "MSN"},
    AddressModeText{AddressMode::File, "File"},
    AddressModeText{AddressMode::Search, "Search"},
};

/// The text of a mode; empty for None.
constexpr std::string_view TextOf(AddressMode mode) {
    for (const AddressModeText& row : kAddressModes)
        if (row.mode == mode) return row.text;
    return {};
}

/// None for any text that is not of a mode.
constexpr AddressMode AddressModeOf(std::string_view text) {
    for (const AddressModeText& row : kAddressModes)
        if (row.text == text) return row.mode;
    return AddressMode::None;
}

}  // namespace roles
