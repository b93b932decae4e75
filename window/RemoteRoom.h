// What plays, told to the desktop; and the desktop's player controls, answered by the clicks that the
// program's own buttons answer.
//
// At the end of each handler the room takes a glance at the player, which costs a few comparisons, and shows
// the whole state only when something changed. Nothing here ticks.
#pragma once

#include <cstdint>
#include <string>

#include "ports/EventLoop.h"
#include "ports/NowPlaying.h"
#include "ports/ScreenSaver.h"

namespace window {

/// The player as a remote control sees and steers it. What is seen does not change the player.
class RemotePlayer {
public:
    virtual ~RemotePlayer() = default;
    /// Grow with each command that changed what plays, with each song that was opened, with each jump.
    virtual std::uint64_t Orders() const = 0;
    virtual std::int64_t Openings() const = 0;
    virtual std::uint64_t Seeks() const = 0;

    virtual ports::PlaybackStatus Status() = 0;
    virtual bool IsVideo() const = 0;
    /// Of the current song. Artist and title as the messenger gets them; the path in the system's own form;
    /// length and position in seconds, 0 when it is not known.
    virtual std::string Artist() const = 0;
    virtual std::string Title() const = 0;
    virtual std::string Path() const = 0;
    virtual double Length() = 0;
    virtual double Position() = 0;
    /// Percent of the device's own speed.
    virtual int Speed() const = 0;
    /// 0 to 1; 0 while the sound is off.
    virtual double Volume() const = 0;
    /// Play would find a track; the play order, the cue list or repeat has a song to come.
    virtual bool HasSelectedTrack() const = 0;
    virtual bool HasNext() const = 0;
    virtual bool HasPrevious() const = 0;

    virtual void Play() = 0;                    ///< the click of `imgPlayOver`
    virtual void Pause() = 0;                   ///< the click of `imgPauseOver`
    virtual void Stop() = 0;                    ///< the click of `imgStopOver`
    virtual void Next() = 0;                    ///< EndOfSongCode
    virtual void Previous() = 0;                ///< the previous-track routine
    virtual void SeekTo(double second) = 0;     ///< a press on `picSongProgress`
    virtual void SetSpeed(double percent) = 0;  ///< a press on `picSpeed`
    virtual void SetVolume(double level) = 0;   ///< a press on `lblVol`
    virtual void Raise() = 0;
    virtual void Quit() = 0;  ///< the click of `mnuExit`
};

struct RemotePorts {
    ports::NowPlayingBoard& board;
    ports::ScreenSaver& screen_saver;
    ports::EventLoop& events;
};

class RemoteRoom final : private ports::RemoteControl {
public:
    /// The event loop keeps a reference to the room: it must end with or before it. `player` and the ports
    /// must outlive the room.
    RemoteRoom(RemotePlayer& player, RemotePorts ports);
    ~RemoteRoom() override;
    RemoteRoom(const RemoteRoom&) = delete;
    RemoteRoom& operator=(const RemoteRoom&) = delete;

private:
    /// What tells that something changed.
    struct Glance {
        std::uint64_t orders = 0;
        std::uint64_t seeks = 0;
        bool ended_by_itself = false;
        double volume = 0;
        bool has_selected_track = false;
        bool has_next = false;
        bool has_previous = false;

        bool operator==(const Glance&) const = default;
    };

    // ports::RemoteControl
    void OnPlay() override;
    void OnPause() override;
    void OnPlayPause() override;
    void OnStop() override;
    void OnNext() override;
    void OnPrevious() override;
    void OnSeek(std::int64_t offset) override;
    void OnSetPosition(std::int64_t track, std::int64_t position) override;
    void OnSetRate(double rate) override;
    void OnSetVolume(double volume) override;
    void OnRaise() override;
    void OnQuit() override;
    std::int64_t Position() override;

    void Look();
    Glance TakeGlance();
    ports::NowPlaying Now();
    void DescribeTrack(ports::NowPlaying& now);
    void SeekTo(std::int64_t position);
    bool IsPlaying() const { return shown_.status == ports::PlaybackStatus::Playing; }
    bool IsStopped() const { return shown_.status == ports::PlaybackStatus::Stopped; }

    RemotePlayer& player_;
    RemotePorts ports_;
    ports::NowPlaying shown_;
    Glance glance_;
};

}  // namespace window
