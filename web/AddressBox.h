// Keeper of the address row's texts: `cmbAddress`, `txtAddress` and `cmbType`. Many write there; they do it
// here.
#pragma once

#include <string>
#include <string_view>

#include "roles/AddressRow.h"
#include "web/WebControls.h"
#include "web/WebState.h"

namespace web {

class AddressBox final : public roles::AddressRow {
public:
    AddressBox(AddressControls& controls, const WebState& state) : controls_(controls), state_(state) {}

    // roles::AddressRow
    std::string Address() const override { return controls_.cmbAddress.Text(); }
    void SetAddress(std::string_view text) override { controls_.cmbAddress.SetText(text); }
    bool IsAddressVisible() const override { return controls_.cmbAddress.Visible(); }
    void ClearList() override { controls_.cmbAddress.Clear(); }
    void AddToList(std::string_view text) override { controls_.cmbAddress.AddItem(text); }
    void SetTyped(std::string_view text) override {
        being_set_ = true;
        controls_.txtAddress.SetText(text);
        being_set_ = false;
        is_location_ = false;
    }
    void ShowLocation(std::string_view url) override {
        SetTyped(url);
        is_location_ = true;
    }
    roles::AddressMode Mode() const override { return roles::AddressModeOf(controls_.cmbType.Text()); }
    void FocusAddress() override { controls_.txtAddress.SetFocus(); }
    void ClearStaleAddress() override {
        if (state_.MusicTabActive) ClearLocation();
    }

    /// `txtAddress.Text`.
    const std::string& Typed() const { return controls_.txtAddress.Text(); }
    /// The text changes by SetTyped and not by the user.
    bool IsBeingSet() const { return being_set_; }
    /// Takes the remembered page address away where it is shown and was neither typed nor chosen.
    void ClearLocation() {
        if (is_location_ && Typed() == state_.LastTabUrl) SetTyped("");
    }
    /// What the user wrote is theirs, whatever it reads.
    void OnChange() {
        if (!being_set_) is_location_ = false;
    }
    /// How safe the connection of the page in front is. It shows while the row holds that page's address.
    void ShowSecurity(ports::PageSigns::Security security, std::string_view address) {
        controls_.txtAddress.SetSign(SignOf(security), address);
    }
    void FocusIfVisible() {
        if (controls_.txtAddress.Visible()) FocusAddress();
    }
    /// What is entered is an address: the mode is Web, or none is chosen.
    bool IsWebMode() const { return Mode() == roles::AddressMode::Web || Mode() == roles::AddressMode::None; }

private:
    static std::string_view SignOf(ports::PageSigns::Security security) {
        using Security = ports::PageSigns::Security;
        switch (security) {
            case Security::Encrypted:
                return "lock";
            case Security::NotEncrypted:
                return "open lock";
            case Security::ErrorPassed:
                return "broken lock";
            case Security::None:
                break;
        }
        return {};
    }

    AddressControls& controls_;
    const WebState& state_;
    bool being_set_ = false;
    bool is_location_ = false;  // of a page, which nobody typed or chose
};

}  // namespace web
