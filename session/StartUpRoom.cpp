#include "session/StartUpRoom.h"

#include "base/Number.h"
#include "base/Text.h"
#include "store/Tables.h"
#include "web/Addresses.h"

namespace session {
namespace {

constexpr int kLoadTick = 5;
constexpr std::int16_t kStartSpeed = 100;

std::string WholeNumber(double value) {
    return base::ToText(base::RoundHalfEven(value));
}

}  // namespace

StartUpRoom::StartUpRoom(StartUpControls& controls, StartUpTargets targets, SessionState& session,
                         const LoginState& login, web::WebState& web, player::LevelState& levels,
                         StartUpRooms rooms, StartUpRoles roles, StartUpPorts ports, store::Stores& stores,
                         std::string_view app_path, std::string_view command)
    : controls_(controls),
      targets_(targets),
      session_(session),
      login_(login),
      web_(web),
      levels_(levels),
      rooms_(rooms),
      roles_(roles),
      ports_(ports),
      stores_(stores),
      app_path_(app_path),
      command_(command) {
    claims_.Claim(targets_.frmBrowser.Load, [this] { Form_Load(); });
    claims_.Claim(controls_.tmrLoad.Tick, [this] { tmrLoad_Tick(); });
}

void StartUpRoom::Form_Load() {
    SetStartValues();
    targets_.menu.mnuLogout.SetEnabled(login_.Allow_Multiple_Users);
    targets_.menu.mnuExit.SetEnabled(true);
    BindStores();
    rooms_.hand_off.Prepare();
    load_ticks_ = 0;
    web_.BackdropHidden = true;
    if (const ports::Instance instance = ports_.instance.Answer(); instance != ports::Instance::First) {
        HandOver(instance);
        return;
    }
    rooms_.hand_off.Deliver(command_);
    SetPlayerDefaults();
    TakeArguments();
    controls_.tmrLoad.SetEnabled(true);
}

void StartUpRoom::SetStartValues() {
    web_.currentbrowser = 0;
    web_.MusicTabActive = true;
    web_.TabsShown = true;
    session_.FirstLoadDone = false;
    session_.SplashPending = true;
    load_ticks_ = 0;
    session_.VideoPaneSize =
        WholeNumber(targets_.picVideo.Width()) + "," + WholeNumber(targets_.picVideo.Height());
}

// A file that is not there is passed over without a word: the splash refuses it.
void StartUpRoom::BindStores() {
    Bind(targets_.sources.datSong, store::kMediaStore);
    Bind(targets_.sources.datPlayList, store::kMediaStore);
    Bind(targets_.sources.datFav, store::kFavouritesStore);
    Bind(targets_.sources.datHistory, store::kHistoryStore);
}

void StartUpRoom::Bind(store::DataSource& source, std::string_view file) {
    const std::string path = std::string(app_path_).append(file);
    if (ports_.files.FileExists(path)) source.SetDatabaseName(stores_, path);
}

// Without the lock the stores may belong to another run, whatever the reason.
void StartUpRoom::HandOver(ports::Instance instance) {
    session_.NothingBegun = true;
    if (instance == ports::Instance::Second) {
        ports_.instance.HandOff(command_);
    } else {
        ports_.dialogs.MsgBox(ports_.instance.Failure(), ports::BoxButtons::Ok, "Brindlepost",
                              ports::BoxIcon::Critical);
    }
    targets_.frmBrowser.UnloadWindow();
}

void StartUpRoom::SetPlayerDefaults() {
    roles_.player.SetDefaults();
    ports_.events.Yield();
    roles_.player.ClearVideoPicture();
    roles_.favourites.TogglePanel();
    web_.currentbrowser = 0;
    web_.TabsShown = true;
    levels_.SongSpeed = kStartSpeed;
    roles_.highlights.NoMouseOvers();
    web_.MusicTabActive = true;
    roles_.player.ChooseQuickFade();
}

void StartUpRoom::TakeArguments() {
    session_.StartedWithArguments = !command_.empty();
    if (command_.empty()) return;
    session_.StartArguments = EntriesOf(command_);
    session_.StartArgument = 0;
    roles_.tabs.NavigateBackdrop(web::MakerAddress(web::kBackdropQuery));
}

void StartUpRoom::tmrLoad_Tick() {
    if (++load_ticks_ != kLoadTick) return;
    if (!IsOver()) FillLists();
    controls_.tmrLoad.SetEnabled(false);
    load_ticks_ = 0;
    if (!IsOver()) LoadSettingsOnce();
    if (!IsOver()) OpenInitialPages();
    if (IsOver()) return;
    roles_.favourites.SettleAtStart();
    if (IsOver()) return;
    ShowSplash();
    roles_.tabs.CorrectTabs();
}

void StartUpRoom::FillLists() {
    roles_.track_lists.Command1();
    if (IsOver()) return;
    rooms_.splash.SetStage("History files");
    ports_.events.Yield();
    if (!IsOver()) roles_.history.PopulateHistory(roles::HistoryKind::Web);
}

void StartUpRoom::LoadSettingsOnce() {
    if (session_.FirstLoadDone) return;
    session_.FirstLoadDone = true;
    rooms_.splash.SetStage("Previous settings");
    ports_.events.Yield();
    rooms_.settings.LoadSettings();
}

void StartUpRoom::OpenInitialPages() {
    if (base::Trim(roles_.address_row.Address()).empty()) return;
    rooms_.splash.SetStage("Initial pages");
    ports_.events.Yield();
    roles_.opener.Enter(roles_.address_row.Address());
}

// Settling the favourites has put the main window in front. Somebody may have been logged in automatically
// before the lists were full; then the splash, which may have handed over already, counts again.
void StartUpRoom::ShowSplash() {
    if (!session_.SplashPending) return;
    session_.SplashPending = false;
    targets_.frmBrowser.SetEnabled(false);
    targets_.frmActivate.Show();
    targets_.frmActivate.BringToFront();
    if (targets_.frmLogin.Visible()) targets_.frmLogin.BringToFront();
    if (!session_.LoggedIn) return;
    targets_.frmBrowser.Hide();
    rooms_.splash.StartCounting();
}

}  // namespace session
