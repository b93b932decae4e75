// Start-up, login and session on seeded stores, with neighbours that write one log of what they were asked.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Number.h"
#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/PictureBox.h"
#include "controls/TextBox.h"
#include "fakes/FakeDesktop.h"
#include "fakes/FakeDialogs.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeInstanceLock.h"
#include "fakes/NullPlayer.h"
#include "fakes/RecordingPageEngine.h"
#include "fakes/SeededStores.h"
#include "session/ActivateForm.h"
#include "session/ActivateRoom.h"
#include "session/HandOffRoom.h"
#include "session/InfoForm.h"
#include "session/LoginForm.h"
#include "session/LoginRoom.h"
#include "session/MediaKeys.h"
#include "session/NewUserRoom.h"
#include "session/SessionRoom.h"
#include "session/SettingsRoom.h"
#include "session/StartUpRoom.h"
#include "session/StoreTroubleRoom.h"

namespace session_tests {

using Texts = std::vector<std::string>;
using Row = fakes::FakeDatabase::Row;

inline constexpr std::string_view kAppPath = "C:\\app";

inline int Count(const Texts& log, std::string_view text) {
    return static_cast<int>(std::count(log.begin(), log.end(), text));
}
/// Place of the first entry in a log, -1 when it is not there.
inline int PlaceOf(const Texts& log, std::string_view text) {
    const auto found = std::find(log.begin(), log.end(), text);
    return found == log.end() ? -1 : static_cast<int>(found - log.begin());
}

/// Everything outside of start-up and session. One log, in the order of the calls.
class Neighbours final : public roles::TrackLists,
                         public roles::History,
                         public roles::Favourites,
                         public roles::Tabs,
                         public roles::AddressRow,
                         public roles::AutoRefresh,
                         public roles::PageOpener,
                         public roles::FrontPage,
                         public roles::MessengerLine,
                         public roles::Highlights,
                         public roles::MediaIntake,
                         public roles::CueList,
                         public fakes::NullTransport,
                         public fakes::NullPlayerSetup,
                         public ports::InstanceLock {
public:
    // roles::TrackLists
    void Command1() override {
        Log.emplace_back("Command1");
        if (OnCommand1) OnCommand1();
    }
    void DisplayPlayLists() override {
        Log.emplace_back("DisplayPlayLists");
        if (OnDisplayPlayLists) OnDisplayPlayLists();
    }
    void RefillIfEmpty() override { Log.emplace_back("RefillIfEmpty"); }
    void EndTasks() override { Log.emplace_back("EndTasks"); }

    // roles::History
    void AddSiteToHistory(roles::HistoryKind, std::string_view text) override { Note("AddSite ", text); }
    void DeleteHistory() override { Log.emplace_back("DeleteHistory"); }
    void PopulateHistory(roles::HistoryKind kind) override { Note("PopulateHistory ", TextOf(kind)); }

    // roles::Favourites
    void LoadFavs() override { Log.emplace_back("LoadFavs"); }
    void SettleAtStart() override {
        Log.emplace_back("SettleFavourites");
        if (OnSettle) OnSettle();
    }
    bool IsPanelClosed() const override { return true; }
    void TogglePanel() override { Log.emplace_back("TogglePanel"); }
    void AddPageInFront() override { Log.emplace_back("AddPageInFront"); }

    // roles::Tabs
    int Count() const override { return static_cast<int>(TabsVisible.size()); }
    bool IsTabVisible(int index) const override { return TabsVisible[static_cast<std::size_t>(index)]; }
    void CloseTab(int index) override {
        TabsVisible[static_cast<std::size_t>(index)] = false;
        Note("CloseTab ", base::ToText(index));
    }
    void BringForward(int index) override { Note("BringTabToFront ", base::ToText(index)); }
    void NameTab(int index, std::string_view caption) override {
        Note("NameTab " + base::ToText(index) + " ", caption);
    }
    bool IsMusicTabVisible() const override { return MusicTabVisible; }
    void OpenMusicTab() override { Log.emplace_back("OpenMusicTab"); }
    void BringMusicTabForward() override { Log.emplace_back("BringMusicTabToFront"); }
    void CloseMusicTab() override { Log.emplace_back("CloseMusicTab"); }
    void CorrectTabs() override { Log.emplace_back("CorrectTabs"); }
    void NavigateBackdrop(std::string_view address) override { Note("NavigateBackdrop ", address); }

    // roles::AddressRow
    std::string Address() const override { return Typed; }
    void SetAddress(std::string_view address) override { Typed = address; }
    bool IsAddressVisible() const override { return AddressVisible; }
    void ClearList() override { Log.emplace_back("ClearList"); }
    void AddToList(std::string_view text) override { Note("AddToList ", text); }
    void SetTyped(std::string_view text) override { Note("SetTyped ", text); }
    void ShowLocation(std::string_view url) override { Note("ShowLocation ", url); }
    roles::AddressMode Mode() const override { return roles::AddressMode::Web; }
    void FocusAddress() override { Log.emplace_back("FocusAddress"); }
    void ClearStaleAddress() override { Log.emplace_back("ClearStaleAddress"); }

    // roles::PageOpener
    void OpenTab(std::string_view address) override { Note("OpenTab ", address); }
    void EnterAsWeb(std::string_view text) override {
        Note("EnterAsWeb ", text);
        TabsVisible.push_back(true);
        if (OnEnter) OnEnter();
    }
    void Enter(std::string_view text) override {
        Note("Enter ", text);
        TabsVisible.push_back(true);
        if (OnEnter) OnEnter();
    }

    // roles::AutoRefresh
    void SwitchOff() override { ++RefreshesEnded; }

    // roles::MediaIntake
    void AddMediaFromCommand(std::string_view path) override {
        Note("AddMediaFromCommand ", path);
        if (OnAddMedia) OnAddMedia();
    }
    void AddPlayList(std::string_view path) override { Note("AddPlayList ", path); }
    void OfferToAddMedia() override { Log.emplace_back("OfferToAddMedia"); }

    // roles::CueList
    int SongCount() const override { return static_cast<int>(Cued.size()); }
    int PathCount() const override { return SongCount(); }
    void SelectPath(int) override {}
    void CueFile(std::string_view path, std::string_view title) override {
        Cued.push_back(std::string(path).append("|").append(title));
    }
    void RemovePath(std::string_view path) override {
        const auto is_it = [path](const std::string& entry) { return entry.starts_with(path); };
        const auto found = std::find_if(Cued.begin(), Cued.end(), is_it);
        if (found != Cued.end()) Cued.erase(found);
    }

    // roles::FrontPage
    bool IsPageVisible() const override { return false; }
    std::string LocationURL() const override { return {}; }
    std::string LocationName() const override { return {}; }
    void GoBack() override { Log.emplace_back("GoBack"); }
    void GoForward() override { Log.emplace_back("GoForward"); }
    void Refresh() override { Log.emplace_back("Refresh"); }

    // roles::MessengerLine
    void SetCustomText(std::string_view text) override { Note("SetCustomText ", text); }
    void SendNowPlaying() override { Log.emplace_back("SendNowPlaying"); }
    void SendNothingPlaying() override { Log.emplace_back("SendNothingPlaying"); }

    // roles::Highlights
    void NoMouseOvers() override { Log.emplace_back("NoMouseOvers"); }

    // roles::Transport
    void PlaySong(std::string_view path) override { Note("PlaySong ", path); }
    bool IsPlayShown() const override { return PlayShown; }
    void Play() override { Log.emplace_back("Play"); }
    void Pause() override { Log.emplace_back("Pause"); }
    void Stop() override { Log.emplace_back("Stop"); }
    void StayStopped() override { Log.emplace_back("StayStopped"); }
    void StopAndForget() override { Log.emplace_back("StopAndForget"); }
    void Next() override { Log.emplace_back("Next"); }
    void Previous() override { Log.emplace_back("Previous"); }
    void ToggleMute() override { Log.emplace_back("ToggleMute"); }
    void DecreaseVolume() override { Log.emplace_back("DecreaseVolume"); }
    void IncreaseVolume() override { Log.emplace_back("IncreaseVolume"); }

    // roles::PlayerSetup
    void SetDefaults() override { Log.emplace_back("SetDefaults"); }
    void ClearVideoPicture() override { Log.emplace_back("ClearVideoPicture"); }
    void ChooseQuickFade() override { Log.emplace_back("ChooseQuickFade"); }
    void EndUser() override { Log.emplace_back("EndUser"); }
    void CloseMedia() override { Log.emplace_back("CloseMedia"); }

    // ports::InstanceLock
    ports::Instance TryBecomeFirst() override {
        Log.emplace_back("TryBecomeFirst");
        return Answer();
    }
    ports::Instance Answer() const override { return Running; }
    std::string Failure() const override { return "The folder is gone."; }
    bool HandOff(std::string_view text) override {
        Note("HandOver ", text);
        return true;
    }
    std::optional<ports::OptionAnswer> AskFirst(std::string_view) override { return std::nullopt; }
    void SetListener(ports::HandOffListener*) override {}
    void SetOptionListener(ports::OptionListener*) override {}
    int FileDescriptor() const override { return -1; }
    void Serve() override {}

    void Note(std::string_view what, std::string_view with) { Log.push_back(std::string(what).append(with)); }

    Texts Log;
    std::vector<bool> TabsVisible{false};  // the template
    std::string Typed;
    bool MusicTabVisible = true;
    bool AddressVisible = true;
    ports::Instance Running = ports::Instance::First;
    bool PlayShown = true;
    Texts Cued;  ///< "path|title"
    std::function<void()> OnAddMedia;
    std::function<void()> OnCommand1;
    std::function<void()> OnDisplayPlayLists;
    std::function<void()> OnSettle;
    std::function<void()> OnEnter;
    int RefreshesEnded = 0;
};

/// The windows of the other subsystems, the menu entries and the controls that core reaches.
struct Windows : session::SessionMenu, session::HandOffMenu {
    controls::Form frmBrowser{"frmBrowser", "Brindlepost"};
    controls::Form frmAdd{"frmAdd", ""};
    controls::Form frmAbout{"frmAbout", ""};
    controls::Form frmAddMedia{"frmAddMedia", ""};
    controls::Form frmInfo{"frmInfo", ""};
    controls::Form frmSpeakerTest{"frmSpeakerTest", ""};
    controls::Form frmVideo{"frmVideo", ""};
    controls::Menu mnuRepeat{"mnuRepeat"};
    controls::Menu mnuShuffle{"mnuShuffle"};
    controls::Menu mnuSearchBroad{"mnuSearchBroad"};
    controls::Menu mnuSearchTitle{"mnuSearchTitle"};
    controls::Menu mnuSearchArtist{"mnuSearchArtist"};
    controls::Menu mnuSearchFilename{"mnuSearchFilename"};
    controls::TextBox txtRefresh{"txtRefresh"};
    controls::ComboBox cmbType{"cmbType", controls::ComboStyle::DropDownList};
    controls::PictureBox picVideo{"picVideo"};
    store::DataSource datSong{"datSong"};
    store::DataSource datPlayList{"datPlayList"};
    store::DataSource datFav{"datFav"};
    store::DataSource datHistory{"datHistory"};
};

/// The whole of start-up and session, joined as the program joins it. `Command` is the command line.
class CoreTest : public ::testing::Test, private controls::ControlObserver {
protected:
    explicit CoreTest(std::string_view command = {}) : Command(command) {
        near.OnCommand1 = [this] { splash.SetStage("Media Library"); };
        for (const auto* file : {"dbFavs.mdb", "dbMedia.mdb", "dbHistory.mdb", "dbLogin.mdb"}) {
            files.AddFile(std::string(kAppPath) + "\\" + file);
        }
        mailbox.Text1.SetText("old log");
        mailbox.Text1.SetObserver(this);
        w.mnuExit.SetEnabled(false);
        w.mnuLogout.SetEnabled(false);
        w.picVideo.Move(0, 0, 2400, 2790);
        w.frmBrowser.Add(start_controls.tmrLoad);
        desktop.Adopt(w.frmBrowser);
        desktop.Adopt(activate.frmActivate);
        desktop.Adopt(login_form.frmLogin);
        claims.Claim(w.mnuRepeat.Click, [this] { w.mnuRepeat.SetChecked(!w.mnuRepeat.Checked()); });
        for (controls::Form* form :
             {&w.frmAdd, &w.frmAbout, &w.frmAddMedia, &w.frmInfo, &w.frmSpeakerTest, &w.frmVideo}) {
            claims.Claim(form->Unload, [this, form](bool&) { near.Note("Unload ", form->Name()); });
        }
        claims.Claim(w.frmBrowser.Unload, [this](bool&) { near.Log.emplace_back("Unload frmBrowser"); });
        claims.Claim(activate.frmActivate.Unload, [this](bool&) {
            if (unloadme) near.Log.emplace_back("the preferences may unload");
            near.Log.emplace_back("Unload frmActivate");
        });
    }

