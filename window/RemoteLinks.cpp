#include "window/RemoteLinks.h"

#include <algorithm>

namespace window {
namespace {

/// The device gets the marker's place plus this.
constexpr int kSpeedMarkerCentre = 3;

void Press(controls::Control& bar, double x) {
    bar.MouseDown.Raise(controls::kLeftButton, 0, x, 0);
}

}  // namespace

std::uint64_t RemoteLinks::Orders() const {
    return desk_.rooms.media_watch->Orders();
}

std::int64_t RemoteLinks::Openings() const {
    return desk_.rooms.media_watch->Openings();
}

std::uint64_t RemoteLinks::Seeks() const {
    return desk_.rooms.media_watch->Seeks();
}

ports::PlaybackStatus RemoteLinks::Status() {
    if (Known().PlayerStopped || Known().CurrentAlias.empty()) return ports::PlaybackStatus::Stopped;
    const std::string mode = desk_.rooms.mci->MciStatusMode(Known().CurrentAlias);
    if (mode == "playing") return ports::PlaybackStatus::Playing;
    return mode == "paused" ? ports::PlaybackStatus::Paused : ports::PlaybackStatus::Stopped;
}

bool RemoteLinks::IsVideo() const {
    return Known().VideoPlaying;
}

std::string RemoteLinks::Artist() const {
    return Known().NowArtist;
}

std::string RemoteLinks::Title() const {
    return Known().NowTitle;
}

std::string RemoteLinks::Path() const {
    return desk_.ports.files.ToNative(Controls().transport.lblFileNowPlaying.Caption());
}

double RemoteLinks::Length() {
    return Seconds(desk_.rooms.mci->MciLengthFrames(Known().CurrentAlias));
}

double RemoteLinks::Position() {
    return Seconds(desk_.rooms.mci->MciPosition(Known().CurrentAlias));
}

double RemoteLinks::Seconds(std::int64_t frames) const {
    if (frames < 0 || Known().FramesPerSecond <= 0) return 0;
    return static_cast<double>(frames) / Known().FramesPerSecond;
}

int RemoteLinks::Speed() const {
    return Known().SongSpeed + kSpeedMarkerCentre;
}

double RemoteLinks::Volume() const {
    if (desk_.windows.frmBrowser.menus.mnuMusicMute.Checked()) return 0;
    return std::clamp(Controls().levels.imgVol.Left() / player::kFullVolumeLeft, 0.0, 1.0);
}

bool RemoteLinks::HasSelectedTrack() const {
    return desk_.windows.frmBrowser.library.lists.lstTracks.ListIndex() >= 0;
}

bool RemoteLinks::HasNext() const {
    const auto& queue = Controls().queue;
    const bool repeats = desk_.windows.frmBrowser.menus.mnuRepeat.Checked() &&
                         !Controls().transport.lblFileNowPlaying.Caption().empty();
    return repeats || queue.lstNowPlaying.ListCount() > 0 || queue.lstCuedSongs.ListCount() > 0;
}

bool RemoteLinks::HasPrevious() const {
    return Controls().queue.lstNowPlaying.ListCount() > 0;
}

void RemoteLinks::Play() {
    Controls().transport.imgPlayOver.Click.Raise();
}

void RemoteLinks::Pause() {
    Controls().transport.imgPauseOver.Click.Raise();
}

void RemoteLinks::Stop() {
    Controls().transport.imgStopOver.Click.Raise();
}

void RemoteLinks::Next() {
    desk_.rooms.player->EndOfSongCode();
}

void RemoteLinks::Previous() {
    desk_.rooms.player->PreviousTrack();
}

void RemoteLinks::SeekTo(double second) {
    Press(Controls().transport.picSongProgress, second);
}

void RemoteLinks::SetSpeed(double percent) {
    Press(Controls().levels.picSpeed, percent - kSpeedMarkerCentre);
}

void RemoteLinks::SetVolume(double level) {
    Press(Controls().levels.lblVol, level * player::kFullVolumeLeft);
}

void RemoteLinks::Raise() {
    desk_.windows.BringToFront();
}

void RemoteLinks::Quit() {
    desk_.windows.frmBrowser.menus.mnuExit.Click.Raise();
}

}  // namespace window
