// What plays, shown on the desktop's own player controls, and what the user asks for there.
//
// Why: a lock screen, a headset or a command can see and steer whatever plays without knowing the program.
// The program shows the whole state after each change; the port works out what has changed and reports that.
// Times are microseconds of the song, as whoever watches counts them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ports {

enum class PlaybackStatus { Stopped, Paused, Playing };

struct NowPlaying {
    PlaybackStatus status = PlaybackStatus::Stopped;
    /// Counts the starts of songs, so that the same song played twice is two tracks; 0 while none is there,
    /// and then title, artist, path and length are empty too.
    std::int64_t track = 0;
    std::string title;
    std::string artist;
    std::string path;         ///< the system's own form
    std::string art;          ///< the picture of the album, in the same form; empty without one
    std::int64_t length = 0;  ///< 0 when it is not known
    double rate = 1;          ///< 1 is the device's own speed
    double volume = 1;        ///< 0 to 1, linear
    bool can_play = false;
    bool can_pause = false;
    bool can_seek = false;
    bool can_go_next = false;
    bool can_go_previous = false;
    bool repeats = false;   ///< the track, for ever; otherwise the list is walked for ever
    bool shuffles = false;  ///< the next track of the list is any
    /// The list around the track, by numbers as `track` is one. The track is among them if the list has it.
    std::vector<std::int64_t> tracks;

    bool operator==(const NowPlaying&) const = default;
};

/// A track of NowPlaying::tracks.
struct ListedTrack {
    std::int64_t track = 0;
    std::string title;
    std::string artist;
    std::string path;  ///< the system's own form; empty when it is not known

    bool operator==(const ListedTrack&) const = default;
};

/// The range of NowPlaying::rate.
inline constexpr double kSlowestRate = 0.03;
inline constexpr double kFastestRate = 2.0;

/// Requests, on the user-interface thread. A number may have any value, also not-a-number.
class RemoteControl {
public:
    virtual ~RemoteControl() = default;
    virtual void OnPlay() = 0;
    virtual void OnPause() = 0;
    virtual void OnPlayPause() = 0;
    virtual void OnStop() = 0;
    virtual void OnNext() = 0;
    virtual void OnPrevious() = 0;
    /// Forwards, or backwards when it is negative.
    virtual void OnSeek(std::int64_t offset) = 0;
    /// `track` is the one that the user saw, which may not play any more.
    virtual void OnSetPosition(std::int64_t track, std::int64_t position) = 0;
    virtual void OnSetRate(double rate) = 0;
    virtual void OnSetVolume(double volume) = 0;
    virtual void OnSetRepeat(bool repeat) = 0;
    virtual void OnSetShuffle(bool shuffle) = 0;
    /// Plays a track of the list; `track` may be none of it any more.
    virtual void OnGoTo(std::int64_t track) = 0;
    virtual void OnRaise() = 0;
    virtual void OnQuit() = 0;
    /// The place in the song now.
    virtual std::int64_t Position() = 0;
    /// What tracks of the list are; those that are none of it are left out.
    virtual std::vector<ListedTrack> Describe(const std::vector<std::int64_t>& tracks) = 0;
};

class NowPlayingBoard {
public:
    virtual ~NowPlayingBoard() = default;
    /// Whom to ask and notify; null for none.
    virtual void SetListener(RemoteControl* listener) = 0;
    /// The state from now on. An unchanged state is not reported. Never waits.
    virtual void Show(const NowPlaying& now) = 0;
    /// The song went on from another place than playing on would reach. Never waits.
    virtual void ShowJump(std::int64_t position) = 0;
};

}  // namespace ports
