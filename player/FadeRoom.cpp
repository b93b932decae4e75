#include "player/FadeRoom.h"

#include <string>

#include "base/Number.h"
#include "player/Whole.h"

namespace player {

namespace {

constexpr std::int16_t kDefaultSeconds = 5;
constexpr int kStepPercent = 2;
constexpr double kAtTheEnd = 0.01;  ///< seconds
constexpr int kQuietEnough = 3;     ///< below it the outgoing song is closed

}  // namespace

FadeRoom::FadeRoom(FadeControls& controls, FadeMenu& menu, const controls::PictureBox& song_bar,
                   MciLayer& mci, LevelState& state, const VolumeRoom& volume, PanningRoom& panning,
                   FadeRoles roles)
    : controls_(controls),
      menu_(menu),
      fades_(menu.mnuQuickFade, menu.mnuMediumFade, menu.mnuLongFade, menu.mnuFadeOff),
      song_bar_(song_bar),
      mci_(mci),
      state_(state),
      volume_(volume),
      panning_(panning),
      roles_(roles) {
    auto& lblStartFade = controls_.lblStartFade;
    claims_.Claim(lblStartFade.MouseDown, [this](int, int, double x, double) { lblStartFade_MouseDown(x); });
    claims_.Claim(lblStartFade.MouseMove, [this](int, int, double x, double) { lblStartFade_MouseMove(x); });
    claims_.Claim(lblStartFade.MouseUp,
                  [this](int button, int, double, double) { lblStartFade_MouseUp(button); });
    claims_.Claim(controls_.tmrFade.Tick, [this] { tmrFade_Tick(); });
    claims_.Claim(menu_.mnuQuickFade.Click, [this] { ChooseQuickFade(); });
    claims_.Claim(menu_.mnuMediumFade.Click, [this] { mnuMediumFade_Click(); });
    claims_.Claim(menu_.mnuLongFade.Click, [this] { mnuLongFade_Click(); });
    claims_.Claim(menu_.mnuFadeOff.Click, [this] { mnuFadeOff_Click(); });
}

void FadeRoom::SetDefaults() {
    state_.FadeSeconds = kDefaultSeconds;
}

bool FadeRoom::IsOff() const {
    return menu_.mnuFadeOff.Checked() && controls_.lblStartFade.Right() >= song_bar_.ScaleWidth() - kAtTheEnd;
}

void FadeRoom::StartFade(bool to_b) {
    state_.FadeToB = to_b;
    controls_.tmrFade.SetEnabled(true);
}

void FadeRoom::StopFade() {
    controls_.tmrFade.SetEnabled(false);
}

void FadeRoom::RestartFade() {
    controls_.tmrFade.SetEnabled(true);
}

void FadeRoom::ClearDrag() {
    chooses_at_marker_ = false;
    state_.FadeDragging.End();
}

void FadeRoom::PlaceMarkerForSong() {
    if (state_.FadeSeconds > song_bar_.ScaleWidth()) RunCheckedFade();
    PlaceMarker();
}

void FadeRoom::RestoreMarker() {
    KeepMarkerWidth(controls_.lblStartFade, song_bar_, kSongMarkerWidth);
    PlaceMarker();
}

/// FadeSeconds before the end of the bar.
void FadeRoom::PlaceMarker() {
    controls_.lblStartFade.SetLeft(song_bar_.ScaleWidth() - state_.FadeSeconds);
}

void FadeRoom::lblStartFade_MouseDown(double x) {
    chooses_at_marker_ = false;
    state_.FadeDragging.Press(x);
}

void FadeRoom::lblStartFade_MouseMove(double x) {
    if (state_.FadeDragging.IsOn()) {
        state_.FadeDragging.Move(controls_.lblStartFade, x, song_bar_.ScaleWidth());
        return;
    }
    // The menu is gone again when the pointer moves over the marker.
    chooses_at_marker_ = false;
    const std::int64_t seconds = base::RoundHalfEven(controls_.lblStartFade.Left());
    controls_.lblStartFade.SetToolTipText("Cross fade at: " + base::MinutesAndSeconds(seconds));
}

void FadeRoom::lblStartFade_MouseUp(int button) {
    if (button == controls::kRightButton) roles_.window.PopupMenu(menu_.mnuCrossfade);
    chooses_at_marker_ = button == controls::kRightButton;
    state_.FadeDragging.End();
    TakeSecondsOfMarker();
    roles_.address.FocusAddress();
}

// A marker at the end stays there with every song, also where it is a second wide and more.
void FadeRoom::TakeSecondsOfMarker() {
    state_.FadeSeconds =
        IsOff() ? std::int16_t{0} : Whole16(song_bar_.ScaleWidth() - controls_.lblStartFade.Left());
}

void FadeRoom::tmrFade_Tick() {
    if (volume_.IsMuted()) return;
    const Alias outgoing = state_.FadeToB ? Alias::A : Alias::B;
    const Alias incoming = state_.FadeToB ? Alias::B : Alias::A;
    LowerOutgoing(outgoing);
    if (RaiseIncoming(incoming)) return;
    StopFade();
    mci_.MciClose(TextOf(outgoing));
    panning_.SetPanningRunning(true);
}

int FadeRoom::Percent(Alias alias) {
    return base::Saturated<int>(mci_.MciGetVolume(TextOf(alias), "all"));
}

/// A closed alias reads -1, so the close is repeated on every later tick of the ramp.
void FadeRoom::LowerOutgoing(Alias alias) {
    if (Percent(alias) >= kQuietEnough) {
        mci_.MciSetVolume(TextOf(alias), "all", Percent(alias) - kStepPercent);
    } else {
        mci_.MciClose(TextOf(alias));
    }
}

/// False when the song has reached its level.
bool FadeRoom::RaiseIncoming(Alias alias) {
    if (Percent(alias) >= state_.MusicVolume) return false;
    mci_.MciSetVolume(TextOf(alias), "all", Percent(alias) + kStepPercent);
    return true;
}

void FadeRoom::ChooseQuickFade() {
    TakeFade(menu_.mnuQuickFade, 60, 5);
}

void FadeRoom::mnuMediumFade_Click() {
    TakeFade(menu_.mnuMediumFade, 220, 10);
}

void FadeRoom::mnuLongFade_Click() {
    TakeFade(menu_.mnuLongFade, 500, 20);
}

void FadeRoom::mnuFadeOff_Click() {
    UnTickFades();
    menu_.mnuFadeOff.SetChecked(true);
    controls_.tmrFade.SetInterval(1);
    // FadeSeconds stays, so the next song's marker is placed by it again.
    controls_.lblStartFade.SetLeft(song_bar_.ScaleWidth() - controls_.lblStartFade.Width());
    FinishChoice();
}

/// A choice in the menu at the marker comes after the marker was released, and its place counts then.
void FadeRoom::FinishChoice() {
    if (chooses_at_marker_) TakeSecondsOfMarker();
    chooses_at_marker_ = false;
}

void FadeRoom::TakeFade(controls::Menu& entry, int interval_ms, int seconds) {
    UnTickFades();
    entry.SetChecked(true);
    controls_.tmrFade.SetInterval(interval_ms);
    state_.FadeSeconds = Whole16(seconds);
    PlaceMarker();
    FinishChoice();
}

void FadeRoom::RunCheckedFade() {
    if (controls::Menu* entry = fades_.Checked()) entry->Click.Raise();
}

}  // namespace player
