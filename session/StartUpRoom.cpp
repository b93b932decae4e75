#include "session/StartUpRoom.h"

#include "base/Number.h"
#include "base/Text.h"
#include "store/Tables.h"
#include "web/Addresses.h"

namespace session {
namespace {

constexpr int kLoadTick = 5;
constexpr int kStartSpeed = 100;
/// What stands between two quoted paths of a command line.
constexpr std::string_view kBetweenPaths = "\" \"";
constexpr std::string_view kPathMark = "^";

std::string WholeNumber(double value) {
    return base::ToText(base::RoundHalfEven(value));
}

}  // namespace

StartUpRoom::StartUpRoom(StartUpControls& controls, StartUpTargets targets, SessionState& session,
                         const LoginState& login, web::WebState& web, SettingsRoom& settings,
                         HandOffRoom& hand_off, StartUpNeighbours neighbours, store::Stores& stores,
                         ports::Files& files, ports::EventLoop& events, std::string_view app_path,
                         std::string_view command)
    : controls_(controls),
      targets_(targets),
      session_(session),
      login_(login),
      web_(web),
      settings_(settings),
      hand_off_(hand_off),
      neighbours_(neighbours),
      stores_(stores),
      files_(files),
      events_(events),
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
    hand_off_.Prepare();
    load_ticks_ = 0;
    web_.BackdropHidden = true;
    if (neighbours_.other_instance.IsRunning()) {
        HandOver();
        return;
    }
    hand_off_.Deliver(command_);
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
    Bind(targets_.datSong, store::kMediaStore);
    Bind(targets_.datPlayList, store::kMediaStore);
    Bind(targets_.datFav, store::kFavouritesStore);
    Bind(targets_.datHistory, store::kHistoryStore);
}

void StartUpRoom::Bind(store::DataSource& source, std::string_view file) {
    const std::string path = std::string(app_path_).append(file);
    if (files_.FileExists(path)) source.SetDatabaseName(stores_, path);
}

void StartUpRoom::HandOver() {
    session_.NothingBegun = true;
    neighbours_.other_instance.HandOver(command_);
    targets_.frmBrowser.UnloadWindow();
}

void StartUpRoom::SetPlayerDefaults() {
    neighbours_.player.SetPlayerDefaults();
    events_.Yield();
    neighbours_.player.ClearVideoPicture();
    neighbours_.favourites.TogglePanel();
    web_.currentbrowser = 0;
    web_.TabsShown = true;
    neighbours_.player.SetSongSpeed(kStartSpeed);
    neighbours_.skin.NoMouseOvers();
    web_.MusicTabActive = true;
    neighbours_.player.ChooseQuickFade();
}

void StartUpRoom::TakeArguments() {
    session_.StartedWithArguments = !command_.empty();
    if (command_.empty()) return;
    session_.StartArguments = base::Split(base::Replace(command_, kBetweenPaths, kPathMark), kPathMark);
    session_.StartArgument = 0;
    neighbours_.tabs.NavigateBackdrop(web::MakerAddress(web::kBackdropQuery));
}

// A start that was refused, or a program that ends, during one of the yields goes no further.
bool StartUpRoom::IsOver() const {
    return session_.NothingBegun || session_.mainclose || events_.IsEnding();
}

void StartUpRoom::tmrLoad_Tick() {
    if (++load_ticks_ != kLoadTick) return;
    if (!IsOver()) FillLists();
    controls_.tmrLoad.SetEnabled(false);
    load_ticks_ = 0;
    if (!IsOver()) LoadSettingsOnce();
    if (!IsOver()) OpenInitialPages();
    if (IsOver()) return;
    neighbours_.favourites.SettleFavourites();
    if (IsOver()) return;
    ShowSplash();
    neighbours_.tabs.CorrectTabs();
}

void StartUpRoom::FillLists() {
    neighbours_.media_lists.Command1();
    if (IsOver()) return;
    neighbours_.stage.SetStage("History files");
    events_.Yield();
    if (!IsOver()) neighbours_.history.PopulateHistory("Web");
}

void StartUpRoom::LoadSettingsOnce() {
    if (session_.FirstLoadDone) return;
    session_.FirstLoadDone = true;
    neighbours_.stage.SetStage("Previous settings");
    events_.Yield();
    settings_.LoadSettings();
}

void StartUpRoom::OpenInitialPages() {
    if (base::Trim(neighbours_.address_bar.Address()).empty()) return;
    neighbours_.stage.SetStage("Initial pages");
    events_.Yield();
    neighbours_.address_bar.PressEnter();
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
    if (session_.LoggedIn) neighbours_.splash.StartCounting();
}

}  // namespace session
