// The web subsystem on a window of a test: real rooms and controls, made-up pages, neighbours that remember.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/Text.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Menu.h"
#include "fakes/FakeBrowserControl.h"
#include "fakes/FakeDesktop.h"
#include "fakes/FakeDialogs.h"
#include "fakes/FakeFiles.h"
#include "fakes/RecordingPageEngine.h"
#include "web/Addresses.h"
#include "web/Web.h"

namespace web_tests {

using Calls = std::vector<std::string>;

/// Everything outside of the web subsystem. One log, in the order of the calls.
struct RecordingRoles final : roles::Window,
                              roles::Layout,
                              roles::Highlights,
                              roles::MediaKeys,
                              roles::Transport,
                              roles::NowPlaying,
                              roles::MessengerLine,
                              roles::TrackLists,
                              roles::MediaIntake,
                              roles::CueList,
                              roles::History,
                              roles::Favourites,
                              roles::Suggestions,
                              roles::Start {
    using Text = std::string_view;
    void Note(std::string call) { Log.push_back(std::move(call)); }

    // roles::Window
    double Left() const override { return 0; }
    double Top() const override { return 0; }
    double Width() const override { return WindowWidth; }
    controls::WindowState State() const override { return controls::WindowState::Normal; }
    void SetState(controls::WindowState) override { Note("SetState"); }
    void ToggleFullScreen() override { Note("ToggleFullScreen"); }
    void SetCaption(Text caption) override { Caption = caption; }
    void Show() override { Note("Show"); }
    void SetEnabled(bool) override { Note("SetEnabled"); }
    void Refresh() override { Note("Refresh"); }
    void PopupMenu(controls::Menu& menu) override { Note("PopupMenu " + menu.Name()); }
    void ShowMusicPanel(bool shown) override { Panel.SetVisible(shown); }
    void BringMusicPanelToFront() override { Panel.BringToFront(); }

    // roles::Layout
    void Form_Resize() override { Note("Form_Resize"); }
    void PlaceBelowSplitter() override { Note("PlaceBelowSplitter"); }
    void PlaceFavouritesPanel() override { Note("PlaceFavouritesPanel"); }

    // roles::Highlights
    void NoMouseOvers() override { Note("NoMouseOvers"); }

    // roles::MediaKeys
    void KeyDown(int key, int shift) override {
        Note("KeyDown " + std::to_string(key) + " " + std::to_string(shift));
    }

    // roles::Transport
    void PlaySong(Text path) override {
        Note("PlaySong " + std::string(path));
        NoFile = Unplayable;
    }
    void Play() override { Note("Play"); }
    void Pause() override { Note("Pause"); }
    bool IsPlayShown() const override { return true; }
    void Stop() override { Note("Stop"); }
    void StayStopped() override { Note("StayStopped"); }
    void StopAndForget() override {
        Note("StopAndForget");
        Track.clear();
    }
    void Next() override { Note("Next"); }
    void Previous() override { Note("Previous"); }
    void SeekTo(double) override { Note("SeekTo"); }
    void SetSpeed(double) override { Note("SetSpeed"); }
    void SetVolume(double) override { Note("SetVolume"); }
    void ToggleMute() override { Note("ToggleMute"); }
    void IncreaseVolume() override { Note("IncreaseVolume"); }
    void DecreaseVolume() override { Note("DecreaseVolume"); }

    // roles::NowPlaying
    roles::PlayerGlance Glance() const override { return {}; }
    roles::PlayerStatus Status() override { return roles::PlayerStatus::Stopped; }
    roles::CurrentSong Song() override { return {}; }
    double Position() override { return 0; }
    bool IsStopped() const override { return true; }
    bool IsNoFileShown() const override { return NoFile; }
    std::string TrackCaption() const override { return Track; }

    // roles::MessengerLine
    void SetCustomText(Text text) override { Note("SetCustomText " + std::string(text)); }
    void SendNowPlaying() override { Note("SendNowPlaying"); }
    void SendNothingPlaying() override { Note("SendNothingPlaying"); }

    // roles::TrackLists
    void Command1() override { Note("Command1"); }
    void DisplayPlayLists() override {}
    void RefillIfEmpty() override { Note("RefillIfEmpty"); }
    void EndTasks() override { Note("EndTasks"); }

    // roles::MediaIntake
    void AddPlayList(Text path) override { Note("AddPlayList " + std::string(path)); }
    void AddMediaFromCommand(Text path) override {
        Note("AddMediaFromCommand " + std::string(path));
        if (WantsReload != nullptr) WantsReload->ReloadLibraryAfterKey = true;
    }
    void OfferToAddMedia() override { Note("OfferToAddMedia"); }

    // roles::CueList
    int SongCount() const override { return Cued; }
    int PathCount() const override { return Cued; }
    void SelectPath(int row) override { Note("SelectPath " + std::to_string(row)); }
    void CueFile(Text path, Text title) override {
        Note("CueFile " + std::string(path) + "|" + std::string(title));
    }

    void RemovePath(Text path) override { Note("RemovePath " + std::string(path)); }

    // roles::History
    void AddSiteToHistory(roles::HistoryKind kind, Text text) override {
        Note("AddSiteToHistory " + std::string(roles::TextOf(kind)) + " " + std::string(text));
    }
    void DeleteHistory() override {}
    void PopulateHistory(roles::HistoryKind kind) override {
        Note("PopulateHistory " + std::string(roles::TextOf(kind)));
    }

    // roles::Favourites
    void LoadFavs() override {}
    void SettleAtStart() override {}
    bool IsPanelClosed() const override { return true; }
    void TogglePanel() override { Note("TogglePanel"); }
    void AddPageInFront() override { Note("AddPageInFront"); }

    // roles::Suggestions
    std::vector<roles::Suggestion> Suggest(Text typed, std::size_t most) override {
        std::vector<roles::Suggestion> found;
        for (const roles::Suggestion& one : Known) {
            if (!typed.empty() && base::Contains(one.address, typed) && found.size() < most)
                found.push_back(one);
        }
        return found;
    }
    void NoteVisit(Text address) override { Note("NoteVisit " + std::string(address)); }

    // roles::Start
    bool IsLoading() const override { return Loading; }
    void SetStage(Text) override { Note("SetStage"); }
    bool IsOver() const override { return false; }

    Calls Log;
    std::string Caption;
    double WindowWidth = 17700;
    controls::Frame Panel{"fraMusicTab"};
    bool NoFile = false;
    bool Unplayable = false;
    std::string Track;
    int Cued = 0;
    bool Loading = false;
    std::vector<roles::Suggestion> Known;
    web::WebState* WantsReload = nullptr;
};

/// The flags of a session, which a test changes as it likes.
struct Session {
    bool LoggedIn = true;
    bool Internet_Connection = true;
    bool Save_History = true;
    bool Allow_Multiple_Users = false;
    bool Auto_Login = false;
    bool StartedWithArguments = false;
    web::SiteCredentials credentials;
};

struct Menus : web::WebMenu {
    Menus() {
        mnuTab.AddEntry(mnuNewTabTab);
        mnuTab.AddEntry(mnuSep10);
        mnuTab.AddEntry(mnuSep11);
        mnuTab.AddEntry(mnuMusicTabTab);
    }
    controls::Menu mnuSep10{"mnuSep10", "-"};
};

class WebTest : public testing::Test, private controls::ControlObserver {
protected:
    WebTest() {
        groups.PutInto(form);
        form.Add(near.Panel);
        groups.tabs.Browser(0).SetObserver(this);
        groups.address.txtAddress.SetObserver(this);
        desktop.AdoptTimer(groups.refresh.tmrRefresh);
        near.Log.clear();
    }