    void SeedUser(std::string_view name, std::string_view password, std::string_view remember = "False",
                  std::string_view auto_login = "False") {
        stores.Seed("tblLogin", {{std::string(name), std::string(password), " ms", " mp", " he", " hp", " fe",
                                  " fp", std::string(remember), std::string(auto_login)}});
    }
    void RemoveFile(std::string_view name) { files.Remove(std::string(kAppPath).append(name)); }
    /// Text of a settings row.
    std::string Setting(int id) {
        for (const Row& row : stores.Rows("tblHistory")) {
            if (row[0] == base::ToText(id)) return row[2];
        }
        return "no row";
    }
    /// Gives a settings row another text; before the table's first use.
    void SetSetting(int id, std::string_view text) {
        store::DataSource source("datSeed");
        stores.Bind(source, "tblHistory");
        source.Open("SELECT * from tblHistory");
        store::RecordSet& rows = source.Recordset();
        for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
            if (rows.Text(store::tblHistory::HistoryID) != base::ToText(id)) continue;
            rows.Edit();
            rows.Set(store::tblHistory::HistoryText, text);
            rows.Update();
        }
    }
    void BindSettings() {
        stores.Bind(w.datHistory, "tblHistory");
        stores.Bind(w.datFav, "tblFavs");
    }
    /// Brings the login up behind the splash and lets its timer fill it.
    void OpenLogin() {
        splash.SetStage("Media Library");
        desktop.Advance(600);
    }
    void TypeLogin(std::string_view name, std::string_view password) {
        login_form.cmbUser.SetText(name);
        login_form.txtPassword.SetText(password);
    }
    /// From the main window's load to the login, standing filled in.
    void StartProgram() {
        w.frmBrowser.Show();
        desktop.Advance(700);
    }
    std::string LastBox() const { return boxes.Boxes.empty() ? "no box" : boxes.Boxes.back().text; }

