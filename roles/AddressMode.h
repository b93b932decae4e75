// What Enter in the address row means.
#pragma once

#include <array>
#include <string_view>

namespace roles {

/// The rows of `cmbType`. An empty text counts as Web; None is a text that is no mode.
enum class AddressMode { Web, Msn, File, Search, None };

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

constexpr AddressMode AddressModeOf(std::string_view text) {
    if (text.empty()) return AddressMode::Web;
    for (const AddressModeText& row : kAddressModes)
        if (row.text == text) return row.mode;
    return AddressMode::None;
}

}  // namespace roles
