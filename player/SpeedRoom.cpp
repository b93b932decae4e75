#include "player/SpeedRoom.h"

#include "player/Whole.h"

namespace player {

namespace {

constexpr double kMenuStep = 20;

}  // namespace

SpeedRoom::SpeedRoom(SpeedControls& controls, SpeedMenu& menu, MciLayer& mci, PlayerState& state,
                     roles::AddressRow& address)
    : controls_(controls), menu_(menu), mci_(mci), state_(state), address_(address) {
    auto& lblSongSpeed = controls_.lblSongSpeed;
    claims_.Claim(controls_.picSpeed.MouseDown,
                  [this](int, int, double x, double) { picSpeed_MouseDown(x); });
    claims_.Claim(controls_.picSpeed.MouseUp, [this] { address_.FocusAddress(); });
    claims_.Claim(lblSongSpeed.MouseDown, [this](int, int, double x, double) { lblSongSpeed_MouseDown(x); });
    claims_.Claim(lblSongSpeed.MouseMove, [this](int, int, double x, double) { lblSongSpeed_MouseMove(x); });
    claims_.Claim(lblSongSpeed.MouseUp, [this] { lblSongSpeed_MouseUp(); });
    claims_.Claim(menu_.mnuIncreaseSpeed.Click, [this] { mnuIncreaseSpeed_Click(); });
    claims_.Claim(menu_.mnuDecreaseSpeed.Click, [this] { mnuDecreaseSpeed_Click(); });
    claims_.Claim(menu_.mnuNormalSpeed.Click, [this] { mnuNormalSpeed_Click(); });
}

void SpeedRoom::ApplySpeed() {
    mci_.MciSetSpeed(TextOf(state_.CurrentAlias),
                     WholeInt(controls_.lblSongSpeed.Left() + kSpeedMarkerCentre));
}

void SpeedRoom::PlaceMarker() {
    controls_.picSpeed.SetScaleWidth(kSpeedBarScale);
    KeepMarkerWidth(controls_.lblSongSpeed, controls_.picSpeed, kSpeedMarkerWidth);
    controls_.lblSongSpeed.SetLeft(state_.SongSpeed);
}

int SpeedRoom::Speed() const {
    return state_.SongSpeed + kSpeedMarkerCentre;
}

void SpeedRoom::SetSpeed(double percent) {
    MoveMarker(percent - kSpeedMarkerCentre);
}

void SpeedRoom::picSpeed_MouseDown(double x) {
    MoveMarker(x);
}

void SpeedRoom::MoveMarker(double left) {
    controls_.lblSongSpeed.SetLeft(left);
    ApplySpeed();
    state_.SongSpeed = Whole16(controls_.lblSongSpeed.Left());
}

void SpeedRoom::lblSongSpeed_MouseDown(double x) {
    SpeedDragging_.Press(x);
}

void SpeedRoom::lblSongSpeed_MouseMove(double x) {
    auto& lblSongSpeed = controls_.lblSongSpeed;
    if (SpeedDragging_.Move(lblSongSpeed, x, controls_.picSpeed.ScaleWidth())) {
        MoveMarker(lblSongSpeed.Left());
    }
}

void SpeedRoom::lblSongSpeed_MouseUp() {
    SpeedDragging_.End();
    state_.SongSpeed = Whole16(controls_.lblSongSpeed.Left());
    address_.FocusAddress();
}

/// The device keeps the speed beyond the end; only the marker stays on the bar.
void SpeedRoom::mnuIncreaseSpeed_Click() {
    MoveMarker(controls_.lblSongSpeed.Left() + kMenuStep);
    KeepInsideRightEnd();
}

void SpeedRoom::mnuDecreaseSpeed_Click() {
    MoveMarker(controls_.lblSongSpeed.Left() - kMenuStep);
    if (controls_.lblSongSpeed.Left() < 0) controls_.lblSongSpeed.SetLeft(0);
}

void SpeedRoom::mnuNormalSpeed_Click() {
    MoveMarker(controls_.picSpeed.ScaleWidth() / 2);
}

void SpeedRoom::KeepInsideRightEnd() {
    auto& lblSongSpeed = controls_.lblSongSpeed;
    if (lblSongSpeed.Right() < controls_.picSpeed.ScaleWidth()) return;
    lblSongSpeed.SetLeft(controls_.picSpeed.ScaleWidth() - lblSongSpeed.Width());
}

}  // namespace player
