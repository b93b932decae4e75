// What the player plays, to be read only: nothing here changes the player. Why: address row, web commands,
// layout and the desktop's player controls show or test it.
#pragma once

#include <cstdint>
#include <string>

namespace roles {

enum class PlayerStatus { Stopped, Playing, Paused };

/// What is cheap to read at the end of every handler; equal glances mean that nothing has to be shown again.
struct PlayerGlance {
    std::uint64_t orders = 0;         ///< grows with each command that changed what plays
    std::int64_t openings = 0;        ///< grows with each song that was opened
    std::uint64_t seeks = 0;          ///< grows with each jump
    double volume = 0;                ///< 0 to 1; 0 while the sound is off
    bool has_selected_track = false;  ///< Play would find a track
    bool has_next = false;            ///< the play order, the cue list or repeat has a song to come
    bool has_previous = false;

    bool operator==(const PlayerGlance&) const = default;
};

/// The current song.
struct CurrentSong {
    std::string artist;  ///< as the messenger gets it, and the title too
    std::string title;
    std::string path;   ///< drive form
    double length = 0;  ///< seconds; 0 when it is not known
    int speed = 0;      ///< percent of the device's own
    bool is_video = false;
};

class NowPlaying {
public:
    virtual ~NowPlaying() = default;
    virtual PlayerGlance Glance() const = 0;
    /// As the device says at this moment.
    virtual PlayerStatus Status() = 0;
    virtual CurrentSong Song() = 0;
    /// Seconds; 0 when it is not known.
    virtual double Position() = 0;
    /// The stop flag: nothing plays.
    virtual bool IsStopped() const = 0;
    /// The sign that the last song could not be played (`lblNoFile`) shows.
    virtual bool IsNoFileShown() const = 0;
    /// Caption of `lblTrack`.
    virtual std::string TrackCaption() const = 0;
};

}  // namespace roles
