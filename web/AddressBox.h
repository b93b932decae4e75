// Keeper of the address row's texts: what stands in `cmbAddress`, `txtAddress` and `cmbType`. Many write
// there; they do it here.
#pragma once

#include <string>
#include <string_view>

#include "web/WebControls.h"

namespace web {

class AddressBox final {
public:
    explicit AddressBox(AddressControls& controls) : controls_(controls) {}

    /// `cmbAddress.Text`: the slot that every web command works on.
    const std::string& Address() const { return controls_.cmbAddress.Text(); }
    void SetAddress(std::string_view text) { controls_.cmbAddress.SetText(text); }
    /// The list below it.
    void ClearList() { controls_.cmbAddress.Clear(); }
    void AddToList(std::string_view text) { controls_.cmbAddress.AddItem(text); }

    /// `txtAddress.Text`: what the person sees and types.
    const std::string& Typed() const { return controls_.txtAddress.Text(); }
    void SetTyped(std::string_view text) { controls_.txtAddress.SetText(text); }
    void Focus() { controls_.txtAddress.SetFocus(); }
    /// Focus, but only where the box shows.
    void FocusIfVisible() {
        if (controls_.txtAddress.Visible()) Focus();
    }

    /// `cmbType.Text`.
    const std::string& Mode() const { return controls_.cmbType.Text(); }
    /// No mode counts as "Web".
    bool IsWebMode() const { return Mode().empty() || Mode() == "Web"; }

private:
    AddressControls& controls_;
};

}  // namespace web
