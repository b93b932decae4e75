#include "player/TransportRoom.h"

#include <algorithm>

#include "base/Number.h"
#include "base/Text.h"
#include "player/Whole.h"

namespace player {

namespace {

constexpr std::string_view kEmptyTime = "0:00/0:00";
constexpr double kWheelSeconds = 5;  ///< a notch

}  // namespace

TransportRoom::TransportRoom(ProgressControls& controls, PanelControls& panel,
                             const controls::Label& lblStartFade, const controls::Label& lblTrack,
                             MciLayer& mci, const PlayerState& state, TransportRoles roles,
                             AddressRow& address, MainWindow& window)
    : controls_(controls),
      lblStartFade_(lblStartFade),
      lblTrack_(lblTrack),
      mci_(mci),
      state_(state),
      roles_(roles),
      address_(address),
      window_(window) {
    auto& bar = controls_.picSongProgress;
    auto& marker = controls_.lblProgress;
    const auto hide_highlights = [this] { window_.NoMouseOvers(); };
    const auto focus_address = [this] { address_.FocusAddress(); };
    claims_.Claim(controls_.picRunningTime.Click, focus_address);
    claims_.Claim(controls_.picRunningTime.MouseMove, hide_highlights);
    claims_.Claim(controls_.lblRunningTime.Click, focus_address);
    claims_.Claim(bar.MouseDown, [this](int, int, double x, double) { picSongProgress_MouseDown(x); });
    claims_.Claim(bar.MouseMove, hide_highlights);
    claims_.Claim(bar.MouseUp, [this] { address_.FocusAddress(); });
    claims_.Claim(bar.MouseWheel, [this](int notches) { picSongProgress_MouseWheel(notches); });
    claims_.Claim(marker.MouseDown, [this](int, int, double x, double) { lblProgress_MouseDown(x); });
    claims_.Claim(marker.MouseMove, [this](int, int, double x, double) { lblProgress_MouseMove(x); });
    claims_.Claim(marker.MouseUp, [this] { lblProgress_MouseUp(); });
    claims_.Claim(controls_.tmrPlay.Tick, [this] { tmrPlay_Tick(); });
    claims_.Claim(panel.fraControls.MouseMove, hide_highlights);
    claims_.Claim(panel.imgControlsBG.MouseMove, hide_highlights);
}

void TransportRoom::RestoreBarScale() {
    if (state_.FramesPerSecond > 0) {
        const auto frames = static_cast<double>(mci_.MciLengthFrames(state_.CurrentAlias));
        if (frames > 0) controls_.picSongProgress.SetScaleWidth(frames / state_.FramesPerSecond);
    }
    KeepMarkerWidth(controls_.lblProgress, controls_.picSongProgress, kSongMarkerWidth);
}

void TransportRoom::tmrPlay_Tick() {
    address_.ClearStaleAddress();
    if (state_.PlayerStopped) return;
    MoveMarker();
    ShowRunningTime();
    if (EndSongWhenDue()) return;
    roles_.title.ScrollStep();
    roles_.video.FollowMainWindow();
    ShowEmptyTimeWithoutTotal();
}

void TransportRoom::MoveMarker() {
    const auto position = static_cast<double>(mci_.MciPosition(state_.CurrentAlias));
    if (position < 0 || state_.FramesPerSecond <= 0) return;
    controls_.lblProgress.SetVisible(true);
    controls_.lblProgress.SetLeft(position / state_.FramesPerSecond - controls_.lblProgress.Width() / 2);
}

void TransportRoom::ShowRunningTime() {
    const auto position = static_cast<double>(mci_.MciPosition(state_.CurrentAlias));
    if (position < 0 || state_.FramesPerSecond <= 0) return;
    const std::int64_t seconds = base::RoundHalfEven(position / state_.FramesPerSecond);
    controls_.lblRunningTime.SetCaption(base::MinutesAndSeconds(seconds) + "/" + state_.TotalTimeText);
}

bool TransportRoom::IsAtStartFade() const {
    return controls_.lblProgress.Right() > lblStartFade_.Left();
}

/// The song that was started last could not be opened.
bool TransportRoom::HasNoSong() {
    return state_.FramesPerSecond < 0 && mci_.MciStatusMode(state_.CurrentAlias) == kMciModeError;
}

bool TransportRoom::EndSongWhenDue() {
    if (HasNoSong()) {
        roles_.player.PassOverSong();
        return true;
    }
    if (IsAtStartFade()) {
        roles_.panning.SetPanningRunning(false);
    } else if (mci_.MciPercentPlayed(state_.CurrentAlias) != 100) {
        return false;
    }
    roles_.player.EndOfSongCode();
    return true;
}

void TransportRoom::ShowEmptyTimeWithoutTotal() {
    const std::string& shown = controls_.lblRunningTime.Caption();
    if (shown.find('/') + 1 == shown.size()) controls_.lblRunningTime.SetCaption(kEmptyTime);
}

void TransportRoom::picSongProgress_MouseDown(double x) {
    if (state_.FadeDragging || !HasSong()) return;
    const auto rate = static_cast<double>(mci_.MciFramesPerSecond(state_.CurrentAlias));
    mci_.MciSeekAndPlay(state_.CurrentAlias, WholeInt(x * rate));
}

void TransportRoom::picSongProgress_MouseWheel(int notches) {
    const auto position = static_cast<double>(mci_.MciPosition(state_.CurrentAlias));
    if (position < 0 || state_.FramesPerSecond <= 0) return;
    const double seconds = position / state_.FramesPerSecond + notches * kWheelSeconds;
    picSongProgress_MouseDown(std::clamp(seconds, 0.0, controls_.picSongProgress.ScaleWidth()));
}

void TransportRoom::lblProgress_MouseDown(double x) {
    if (!HasSong()) return;
    ProgressDragging_ = true;
    ProgressDragX_ = Whole16(x);
}

/// The marker moves by the ratio of the present to the pressed position, and each move seeks.
void TransportRoom::lblProgress_MouseMove(double x) {
    if (!ProgressDragging_ || ProgressDragX_ == 0) return;
    auto& lblProgress = controls_.lblProgress;
    const double end = controls_.picSongProgress.ScaleWidth();
    lblProgress.SetLeft(lblProgress.Left() + x / ProgressDragX_);
    if (lblProgress.Left() <= 0) {
        lblProgress.SetLeft(0);
    } else if (lblProgress.Right() >= end) {
        lblProgress.SetLeft(end - lblProgress.Width());
    }
    picSongProgress_MouseDown(lblProgress.Left());
}

void TransportRoom::lblProgress_MouseUp() {
    ProgressDragging_ = false;
    address_.FocusAddress();
}

}  // namespace player
