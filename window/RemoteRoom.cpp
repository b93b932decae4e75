#include "window/RemoteRoom.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/DrivePath.h"
#include "base/Number.h"
#include "base/Text.h"

namespace window {
namespace {

constexpr double kMicroseconds = 1e6;
constexpr std::int64_t kBetweenQuestionsMs = 100;

std::int64_t ToMicroseconds(double seconds) {
    return base::RoundHalfEven(std::max(seconds, 0.0) * kMicroseconds);
}

std::string CoverBeside(std::string_view path) {
    return base::BuildPath(path.substr(0, path.find_last_of("\\/")), "cover.jpg");
}

}  // namespace

RemoteRoom::RemoteRoom(RemoteRoles roles, RemoteActions actions, RemotePorts ports)
    : roles_(roles), actions_(std::move(actions)), ports_(ports), tracks_(roles.order, ports.files) {
    ports_.board.SetListener(this);
    ports_.events.AtHandlerEnd([this] { Look(); });
}

RemoteRoom::~RemoteRoom() {
    ports_.board.SetListener(nullptr);
    ports_.screen_saver.SetInhibited(false);
}

void RemoteRoom::Look() {
    const Glance glance = TakeGlance();
    if (glance == glance_) return;
    const bool jumped = glance.player.seeks != glance_.player.seeks;
    glance_ = glance;
    shown_ = Now();
    // The sign of a song that ended by itself is gone once that is shown.
    glance_.ended_by_itself = false;
    ports_.board.Show(shown_);
    if (jumped && !IsStopped()) ports_.board.ShowJump(Position());
    ports_.screen_saver.SetInhibited(IsPlaying() && is_video_);
}

RemoteRoom::Glance RemoteRoom::TakeGlance() {
    return {.player = roles_.playing.Glance(),
            .order = roles_.order.Order(),
            .ended_by_itself = HasEndedByItself(),
            .logged_in = roles_.LoggedIn};
}

// A page can end thousands of handlers a second, and each question waits for the process of the device.
bool RemoteRoom::HasEndedByItself() {
    if (!IsPlaying()) return false;
    const std::int64_t now = ports_.clock.Milliseconds();
    if (asked_device_ && now - *asked_device_ < kBetweenQuestionsMs) return false;
    asked_device_ = now;
    return roles_.playing.Status() != roles::PlayerStatus::Playing;
}

ports::PlaybackStatus RemoteRoom::Status() {
    switch (roles_.playing.Status()) {
        case roles::PlayerStatus::Playing:
            return ports::PlaybackStatus::Playing;
        case roles::PlayerStatus::Paused:
            return ports::PlaybackStatus::Paused;
        case roles::PlayerStatus::Stopped:
            break;
    }
    return ports::PlaybackStatus::Stopped;
}

ports::NowPlaying RemoteRoom::Now() {
    const roles::PlayerGlance& player = glance_.player;
    const roles::CurrentSong song = roles_.playing.Song();
    ports::NowPlaying now;
    now.status = Status();
    const bool has_song = now.status != ports::PlaybackStatus::Stopped;
    if (has_song) DescribeTrack(now, song);
    now.rate = std::clamp(song.speed / 100.0, ports::kSlowestRate, ports::kFastestRate);
    now.volume = player.volume;
    now.repeats = glance_.order.repeats;
    now.shuffles = glance_.order.shuffles;
    tracks_.Look(glance_.order, now.track);
    is_video_ = song.is_video;
    if (!glance_.logged_in) return now;
    now.tracks = tracks_.Numbers();
    now.can_play = has_song || player.has_selected_track;
    now.can_pause = has_song;
    now.can_seek = now.length > 0;
    now.can_go_next = player.has_next;
    now.can_go_previous = player.has_previous;
    return now;
}

void RemoteRoom::DescribeTrack(ports::NowPlaying& now, const roles::CurrentSong& song) {
    now.track = glance_.player.openings;
    now.title = base::Trim(song.title);
    now.artist = base::Trim(song.artist);
    now.path = ports_.files.ToNative(song.path);
    now.length = ToMicroseconds(song.length);
    const std::string art = CoverBeside(song.path);
    if (ports_.files.FileExists(art)) now.art = ports_.files.ToNative(art);
}

void RemoteRoom::OnPlay() {
    if (shown_.can_play) roles_.transport.Play();
}

void RemoteRoom::OnPause() {
    if (IsPlaying() && shown_.can_pause) roles_.transport.Pause();
}

void RemoteRoom::OnPlayPause() {
    if (IsPlaying()) {
        OnPause();
    } else {
        OnPlay();
    }
}

void RemoteRoom::OnStop() {
    if (!IsStopped() && roles_.LoggedIn) roles_.transport.Stop();
}

void RemoteRoom::OnNext() {
    if (shown_.can_go_next) roles_.transport.Next();
}

void RemoteRoom::OnPrevious() {
    if (shown_.can_go_previous) roles_.transport.Previous();
}

// Past the end means the next song; before the start, the start.
void RemoteRoom::OnSeek(std::int64_t offset) {
    if (!shown_.can_seek) return;
    const std::int64_t position = std::min(Position(), shown_.length);
    if (offset > shown_.length - position) {
        OnNext();
    } else {
        SeekTo(std::max<std::int64_t>(position + offset, 0));
    }
}

void RemoteRoom::OnSetPosition(std::int64_t track, std::int64_t position) {
    if (!shown_.can_seek || track != shown_.track) return;
    if (position >= 0 && position <= shown_.length) SeekTo(position);
}

// A press on the bar plays from there; a song that was paused shall stay so.
void RemoteRoom::SeekTo(std::int64_t position) {
    const bool was_playing = IsPlaying();
    roles_.transport.SeekTo(static_cast<double>(position) / kMicroseconds);
    if (!was_playing) roles_.transport.Pause();
}

void RemoteRoom::OnSetRate(double rate) {
    if (!std::isfinite(rate) || rate < 0 || !roles_.LoggedIn) return;
    if (rate > 0) {
        roles_.transport.SetSpeed(std::clamp(rate, ports::kSlowestRate, ports::kFastestRate) * 100);
    } else {
        OnPause();
    }
}

void RemoteRoom::OnSetVolume(double volume) {
    if (!std::isnan(volume) && roles_.LoggedIn) roles_.transport.SetVolume(std::clamp(volume, 0.0, 1.0));
}

void RemoteRoom::OnSetRepeat(bool repeat) {
    if (roles_.LoggedIn) roles_.order.SetRepeat(repeat);
}

void RemoteRoom::OnSetShuffle(bool shuffle) {
    if (roles_.LoggedIn) roles_.order.SetShuffle(shuffle);
}

void RemoteRoom::OnGoTo(std::int64_t track) {
    if (roles_.LoggedIn) tracks_.Play(track);
}

void RemoteRoom::OnRaise() {
    actions_.raise();
}

void RemoteRoom::OnQuit() {
    actions_.quit();
}

std::int64_t RemoteRoom::Position() {
    return IsStopped() ? 0 : ToMicroseconds(roles_.playing.Position());
}

std::vector<ports::ListedTrack> RemoteRoom::Describe(const std::vector<std::int64_t>& tracks) {
    return roles_.LoggedIn ? tracks_.Describe(tracks) : std::vector<ports::ListedTrack>();
}

}  // namespace window
