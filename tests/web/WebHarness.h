// The web subsystem on a window of a test: real rooms and controls, made-up pages, neighbours that remember.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/Text.h"
#include "controls/Frame.h"
#include "controls/Menu.h"
#include "fakes/FakeBrowserControl.h"
#include "fakes/FakeDesktop.h"
#include "fakes/FakeDialogs.h"
#include "web/Addresses.h"
#include "web/WebRooms.h"

namespace web_test {

using Calls = std::vector<std::string>;

struct RecordingNeighbours final : web::BrowserWindow,
                                   web::MusicPanel,
                                   web::MusicPlayer,
                                   web::MediaLibrary,
                                   web::CueList,
                                   web::HistoryLog,
                                   web::NowPlayingLine,
                                   web::SiteLogins,
                                   web::Session,
                                   web::FileNames {
    using Text = std::string_view;
    void Note(std::string call) { Log.push_back(std::move(call)); }

    void SetCaption(Text caption) override { Caption = caption; }
    double Width() const override { return WindowWidth; }
    void Form_Resize() override { Note("Form_Resize"); }
    void NoMouseOvers() override { Note("NoMouseOvers"); }
    void KeyDown(int key, int shift) override {
        Note("KeyDown " + std::to_string(key) + " " + std::to_string(shift));
    }
    void PopupTabMenu() override { Note("PopupTabMenu"); }
    void PopupMusicMenu() override { Note("PopupMusicMenu"); }
    void PopupHelpMenu() override { Note("PopupHelpMenu"); }

    void ShowPanel() override { Panel.SetVisible(true); }
    void HidePanel() override { Panel.SetVisible(false); }
    void BringPanelToFront() override { Panel.BringToFront(); }

    void PlaySong(Text path) override {
        Note("PlaySong " + std::string(path));
        NoFile = Unplayable;
    }
    bool IsNoFileShown() const override { return NoFile; }
    void StopCurrentSong() override { Note("StopCurrentSong"); }
    std::string TrackCaption() const override { return Track; }
    void ClearTrackCaption() override { Track.clear(); }

    void Command1() override { Note("Command1"); }
    void AddPlayList(Text path) override { Note("AddPlayList " + std::string(path)); }
    void AddMediaFromCommand(Text path) override {
        Note("AddMediaFromCommand " + std::string(path));
        if (WantsReload != nullptr) WantsReload->ReloadLibraryAfterKey = true;
    }
    void RefillEmptyTrackList() override { Note("RefillEmptyTrackList"); }
    void OfferToAddMedia() override { Note("OfferToAddMedia"); }

    int CuedSongs() const override { return Cued; }
    int CuedPaths() const override { return Cued; }
    void SelectCuedPath(int row) override { Note("SelectCuedPath " + std::to_string(row)); }
    void CueFile(Text path, Text title) override {
        Note("CueFile " + std::string(path) + "|" + std::string(title));
    }

    void AddSiteToHistory(Text kind, Text text) override {
        Note("AddSiteToHistory " + std::string(kind) + " " + std::string(text));
    }
    void PopulateHistory(Text kind) override { Note("PopulateHistory " + std::string(kind)); }

    void SetCustomText(Text text) override { Note("SetCustomText " + std::string(text)); }
    void SendNowPlaying() override { Note("SendNowPlaying"); }
    void SendNothingPlaying() override { Note("SendNothingPlaying"); }

    void LoginToMySpace(int index) override { Note("LoginToMySpace " + std::to_string(index)); }
    void LoginToHotmail(int index) override { Note("LoginToHotmail " + std::to_string(index)); }

    bool Internet_Connection() const override { return Connected; }
    bool Save_History() const override { return SavesHistory; }
    bool Allow_Multiple_Users() const override { return ManyUsers; }
    bool Auto_Login() const override { return LogsIn; }
    bool IsLoading() const override { return Loading; }
    bool StartedWithArguments() const override { return Arguments; }
    void ClearStartedWithArguments() override { Arguments = false; }

    bool IsMediaFile(Text path) const override {
        const std::string kind = base::LCase(base::Right(path, 3));
        return kind == "mp3" || kind == "wav" || kind == "mpg" || kind == "peg" || kind == "mp4";
    }
    bool IsPlayListFile(Text path) const override { return base::LCase(base::Right(path, 3)) == "mpl"; }
    std::string FileNameOf(Text path) const override {
        return std::string(base::Mid(path, base::InStrRev(path, "\\") + 1));
    }
    std::string ToDriveForm(Text typed) const override {
        if (!base::StartsWith(typed, "/")) return std::string(typed);
        return "C:" + base::Replace(typed, "/", "\\");
    }

    Calls Log;
    std::string Caption;
    double WindowWidth = 17700;
    controls::Frame Panel{"fraMusicTab"};
    bool NoFile = false;
    bool Unplayable = false;
    std::string Track;
    int Cued = 0;
    bool Connected = true;
    bool SavesHistory = true;
    bool ManyUsers = false;
    bool LogsIn = false;
    bool Loading = false;
    bool Arguments = false;
    web::WebState* WantsReload = nullptr;
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
        rooms.commands.OpenAddress(address);
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
    web::WebGroups groups;
    web::WebState state;
    fakes::FakeDesktop desktop;
    fakes::FakeDialogs dialogs;
    RecordingNeighbours near;
    int Focused = 0;
    web::WebRooms rooms{
        groups, menu, state, {near, near, near, near, near, near, near, near, near, near, desktop, dialogs}};

private:
    void OnPropertyChanged(controls::Control& control, controls::Property property) override {
        if (&control == &groups.address.txtAddress && property == controls::Property::Focus) ++Focused;
    }
};

}  // namespace web_test
