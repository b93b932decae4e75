// Connects subjects that know each other in a circle. A subject that is built before the one that answers it
// is given the relay of that role; once everything is built, MainWindow connects the relays.
//
// A relay passes a verb on and does nothing else. If it seems to need more, the owner lacks a verb.
#pragma once

#include <cassert>
#include <string>
#include <string_view>

#include "roles/AddressRow.h"
#include "roles/Favourites.h"
#include "roles/FrontPage.h"
#include "roles/Highlights.h"
#include "roles/History.h"
#include "roles/Hole.h"
#include "roles/Layout.h"
#include "roles/MediaKeys.h"
#include "roles/PageOpener.h"
#include "roles/Start.h"

namespace window {

/// Stands for a role until the subject that answers it is built. Nothing may be asked before Connect.
template <class Role>
class Relay : public Role {
public:
    /// `answers` must outlive every use of the relay.
    void Connect(Role& answers) { answers_ = &answers; }

protected:
    Role& Answers() const {
        assert(answers_ != nullptr);
        return *answers_;
    }

private:
    Role* answers_ = nullptr;
};

class AddressRowRelay final : public Relay<roles::AddressRow> {
    std::string Address() const override { return Answers().Address(); }
    void SetAddress(std::string_view text) override { Answers().SetAddress(text); }
    bool IsAddressVisible() const override { return Answers().IsAddressVisible(); }
    void ClearList() override { Answers().ClearList(); }
    void AddToList(std::string_view text) override { Answers().AddToList(text); }
    void SetTyped(std::string_view text) override { Answers().SetTyped(text); }
    void ShowLocation(std::string_view url) override { Answers().ShowLocation(url); }
    roles::AddressMode Mode() const override { return Answers().Mode(); }
    void FocusAddress() override { Answers().FocusAddress(); }
    void ClearStaleAddress() override { Answers().ClearStaleAddress(); }
};

class FavouritesRelay final : public Relay<roles::Favourites> {
    void LoadFavs() override { Answers().LoadFavs(); }
    void SettleAtStart() override { Answers().SettleAtStart(); }
    bool IsPanelClosed() const override { return Answers().IsPanelClosed(); }
    void TogglePanel() override { Answers().TogglePanel(); }
    void AddPageInFront() override { Answers().AddPageInFront(); }
};

class FrontPageRelay final : public Relay<roles::FrontPage> {
    bool IsPageVisible() const override { return Answers().IsPageVisible(); }
    std::string LocationURL() const override { return Answers().LocationURL(); }
    std::string LocationName() const override { return Answers().LocationName(); }
    void GoBack() override { Answers().GoBack(); }
    void GoForward() override { Answers().GoForward(); }
    void Refresh() override { Answers().Refresh(); }
};

class HighlightsRelay final : public Relay<roles::Highlights> {
    void NoMouseOvers() override { Answers().NoMouseOvers(); }
};

class HistoryRelay final : public Relay<roles::History> {
    void AddSiteToHistory(roles::HistoryKind kind, std::string_view text) override {
        Answers().AddSiteToHistory(kind, text);
    }
    void PopulateHistory(roles::HistoryKind kind) override { Answers().PopulateHistory(kind); }
    void DeleteHistory() override { Answers().DeleteHistory(); }
};

class HoleRelay final : public Relay<roles::Hole> {
    void MakeHole() override { Answers().MakeHole(); }
    void CloseHole() override { Answers().CloseHole(); }
};

class LayoutRelay final : public Relay<roles::Layout> {
    void Form_Resize() override { Answers().Form_Resize(); }
    void PlaceBelowSplitter() override { Answers().PlaceBelowSplitter(); }
    void PlaceFavouritesPanel() override { Answers().PlaceFavouritesPanel(); }
};

class MediaKeysRelay final : public Relay<roles::MediaKeys> {
    void KeyDown(int key_code, int shift) override { Answers().KeyDown(key_code, shift); }
};

class PageOpenerRelay final : public Relay<roles::PageOpener> {
    void OpenTab(std::string_view address) override { Answers().OpenTab(address); }
    void Enter(std::string_view text) override { Answers().Enter(text); }
    void EnterAsWeb(std::string_view text) override { Answers().EnterAsWeb(text); }
};

class StartRelay final : public Relay<roles::Start> {
    bool IsLoading() const override { return Answers().IsLoading(); }
    void SetStage(std::string_view stage) override { Answers().SetStage(stage); }
    bool IsOver() const override { return Answers().IsOver(); }
};

/// The relays, one a role.
struct Switchboard {
    AddressRowRelay address_row;
    FavouritesRelay favourites;
    FrontPageRelay front_page;
    HighlightsRelay highlights;
    HistoryRelay history;
    HoleRelay hole;
    LayoutRelay layout;
    MediaKeysRelay media_keys;
    PageOpenerRelay page_opener;
    StartRelay start;
};

}  // namespace window
