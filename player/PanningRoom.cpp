#include "player/PanningRoom.h"

#include "player/Whole.h"

namespace player {

namespace {

constexpr int kFullLevel = 100;
constexpr int kLeftSteps = 10;     ///< instant: below it the left speaker plays
constexpr int kInstantSteps = 19;  ///< instant: here the count starts again
constexpr int kLastSweepStep = 99;

}  // namespace

PanningRoom::PanningRoom(PanningControls& controls, PanningMenu& menu, const controls::Timer& fade_timer,
                         MciLayer& mci, const PlaybackState& state, VolumeRoom& volume)
    : controls_(controls),
      menu_(menu),
      pannings_(menu.mnuPanInstant, menu.mnuPanQuick, menu.mnuPanMedium, menu.mnuPanLong, menu.mnuPanOff),
      fade_timer_(fade_timer),
      mci_(mci),
      state_(state),
      volume_(volume) {
    claims_.Claim(controls_.tmrPanning.Tick, [this] { tmrPanning_Tick(); });
    claims_.Claim(menu_.mnuPanInstant.Click, [this] { mnuPanInstant_Click(); });
    claims_.Claim(menu_.mnuPanQuick.Click, [this] { mnuPanQuick_Click(); });
    claims_.Claim(menu_.mnuPanMedium.Click, [this] { mnuPanMedium_Click(); });
    claims_.Claim(menu_.mnuPanLong.Click, [this] { mnuPanLong_Click(); });
    claims_.Claim(menu_.mnuPanOff.Click, [this] { TurnPanningOff(); });
}

void PanningRoom::SetPanningRunning(bool running) {
    controls_.tmrPanning.SetEnabled(running);
}

void PanningRoom::tmrPanning_Tick() {
    PanStep_ = OneMore(PanStep_);
    if (fade_timer_.Enabled() || volume_.IsMuted() || menu_.mnuPanOff.Checked()) return;
    if (menu_.mnuPanInstant.Checked()) {
        StepInstant();
    } else {
        StepSweep();
    }
}

void PanningRoom::StepInstant() {
    if (PanStep_ < kLeftSteps) {
        SendLevels(kFullLevel, 0);
    } else if (PanStep_ < kInstantSteps) {
        SendLevels(0, kFullLevel);
    } else {
        PanStep_ = 0;
    }
}

void PanningRoom::StepSweep() {
    if (PanReversed_) {
        SendLevels(kFullLevel - PanStep_, PanStep_);
    } else {
        SendLevels(PanStep_, kFullLevel - PanStep_);
    }
    if (PanStep_ < kLastSweepStep) return;
    PanReversed_ = !PanReversed_;
    PanStep_ = 0;
}

void PanningRoom::SendLevels(int left, int right) {
    mci_.MciSetVolume(TextOf(state_.CurrentAlias), "left", left);
    mci_.MciSetVolume(TextOf(state_.CurrentAlias), "right", right);
}

void PanningRoom::mnuPanInstant_Click() {
    TakePanning(menu_.mnuPanInstant, 50);
}

void PanningRoom::mnuPanQuick_Click() {
    TakePanning(menu_.mnuPanQuick, 10);
}

void PanningRoom::mnuPanMedium_Click() {
    TakePanning(menu_.mnuPanMedium, 50);
}

void PanningRoom::mnuPanLong_Click() {
    TakePanning(menu_.mnuPanLong, 100);
}

void PanningRoom::TurnPanningOff() {
    UnTickPanning();
    SetPanningRunning(false);
    volume_.volchanged();
    pannings_.Check(menu_.mnuPanOff);
}

void PanningRoom::TakePanning(controls::Menu& entry, int interval_ms) {
    UnTickPanning();
    PanningOn();
    controls_.tmrPanning.SetInterval(interval_ms);
    pannings_.Check(entry);
}

void PanningRoom::PanningOn() {
    SetPanningRunning(true);
    volume_.volchanged();
    PanStep_ = 0;
    SendLevels(0, kFullLevel);
}

}  // namespace player