    /// Opens a tab as the address row does. The page arrives if `web_` has it.
    int Open(const std::string& address) {
        rooms.Opener().OpenTab(address);
        const int index = LastTab();
        Engine(index);
        Settle(index);
        return index;
    }
    int LastTab() { return groups.tabs.Browser.Count() - 1; }
    /// The page engine of a tab; made when it is first asked for, as the screen does when an address waits.
    fakes::FakeBrowserControl& Engine(int index) {
        auto& slot = engines_[index];
        if (!slot) {
            slot = std::make_unique<fakes::FakeBrowserControl>(web_);
            groups.tabs.Browser(index).Attach(slot.get());
        }
        return *slot;
    }
    fakes::FakeBrowserControl& BackdropEngine() {
        if (!backdrop_) {
            backdrop_ = std::make_unique<fakes::FakeBrowserControl>(web_);
            groups.tabs.BrowserBG.Attach(backdrop_.get());
        }
        return *backdrop_;
    }
    void Settle(int index) { Engine(index).Settle(); }
    void Enter(const std::string& text) {
        groups.address.txtAddress.SetText(text);
        groups.address.txtAddress.KeyDown.Raise(controls::kKeyEnter, 0);
    }
    void ChooseMode(const std::string& mode) {
        if (groups.address.cmbType.ListCount() == 0) {
            for (const char* one : {"Web", "MSN", "File", "Search"})
                groups.address.cmbType.AddItem(one);
        }
        groups.address.cmbType.SetText(mode);
        near.Log.clear();
    }
    bool Logged(const std::string& call) const {
        return std::find(near.Log.begin(), near.Log.end(), call) != near.Log.end();
    }
    /// Calls of the log that begin with one of the words.
    Calls LoggedOf(const std::vector<std::string_view>& words) const {
        Calls found;
        for (const std::string& call : near.Log) {
            for (std::string_view word : words) {
                if (base::StartsWith(call, word)) found.push_back(call);
            }
        }
        return found;
    }
    void Click(controls::Control& control, int button = controls::kLeftButton) {
        control.MouseUp.Raise(button, 0, 0, 0);
    }
    bool IsPale(int index) { return base::Contains(groups.tabs.tabtab(index).Picture(), "pale.bmp"); }
    bool IsInFront(const controls::Control& page) {
        for (auto it = form.Children().rbegin(); it != form.Children().rend(); ++it) {
            const auto kind = (*it)->ControlKind();
            if (kind == controls::Kind::WebBrowser || kind == controls::Kind::Frame) return *it == &page;
        }
        return false;
    }

