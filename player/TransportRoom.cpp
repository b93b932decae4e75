#include "player/TransportRoom.h"

#include <algorithm>

#include "base/Number.h"
#include "base/Text.h"
#include "player/Whole.h"

namespace player {

namespace {

constexpr std::string_view kEmptyTime = "0:00/0:00";
constexpr double kWheelSeconds = 5;  ///< a notch
constexpr double kHeardSeconds = 5;  ///< a song that got so far was no vain start

}  // namespace

TransportRoom::TransportRoom(ProgressControls& controls, PanelControls& panel,
                             const controls::Label& fade_marker, const controls::Label& title, MciLayer& mci,
                             const PlayerState& state, TransportRooms rooms, TransportRoles roles)
    : controls_(controls),
      fade_marker_(fade_marker),
      title_(title),
      mci_(mci),
      state_(state),
      rooms_(rooms),
      roles_(roles) {
    auto& bar = controls_.picSongProgress;
    auto& marker = controls_.lblProgress;
    const auto hide_highlights = [this] { roles_.highlights.NoMouseOvers(); };
    const auto focus_address = [this] { roles_.address.FocusAddress(); };
    claims_.Claim(controls_.picRunningTime.Click, focus_address);
    claims_.Claim(controls_.picRunningTime.MouseMove, hide_highlights);
    claims_.Claim(controls_.lblRunningTime.Click, focus_address);
    claims_.Claim(bar.MouseDown, [this](int, int, double x, double) { SeekTo(x); });
    claims_.Claim(bar.MouseMove, hide_highlights);
    claims_.Claim(bar.MouseUp, [this] { roles_.address.FocusAddress(); });
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
        const auto frames = static_cast<double>(mci_.MciLengthFrames(TextOf(state_.CurrentAlias)));
        if (frames > 0) controls_.picSongProgress.SetScaleWidth(frames / state_.FramesPerSecond);
    }
    KeepMarkerWidth(controls_.lblProgress, controls_.picSongProgress, kSongMarkerWidth);
}

void TransportRoom::HideMarker() {
    controls_.lblProgress.SetVisible(false);
}

void TransportRoom::tmrPlay_Tick() {
    roles_.address.ClearStaleAddress();
    ShowWhetherStopped();
    if (state_.PlayerStopped) {
        // Its hole goes with the main window whether or not a song plays.
        if (rooms_.video.IsLightShowSeen()) rooms_.video.FollowMainWindow();
        return;
    }
    if (LengthIsUnknown()) rooms_.playback.MeasureLateLength();
    MoveMarker();
    ShowRunningTime();
    rooms_.join.Tick();
    if (EndSongWhenDue()) return;
    if (LengthIsUnknown()) ShowUnknownLength();
    rooms_.title.ScrollStep();
    rooms_.video.FollowMainWindow();
    ShowEmptyTimeWithoutTotal();
}

/// What a stopped song leaves on the panel, its title and its time, is muted until the next one plays.
void TransportRoom::ShowWhetherStopped() {
    rooms_.title.ShowWhether(state_.PlayerStopped);
    controls_.lblRunningTime.SetLook(state_.PlayerStopped ? "readout off" : "readout");
}

void TransportRoom::MoveMarker() {
    const auto position = static_cast<double>(mci_.MciPosition(TextOf(state_.CurrentAlias)));
    if (position < 0 || state_.FramesPerSecond <= 0) return;
    controls_.lblProgress.SetVisible(true);
    controls_.lblProgress.SetLeft(position / state_.FramesPerSecond - controls_.lblProgress.Width() / 2);
}

void TransportRoom::ShowRunningTime() {
    const auto position = static_cast<double>(mci_.MciPosition(TextOf(state_.CurrentAlias)));
    if (position < 0 || state_.FramesPerSecond <= 0) return;
    const std::int64_t seconds = base::RoundHalfEven(position / state_.FramesPerSecond);
    controls_.lblRunningTime.SetCaption(base::MinutesAndSeconds(seconds) + "/" + state_.TotalTimeText);
}

bool TransportRoom::IsAtStartFade() const {
    return controls_.lblProgress.Right() > fade_marker_.Left();
}

/// The song that was started last could not be opened.
bool TransportRoom::HasNoSong() {
    return state_.FramesPerSecond < 0 && mci_.ModeOf(TextOf(state_.CurrentAlias)) == Mode::Error;
}

/// The song that was started last played and is no longer open: its decoder ended.
bool TransportRoom::HasLostSong() {
    return state_.FramesPerSecond > 0 && mci_.ModeOf(TextOf(state_.CurrentAlias)) == Mode::Error;
}

/// The song that was started last plays and does not tell how long it is.
bool TransportRoom::LengthIsUnknown() {
    return state_.FramesPerSecond < 0 && mci_.ModeOf(TextOf(state_.CurrentAlias)) != Mode::Error;
}

/// Where the marker and the time of the song before were.
void TransportRoom::ShowUnknownLength() {
    controls_.lblProgress.SetLeft(0);
    controls_.lblRunningTime.SetCaption(kEmptyTime);
}

bool TransportRoom::EndSongWhenDue() {
    if (rooms_.playback.IsStarting()) return false;
    if (HasNoSong()) {
        rooms_.playback.PassOverSong();
        return true;
    }
    if (rooms_.join.HoldsEnd()) return false;
    if (!LengthIsUnknown() && IsAtStartFade() && rooms_.playback.MayEndBeforeItsEnd()) {
        // What follows without a gap does not fade in.
        if (!rooms_.join.IsTold()) rooms_.panning.SetPanningRunning(false);
        rooms_.playback.EndSong();
        return true;
    }
    const std::int64_t percent = mci_.MciPercentPlayed(TextOf(state_.CurrentAlias));
    if (percent == 100) {
        rooms_.playback.EndSong();
        return true;
    }
    if (percent >= 0 || !HasLostSong()) return false;
    rooms_.playback.PassOverLostSong(controls_.lblProgress.Left() >= kHeardSeconds);
    return true;
}

void TransportRoom::ShowEmptyTimeWithoutTotal() {
    const std::string& shown = controls_.lblRunningTime.Caption();
    if (shown.find('/') + 1 == shown.size()) controls_.lblRunningTime.SetCaption(kEmptyTime);
}

void TransportRoom::SeekTo(double second) {
    if (state_.FadeDragging.IsOn() || !HasSong()) return;
    const auto rate = static_cast<double>(mci_.MciFramesPerSecond(TextOf(state_.CurrentAlias)));
    mci_.MciSeekAndPlay(TextOf(state_.CurrentAlias), WholeInt(second * rate));
}

void TransportRoom::picSongProgress_MouseWheel(int notches) {
    const auto position = static_cast<double>(mci_.MciPosition(TextOf(state_.CurrentAlias)));
    if (position < 0 || state_.FramesPerSecond <= 0) return;
    const double seconds = position / state_.FramesPerSecond + notches * kWheelSeconds;
    SeekTo(std::clamp(seconds, 0.0, controls_.picSongProgress.ScaleWidth()));
}

void TransportRoom::lblProgress_MouseDown(double x) {
    if (!HasSong()) return;
    ProgressDragging_.Press(x);
}

/// Each move seeks.
void TransportRoom::lblProgress_MouseMove(double x) {
    auto& lblProgress = controls_.lblProgress;
    if (ProgressDragging_.Move(lblProgress, x, controls_.picSongProgress.ScaleWidth())) {
        SeekTo(lblProgress.Left());
    }
}

void TransportRoom::lblProgress_MouseUp() {
    ProgressDragging_.End();
    roles_.address.FocusAddress();
}

}  // namespace player
