// The player's panel at the foot of the music pane: buttons, title, song bar, speed and volume.

#include <algorithm>

#include "window/BrowserLayout.h"
#include "window/LayoutMeasures.h"

namespace window {
namespace {

using controls::Control;
using controls::MoveTwins;
using controls::Px;

constexpr double kPanelHeight = Px(80);
constexpr double kTitleLeft = Px(108);
constexpr double kTitleHeight = Px(24);
constexpr double kTimeWidth = Px(110);
constexpr double kSpeedLabelWidth = Px(44);
constexpr double kVolumeWidth = Px(130);

}  // namespace

void BrowserLayout::PlaceTransport() {
    Control& pane = window_.chrome.fraMusicTab;
    window_.player.transport.fraControls.Move(kGap, pane.Height() - kPanelHeight - kGap,
                                              pane.Width() - 2 * kGap, kPanelHeight);
}

void BrowserLayout::PlaceControlsGround() {
    auto& transport = window_.player.transport;
    Fill(transport.imgControlsBG, transport.fraControls);
    const double top = IsNarrow() ? Px(4) : Px(8);
    const double right = IsNarrow() ? transport.fraControls.Width() - kGap
                                    : transport.fraControls.Width() - kVolumeWidth - 3 * kGap;
    transport.picTrackTitle.Move(kTitleLeft, top, right - kTitleLeft - kTimeWidth - Px(6), Px(24));
    window_.player.resume.lblResume.Move(Px(6), 0, transport.picTrackTitle.Width() - Px(12), Px(23));
    transport.picSongProgress.Move(kTitleLeft, top + (IsNarrow() ? Px(28) : Px(30)), right - kTitleLeft,
                                   Px(16));
}

void BrowserLayout::PlacePaneChains() {
    auto& transport = window_.player.transport;
    transport.picRunningTime.Move(transport.picTrackTitle.Right() + Px(6), transport.picTrackTitle.Top(),
                                  kTimeWidth, Px(24));
    PlaceVolume();
    PlaceCueColumn();
    const double buttons = IsNarrow() ? Px(6) : Px(18);
    MoveTwins(Px(12), buttons, Px(44), Px(44), transport.imgPlay, transport.imgPlayOver, transport.imgPause,
              transport.imgPauseOver);
    MoveTwins(Px(64), buttons + Px(5), Px(34), Px(34), transport.imgStop, transport.imgStopOver);
    PlaceSpeedRow();
}

// The row below the song bar. A narrow panel has no room for all of it beside one another: the attach button
// goes below the play button, the notices below the speed.
void BrowserLayout::PlaceSpeedRow() {
    auto& levels = window_.player.levels;
    auto& transport = window_.player.transport;
    Control& attach = window_.player.video.cmdAttachVid;
    const double top = IsNarrow() ? Px(51) : Px(60);
    levels.lblSpeedLabel.Move(kTitleLeft, top, kSpeedLabelWidth, kHeadingHeight);
    levels.picSpeed.Move(levels.lblSpeedLabel.Right(), top, IsNarrow() ? Px(80) : Px(180), Px(13));
    if (IsNarrow()) {
        attach.Move(kGap, Px(56), Px(92), Px(19));
        transport.lblNoFile.Move(kTitleLeft, Px(65), Px(88), kHeadingHeight);
    } else {
        attach.Move(levels.picSpeed.Right() + kGap, Px(58), Px(72), Px(19));
        const double left = attach.Right() + kGap;
        transport.lblNoFile.Move(left, Px(58), std::min(Px(160), transport.fraControls.Width() - kGap - left),
                                 Px(18));
    }
}

void BrowserLayout::PlaceVolume() {
    auto& levels = window_.player.levels;
    const double left = window_.player.transport.fraControls.Width() - kVolumeWidth - kGap - Px(4);
    window_.chrome.lblVolumeLabel.SetVisible(!IsNarrow());
    window_.chrome.lblVolumeLabel.Move(left, Px(14), Px(60), kHeadingHeight);
    levels.picVolume.Move(left, IsNarrow() ? Px(55) : Px(35), player::kFullVolumeLeft + Px(10), Px(22));
    if (IsNarrow()) {
        levels.lblMute.Move(kTitleLeft + Px(90), Px(65), Px(38), kHeadingHeight);
    } else {
        levels.lblMute.Move(left + Px(70), Px(12), Px(60), Px(18));
    }
}

bool BrowserLayout::IsNarrow() const {
    return window_.chrome.fraMusicTab.Width() < Px(560);
}

}  // namespace window