    fakes::FakeWeb web_{{"http://one.example/", {"One", {}, ""}},
                        {"http://two.example/", {"Two", {}, ""}},
                        {"http://three.example/", {"Three", {}, ""}}};
    std::map<int, std::unique_ptr<fakes::FakeBrowserControl>> engines_;
    std::unique_ptr<fakes::FakeBrowserControl> backdrop_;
    controls::Form form{"frmBrowser", "Brindlepost"};
    Menus menu;
    web::WebControls groups;
    web::WebState state;
    fakes::FakeDesktop desktop;
    fakes::FakeDialogs dialogs;
    fakes::FakeFiles files;
    RecordingRoles near;
    Session session;
    int Focused = 0;
    fakes::RecordingPageEngine engine;
    web::Web rooms{groups,
                   menu,
                   state,
                   {.LoggedIn = session.LoggedIn,
                    .Internet_Connection = session.Internet_Connection,
                    .Save_History = session.Save_History,
                    .Allow_Multiple_Users = session.Allow_Multiple_Users,
                    .Auto_Login = session.Auto_Login,
                    .StartedWithArguments = session.StartedWithArguments,
                    .credentials = session.credentials},
                   {.window = near,
                    .layout = near,
                    .highlights = near,
                    .keys = near,
                    .transport = near,
                    .now_playing = near,
                    .messenger = near,
                    .track_lists = near,
                    .media = near,
                    .cue = near,
                    .history = near,
                    .favourites = near,
                    .suggestions = near,
                    .start = near},
                   {.files = files, .events = desktop, .dialogs = dialogs, .engine = engine}};

private:
    void OnPropertyChanged(controls::Control& control, controls::Property property) override {
        if (&control == &groups.address.txtAddress && property == controls::Property::Focus) ++Focused;
    }
};

}  // namespace web_tests
