#include "session/ActivateRoom.h"

#include <array>

#include "base/Text.h"
#include "store/Tables.h"
#include "web/Addresses.h"

namespace session {
namespace {

constexpr int kStageStep = 10;
constexpr int kFull = 100;
/// Ticks of Timer2 that the probe is given: 5 seconds.
constexpr int kLastProbeTick = 50;
constexpr std::array kStoreFiles = {store::kFavouritesStore, store::kMediaStore, store::kHistoryStore,
                                    store::kLoginStore};

}  // namespace

ActivateRoom::ActivateRoom(ActivateForm& form, ConnectionState& connection, SessionState& session,
                           RevealedWindow main_window, controls::Form& frmLogin, roles::Tabs& tabs,
                           ports::Files& files, ports::Dialogs& dialogs, ports::EventLoop& events,
                           std::string_view app_path)
    : form_(form),
      connection_(connection),
      session_(session),
      main_window_(main_window),
      frm_login_(frmLogin),
      tabs_(tabs),
      files_(files),
      dialogs_(dialogs),
      events_(events),
      app_path_(app_path) {
    claims_.Claim(form_.frmActivate.Load, [this] { Form_Load(); });
    claims_.Claim(form_.frmActivate.QueryUnload, [this](bool& cancel) { Form_QueryUnload(cancel); });
    claims_.Claim(form_.lblLoading.Change, [this] { lblLoading_Change(); });
    claims_.Claim(form_.Timer1.Tick, [this] { Timer1_Tick(); });
    claims_.Claim(form_.Timer2.Tick, [this] { Timer2_Tick(); });
    claims_.Claim(form_.cmdRetry.Click, [this] { cmdRetry_Click(); });
    claims_.Claim(form_.cmdJustMusic.Click, [this] { cmdJustMusic_Click(); });
    claims_.Claim(form_.cmdClose.Click, [this] { cmdClose_Click(); });
}

// A window that was unloaded at the end of the program, or because a store is missing, is not loaded again by
// a routine that is still on its way out.
void ActivateRoom::SetStage(std::string_view stage) {
    if (!was_loaded_) form_.frmActivate.LoadWindow();
    form_.lblLoading.SetCaption(stage);
}

void ActivateRoom::StartCounting() {
    form_.frmActivate.Show();
    form_.Timer1.SetEnabled(true);
}

void ActivateRoom::Form_Load() {
    was_loaded_ = true;
    form_.pbLoad.SetValue(0);
    form_.frmActivate.Show();
    events_.Yield();
    connection_.Internet_Connection = true;
    connection_.Just_Music = false;
    form_.Browser.Navigate(web::MakerAddress("/"));
    form_.lblLoading.SetCaption("Logging in");
    events_.Yield();
    if (events_.IsEnding()) return;
    if (!AreStoresThere()) {
        RefuseMissingStores();
        return;
    }
    frm_login_.Show();
    // The lists that are filled next may be long.
    events_.Yield();
}

// The splash has no close box; what else may close it must not leave the program without a window.
void ActivateRoom::Form_QueryUnload(bool& cancel) {
    cancel = !IsOver();
}

void ActivateRoom::lblLoading_Change() {
    form_.pbLoad.SetValue(form_.pbLoad.Value() + kStageStep);
}

// An end that comes while the splash counts must not meet the main window on its way in.
void ActivateRoom::Timer1_Tick() {
    if (IsOver()) {
        form_.Timer1.SetEnabled(false);
        return;
    }
    form_.frmActivate.Show();
    form_.pbLoad.SetValue(form_.pbLoad.Value() + 1);
    if (form_.pbLoad.Value() >= kFull) RevealMainWindow();
}

void ActivateRoom::RevealMainWindow() {
    form_.Timer1.SetEnabled(false);
    main_window_.frmBrowser.SetEnabled(true);
    main_window_.menu.mnuExit.SetEnabled(true);
    main_window_.menu.mnuLogout.SetEnabled(true);
    main_window_.frmBrowser.Show();
    form_.frmActivate.Hide();
    if (tabs_.IsMusicTabVisible()) tabs_.OpenMusicTab();
}

void ActivateRoom::Timer2_Tick() {
    form_.lblLoading.SetCaption("Internet connection");
    events_.Yield();
    ++InternetProbeTicks_;
    const bool found = base::InStr(form_.Browser.LocationURL() + "  ", web::MakerDomain) > 0;
    if (!found && InternetProbeTicks_ != kLastProbeTick) return;
    form_.Timer2.SetEnabled(false);
    // A find on exactly the last tick counts as a failure.
    if (InternetProbeTicks_ != kLastProbeTick) {
        DoLoading();
    } else {
        form_.fraConnection.SetVisible(true);
    }
    InternetProbeTicks_ = 0;
}

void ActivateRoom::DoLoading() {
    if (!AreStoresThere()) {
        RefuseMissingStores();
        return;
    }
    LoadMediaLibraryStage();
}

void ActivateRoom::LoadMediaLibraryStage() {
    form_.Timer1.SetEnabled(true);
    main_window_.frmBrowser.Show();
    main_window_.frmBrowser.Hide();
    form_.lblLoading.SetCaption("Media Library");
    events_.Yield();
}

void ActivateRoom::cmdRetry_Click() {
    form_.fraConnection.SetVisible(false);
    // A page that nobody sees gets no engine; the check needs one.
    form_.Browser.SetVisible(true);
    form_.Timer2.SetEnabled(true);
}

void ActivateRoom::cmdJustMusic_Click() {
    form_.fraConnection.SetVisible(false);
    connection_.Internet_Connection = false;
    connection_.Just_Music = true;
    LoadMediaLibraryStage();
}

void ActivateRoom::cmdClose_Click() {
    cmdJustMusic_Click();
}

void ActivateRoom::ResumeConnection() {
    InternetProbeTicks_ = 0;
    form_.fraConnection.SetVisible(false);
    connection_.Internet_Connection = true;
    form_.Browser.SetEnabled(true);
    form_.Browser.RefreshPage();
    while (form_.Browser.Busy() && !events_.IsEnding())
        events_.Yield();
    form_.Timer1.SetEnabled(true);
}

bool ActivateRoom::AreStoresThere() const {
    for (const std::string_view file : kStoreFiles) {
        if (!files_.FileExists(std::string(app_path_).append(file))) return false;
    }
    return true;
}

void ActivateRoom::RefuseMissingStores() {
    form_.Timer1.SetEnabled(false);
    form_.Timer2.SetEnabled(false);
    dialogs_.MsgBox(
        std::string("Some of your databases are not in there correct directory, please re-install the "
                    "application to ensure all databases and components are corerct.\r\n"
                    "Brindlepost can be downloaded from ")
            .append(web::MakerAddress("/")),
        ports::BoxButtons::Ok, "Database missing...", ports::BoxIcon::Critical);
    session_.NothingBegun = true;
    form_.frmActivate.UnloadWindow();
    main_window_.frmBrowser.UnloadWindow();
}

}  // namespace session
