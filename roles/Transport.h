// The player's buttons and bars as verbs. Why: multimedia keys, the desktop's player controls, the address
// row and the session steer the player; what a verb presses is the player's own affair.
#pragma once

#include <string_view>

namespace roles {

class Transport {
public:
    virtual ~Transport() = default;
    /// Plays a file, or whatever comes next when it is missing or no media.
    virtual void PlaySong(std::string_view path) = 0;
    /// The click of `imgPlayOver`.
    virtual void Play() = 0;
    /// The click of `imgPauseOver`.
    virtual void Pause() = 0;
    /// `imgPlay` or `imgPlayOver` shows: the next press of the play key plays.
    virtual bool IsPlayShown() const = 0;
    /// The click of `imgStopOver`: ends both songs and notifies the messenger.
    virtual void Stop() = 0;
    /// What Stop left is put in place again, silently, after the bars were laid out.
    virtual void StayStopped() = 0;
    /// Stop as the music tab does it when it closes: the title goes as well.
    virtual void StopAndForget() = 0;
    /// Chooses and starts the next song, as at the end of one.
    virtual void Next() = 0;
    /// Plays the entry before the current one in the play order.
    virtual void Previous() = 0;
    /// As a press on `picSongProgress` there.
    virtual void SeekTo(double second) = 0;
    /// As a press on `picSpeed` there; percent of the device's own speed.
    virtual void SetSpeed(double percent) = 0;
    /// As a press on `lblVol` there; 0 to 1.
    virtual void SetVolume(double level) = 0;
    /// The clicks of `mnuMusicMute`, `mnuIncreaseVolume`, `mnuDecreaseVolume`.
    virtual void ToggleMute() = 0;
    virtual void IncreaseVolume() = 0;
    virtual void DecreaseVolume() = 0;
};

}  // namespace roles
