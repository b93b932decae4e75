// The texts of the address row. Why: history, favourites, session and player all read or write there, and the
// row's own rules (what is typed, what is remembered) stay with its keeper.
#pragma once

#include <string>
#include <string_view>

#include "roles/AddressMode.h"

namespace roles {

class AddressRow {
public:
    virtual ~AddressRow() = default;
    /// Text of `cmbAddress`.
    virtual std::string Address() const = 0;
    virtual void SetAddress(std::string_view text) = 0;
    virtual bool IsAddressVisible() const = 0;
    /// The rows of `cmbAddress`.
    virtual void ClearList() = 0;
    virtual void AddToList(std::string_view text) = 0;
    /// Text of `txtAddress`, which is what the user sees.
    virtual void SetTyped(std::string_view text) = 0;
    /// The same for the address of the page in front, which nobody typed or chose.
    virtual void ShowLocation(std::string_view url) = 0;
    /// What `cmbType` is set to.
    virtual AddressMode Mode() const = 0;
    /// Moves the keyboard focus to `txtAddress`.
    virtual void FocusAddress() = 0;
    /// While the music tab is in front: empties `txtAddress` if it still shows the remembered page address.
    /// One that the user typed or chose stays. Called at every tick of the player, so it must cost next to
    /// nothing.
    virtual void ClearStaleAddress() = 0;
};

}  // namespace roles