    std::string Command;
    fakes::FakeDesktop desktop;
    fakes::FakeDialogs boxes;
    fakes::FakeFiles files{kAppPath};
    fakes::SeededStores stores{desktop};
    Neighbours near;
    Windows w;
    session::InfoForm info{files};
    session::OptionControls& checks = info.options;
    session::ActivateForm activate;
    session::LoginForm login_form;
    session::StartUpControls start_controls;
    session::HandOffControls mailbox;
    fakes::FakeInstances instances;
    fakes::FakeInstanceLock instance{instances};
    session::SessionState session;
    session::SessionOptions options;
    session::ConnectionState connection;
    session::LoginState login;
    web::WebState web;
    player::PlayerState player;
    bool& unloadme = info.unloadme;
    fakes::RecordingPageEngine pages;
    session::StoreTroubleControls trouble_controls;
    session::StoreTroubleRoom trouble{trouble_controls, session, boxes};
    bool ListMaybeChanged = false;
    controls::EventClaims claims;

    session::ActivateRoom splash{activate, connection, session, {w.frmBrowser, w}, login_form.frmLogin,
                                 near,     files,      boxes,   desktop,           kAppPath};
    session::LoginRoom login_room{login_form, login,         session, w.frmBrowser, splash,  settings,
                                  near,       stores.Stores, files,   boxes,        desktop, kAppPath};
    session::NewUserRoom wizard{login_form, login_room, session, w.frmBrowser, w.frmInfo, boxes, pages};
    session::SettingsRoom settings{
        {w.mnuRepeat, w.mnuShuffle, w.mnuSearchBroad, w.mnuSearchTitle, w.mnuSearchArtist,
         w.mnuSearchFilename, w.txtRefresh, w.cmbType, w.datHistory, w.datFav},
        checks,
        options,
        session,
        connection,
        web,
        splash,
        near,
        near,
        player,
        desktop,
        desktop,
        pages};
    session::MediaKeys keys{near, near, near};
    session::HandOffRoom hand_off{mailbox,
                                  w,
                                  {session, activate.frmActivate, ListMaybeChanged},
                                  {near, near, near, near, near, near},
                                  {files, boxes, desktop, instance},
                                  [] {}};
    session::SessionRoom session_room{
        {w.frmBrowser, activate.frmActivate, login_form.frmLogin, w.frmAdd, w.frmAbout, w.frmAddMedia,
         w.frmInfo, w.frmSpeakerTest, w.frmVideo, unloadme},
        w,
        session,
        login,
        {settings, login_room, wizard, hand_off, keys},
        {near, near, near, near, near, near, near, near},
        {stores.Stores, trouble},
        {boxes, desktop, pages}};
    session::StartUpRoom start{start_controls,
                               {w.frmBrowser,
                                activate.frmActivate,
                                login_form.frmLogin,
                                w,
                                w.picVideo,
                                {w.datSong, w.datPlayList, w.datFav, w.datHistory}},
                               session,
                               login,
                               web,
                               player,
                               {settings, splash, hand_off},
                               {near, near, near, near, near, near, near, near},
                               {files, desktop, near, boxes},
                               stores.Stores,
                               kAppPath,
                               Command};

private:
    /// The log of the mailbox is part of the log of calls.
    void OnPropertyChanged(controls::Control& control, controls::Property property) override {
        if (&control == &mailbox.Text1 && property == controls::Property::Text)
            near.Note("mailbox ", mailbox.Text1.Text());
    }
};

}  // namespace session_tests
