// What the player and the layout ask of other subjects, as far as no other links answer it already.
#pragma once

#include "roles/AddressRow.h"
#include "roles/Favourites.h"
#include "roles/Hole.h"
#include "roles/Messenger.h"
#include "window/Desk.h"

namespace window {

class PlayerLinks final : public roles::Hole,
                          public roles::AddressRow,
                          public roles::Favourites,
                          public roles::Messenger,
                          public LayoutPartners {
public:
    explicit PlayerLinks(Desk& desk) : desk_(desk) {}

    // roles::Hole and LayoutPartners
    void MakeHole() override;
    void CloseHole() override;

    // roles::AddressRow
    std::string Address() const override;
    void SetAddress(std::string_view text) override;
    bool IsAddressVisible() const override;
    void ClearList() override;
    void AddToList(std::string_view text) override;
    void SetTyped(std::string_view text) override;
    roles::AddressMode Mode() const override;
    void FocusAddress() override;
    void ClearStaleAddress() override;

    // roles::Favourites
    void LoadFavs() override;
    void SettleAtStart() override;
    bool IsPanelClosed() const override;
    void TogglePanel() override;

    // roles::Messenger
    void SendNowPlaying(const roles::NowPlayingText& text) override;

    // LayoutPartners
    bool IsPlayerStopped() const override;
    void StopPlayer() override;
    bool IsVideoAttached() const override;
    void RestoreBars() override;

private:
    Desk& desk_;
};

}  // namespace window
