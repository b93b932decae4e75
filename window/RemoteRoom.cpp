#include "window/RemoteRoom.h"

#include <algorithm>
#include <cmath>

#include "base/Number.h"
#include "base/Text.h"

namespace window {
namespace {

constexpr double kMicroseconds = 1e6;

std::int64_t ToMicroseconds(double seconds) {
    return base::RoundHalfEven(std::max(seconds, 0.0) * kMicroseconds);
}

}  // namespace

RemoteRoom::RemoteRoom(RemotePlayer& player, RemotePorts ports) : player_(player), ports_(ports) {
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
    const bool jumped = glance.seeks != glance_.seeks;
    glance_ = glance;
    shown_ = Now();
    // The sign of a song that ended by itself is gone once that is shown.
    glance_.ended_by_itself = false;
    ports_.board.Show(shown_);
    if (jumped && !IsStopped()) ports_.board.ShowJump(Position());
    ports_.screen_saver.SetInhibited(IsPlaying() && player_.IsVideo());
}

RemoteRoom::Glance RemoteRoom::TakeGlance() {
    return {player_.Orders(),
            player_.Seeks(),
            IsPlaying() && player_.Status() != ports::PlaybackStatus::Playing,
            player_.Volume(),
            player_.HasSelectedTrack(),
            player_.HasNext(),
            player_.HasPrevious()};
}

ports::NowPlaying RemoteRoom::Now() {
    ports::NowPlaying now;
    now.status = player_.Status();
    const bool has_song = now.status != ports::PlaybackStatus::Stopped;
    if (has_song) DescribeTrack(now);
    now.rate = std::clamp(player_.Speed() / 100.0, ports::kSlowestRate, ports::kFastestRate);
    now.volume = player_.Volume();
    now.can_play = has_song || player_.HasSelectedTrack();
    now.can_pause = has_song;
    now.can_seek = now.length > 0;
    now.can_go_next = player_.HasNext();
    now.can_go_previous = player_.HasPrevious();
    return now;
}

void RemoteRoom::DescribeTrack(ports::NowPlaying& now) {
    now.track = player_.Openings();
    now.title = base::Trim(player_.Title());
    now.artist = base::Trim(player_.Artist());
    now.path = player_.Path();
    now.length = ToMicroseconds(player_.Length());
}

void RemoteRoom::OnPlay() {
    if (shown_.can_play) player_.Play();
}

void RemoteRoom::OnPause() {
    if (IsPlaying()) player_.Pause();
}

void RemoteRoom::OnPlayPause() {
    if (IsPlaying()) {
        player_.Pause();
    } else {
        OnPlay();
    }
}

void RemoteRoom::OnStop() {
    if (!IsStopped()) player_.Stop();
}

void RemoteRoom::OnNext() {
    if (shown_.can_go_next) player_.Next();
}

void RemoteRoom::OnPrevious() {
    if (shown_.can_go_previous) player_.Previous();
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
    player_.SeekTo(static_cast<double>(position) / kMicroseconds);
    if (!was_playing) player_.Pause();
}

void RemoteRoom::OnSetRate(double rate) {
    if (!std::isfinite(rate) || rate < 0) return;
    if (rate > 0) {
        player_.SetSpeed(std::clamp(rate, ports::kSlowestRate, ports::kFastestRate) * 100);
    } else {
        OnPause();
    }
}

void RemoteRoom::OnSetVolume(double volume) {
    if (!std::isnan(volume)) player_.SetVolume(std::clamp(volume, 0.0, 1.0));
}

void RemoteRoom::OnRaise() {
    player_.Raise();
}

void RemoteRoom::OnQuit() {
    player_.Quit();
}

std::int64_t RemoteRoom::Position() {
    return IsStopped() ? 0 : ToMicroseconds(player_.Position());
}

}  // namespace window
