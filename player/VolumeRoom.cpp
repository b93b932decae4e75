#include "player/VolumeRoom.h"

#include <algorithm>

#include "player/Whole.h"

namespace player {

namespace {

constexpr double kMenuStep = 300;  ///< about 16.8 percent
constexpr int kWheelPercent = 5;   ///< a notch
constexpr int kFullPercent = 100;

int PercentOf(double left) {
    return WholeInt(left / kUnitsPerPercent);
}

}  // namespace

VolumeRoom::VolumeRoom(VolumeControls& controls, VolumeMenu& menu, MciLayer& mci, PlayerState& state,
                       roles::AddressRow& address, roles::Highlights& highlights)
    : controls_(controls), menu_(menu), mci_(mci), state_(state), address_(address), highlights_(highlights) {
    claims_.Claim(controls_.picVolume.MouseWheel, [this](int notches) { picVolume_MouseWheel(notches); });
    claims_.Claim(controls_.lblVol.MouseDown, [this](int, int, double x, double) { lblVol_MouseDown(x); });
    claims_.Claim(controls_.lblVol.MouseMove, [this] { highlights_.NoMouseOvers(); });
    claims_.Claim(controls_.lblNoVol.MouseDown, [this] { MoveLevel(0); });
    claims_.Claim(controls_.lblFullVol.MouseDown, [this] { MoveLevel(kFullVolumeLeft); });
    claims_.Claim(controls_.imgVol.MouseDown, [this](int, int, double x, double) { imgVol_MouseDown(x); });
    claims_.Claim(controls_.imgVol.MouseMove, [this] { highlights_.NoMouseOvers(); });
    claims_.Claim(controls_.lblMute.Click, [this] { lblMute_Click(); });
    claims_.Claim(menu_.mnuIncreaseVolume.Click, [this] { IncreaseVolume(); });
    claims_.Claim(menu_.mnuDecreaseVolume.Click, [this] { DecreaseVolume(); });
    claims_.Claim(menu_.mnuMusicMute.Click, [this] { ToggleMute(); });
}

void VolumeRoom::SetDefaults() {
    state_.MusicVolume = kFullPercent;
    controls_.lblMute.SetVisible(false);
    menu_.mnuMusicMute.SetChecked(false);
}

double VolumeRoom::Volume() const {
    return IsMuted() ? 0 : std::clamp(controls_.imgVol.Left() / kFullVolumeLeft, 0.0, 1.0);
}

void VolumeRoom::SetVolume(double volume) {
    MoveLevel(volume * kFullVolumeLeft);
}

void VolumeRoom::volchanged() {
    auto& imgVol = controls_.imgVol;
    // The level goes out before the clamp: one beyond the bar is refused, and the device stays where it was.
    const Alias alias = state_.CurrentAlias == Alias::A ? Alias::A : Alias::B;
    mci_.MciSetVolume(TextOf(alias), "all", PercentOf(imgVol.Left()));
    imgVol.SetLeft(std::clamp(imgVol.Left(), 0.0, kFullVolumeLeft));
    state_.MusicVolume = PercentOf(imgVol.Left());
    controls_.lblMute.SetVisible(false);
    menu_.mnuMusicMute.SetChecked(false);
}

/// Unlike the menu's steps, a notch never asks for a level beyond the bar: the device follows to the very
/// end.
void VolumeRoom::picVolume_MouseWheel(int notches) {
    const int level =
        std::clamp(PercentOf(controls_.imgVol.Left()) + notches * kWheelPercent, 0, kFullPercent);
    controls_.imgVol.SetLeft(level * kUnitsPerPercent);
    volchanged();
}

void VolumeRoom::lblVol_MouseDown(double x) {
    MoveLevel(x);
}

void VolumeRoom::imgVol_MouseDown(double x) {
    MoveLevel(x);
}

void VolumeRoom::MoveLevel(double left) {
    controls_.imgVol.SetLeft(left);
    volchanged();
    address_.FocusAddress();
}

void VolumeRoom::lblMute_Click() {
    ToggleMute();
    address_.FocusAddress();
}

void VolumeRoom::IncreaseVolume() {
    controls_.imgVol.SetLeft(controls_.imgVol.Left() + kMenuStep);
    volchanged();
}

void VolumeRoom::DecreaseVolume() {
    controls_.imgVol.SetLeft(controls_.imgVol.Left() - kMenuStep);
    volchanged();
}

void VolumeRoom::ToggleMute() {
    if (!menu_.mnuMusicMute.Checked()) {
        mci_.MciSetVolume(TextOf(state_.CurrentAlias), "all", 0);
        controls_.lblMute.SetVisible(true);
        menu_.mnuMusicMute.SetChecked(true);
        return;
    }
    // Units, not percent: anything above 100 is refused, and volchanged puts the true level.
    mci_.MciSetVolume(TextOf(state_.CurrentAlias), "all", WholeInt(controls_.imgVol.Left()));
    volchanged();
}

}  // namespace player
