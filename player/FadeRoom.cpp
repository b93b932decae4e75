#include "player/FadeRoom.h"

#include <string>

#include "base/Number.h"
#include "player/Whole.h"

namespace player {

namespace {

constexpr int kStepPercent = 2;
constexpr int kQuietEnough = 3;  ///< below it the outgoing song is closed

}  // namespace

FadeRoom::FadeRoom(FadeControls& controls, FadeMenu& menu, const controls::PictureBox& picSongProgress,
                   MciLayer& mci, LevelState& state, const Volume& volume, Panning& panning,
                   AddressRow& address, MainWindow& window)
    : controls_(controls),
      menu_(menu),
      fades_(menu.mnuQuickFade, menu.mnuMediumFade, menu.mnuLongFade, menu.mnuFadeOff),
      picSongProgress_(picSongProgress),
      mci_(mci),
      state_(state),
      volume_(volume),
      panning_(panning),
      address_(address),
      window_(window) {
    auto& lblStartFade = controls_.lblStartFade;
    claims_.Claim(lblStartFade.MouseDown, [this](int, int, double x, double) { lblStartFade_MouseDown(x); });
    claims_.Claim(lblStartFade.MouseMove, [this](int, int, double x, double) { lblStartFade_MouseMove(x); });
    claims_.Claim(lblStartFade.MouseUp,
                  [this](int button, int, double, double) { lblStartFade_MouseUp(button); });
    claims_.Claim(controls_.tmrFade.Tick, [this] { tmrFade_Tick(); });
    claims_.Claim(menu_.mnuQuickFade.Click, [this] { mnuQuickFade_Click(); });
    claims_.Claim(menu_.mnuMediumFade.Click, [this] { mnuMediumFade_Click(); });
    claims_.Claim(menu_.mnuLongFade.Click, [this] { mnuLongFade_Click(); });
    claims_.Claim(menu_.mnuFadeOff.Click, [this] { mnuFadeOff_Click(); });
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
    state_.FadeDragging = false;
}

void FadeRoom::PlaceMarkerForSong() {
    if (state_.FadeSeconds > picSongProgress_.ScaleWidth()) RunCheckedFade();
    PlaceMarker();
}

void FadeRoom::RestoreMarker() {
    KeepMarkerWidth(controls_.lblStartFade, picSongProgress_, kSongMarkerWidth);
    PlaceMarker();
}

/// FadeSeconds before the end of the bar.
void FadeRoom::PlaceMarker() {
    controls_.lblStartFade.SetLeft(picSongProgress_.ScaleWidth() - state_.FadeSeconds);
}

void FadeRoom::lblStartFade_MouseDown(double x) {
    state_.FadeDragging = true;
    FadeDragX_ = Whole16(x);
}

void FadeRoom::lblStartFade_MouseMove(double x) {
    if (state_.FadeDragging) {
        DragMarker(x);
        return;
    }
    const std::int64_t seconds = base::RoundHalfEven(controls_.lblStartFade.Left());
    controls_.lblStartFade.SetToolTipText("Cross fade at: " + base::MinutesAndSeconds(seconds));
}

void FadeRoom::lblStartFade_MouseUp(int button) {
    if (button == controls::kRightButton) window_.PopupMenu(menu_.mnuCrossfade);
    state_.FadeDragging = false;
    state_.FadeSeconds = Whole16(picSongProgress_.ScaleWidth() - controls_.lblStartFade.Left());
    address_.FocusAddress();
}

/// The marker creeps by the ratio of the present to the pressed position; that is how it is meant to feel.
void FadeRoom::DragMarker(double x) {
    if (FadeDragX_ == 0) return;
    auto& lblStartFade = controls_.lblStartFade;
    lblStartFade.SetLeft(lblStartFade.Left() + x / FadeDragX_);
    if (lblStartFade.Left() < 0) lblStartFade.SetLeft(0);
    if (lblStartFade.Right() >= picSongProgress_.ScaleWidth()) {
        lblStartFade.SetLeft(picSongProgress_.ScaleWidth() - lblStartFade.Width());
    }
}

void FadeRoom::tmrFade_Tick() {
    if (volume_.IsMuted()) return;
    const std::string_view outgoing = state_.FadeToB ? "a" : "b";
    const std::string_view incoming = state_.FadeToB ? "b" : "a";
    LowerOutgoing(outgoing);
    if (RaiseIncoming(incoming)) return;
    StopFade();
    mci_.MciClose(outgoing);
    panning_.SetPanningRunning(true);
}

int FadeRoom::Percent(std::string_view alias) {
    return base::Saturated<int>(mci_.MciGetVolume(alias, "all"));
}

/// A closed alias reads -1, so the close is repeated on every later tick of the ramp.
void FadeRoom::LowerOutgoing(std::string_view alias) {
    if (Percent(alias) >= kQuietEnough) {
        mci_.MciSetVolume(alias, "all", Percent(alias) - kStepPercent);
    } else {
        mci_.MciClose(alias);
    }
}

/// False when the song has reached its level.
bool FadeRoom::RaiseIncoming(std::string_view alias) {
    if (Percent(alias) >= state_.MusicVolume) return false;
    mci_.MciSetVolume(alias, "all", Percent(alias) + kStepPercent);
    return true;
}

void FadeRoom::mnuQuickFade_Click() {
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
    // FadeSeconds stays: the next song's marker stands by it again.
    controls_.lblStartFade.SetLeft(picSongProgress_.ScaleWidth() - controls_.lblStartFade.Width());
}

void FadeRoom::TakeFade(controls::Menu& entry, int interval_ms, int seconds) {
    UnTickFades();
    entry.SetChecked(true);
    controls_.tmrFade.SetInterval(interval_ms);
    state_.FadeSeconds = Whole16(seconds);
    PlaceMarker();
}

void FadeRoom::RunCheckedFade() {
    if (controls::Menu* entry = fades_.Checked()) entry->Click.Raise();
}

}  // namespace player
