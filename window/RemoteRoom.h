// What plays, told to the desktop; and the desktop's player controls, answered as the program's own
// buttons answer.
//
// At the end of each handler the room takes a glance at the player, which costs a few comparisons, and shows
// the whole state only when something changed. Nothing here ticks. Whether a song has ended by itself only
// the device knows, in another process: it is asked a few times a second, however many handlers end.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "ports/Clock.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "ports/NowPlaying.h"
#include "ports/ScreenSaver.h"
#include "roles/NowPlaying.h"
#include "roles/PlayOrder.h"
#include "roles/Transport.h"
#include "window/RemoteTracks.h"

namespace window {

struct RemoteRoles {
    roles::Transport& transport;
    roles::NowPlaying& playing;
    roles::PlayOrder& order;
    /// With nobody logged in the player is not steered from outside.
    const bool& LoggedIn;
};

/// What the room asks of the program as a whole.
struct RemoteActions {
    std::function<void()> raise;  ///< brings the program's windows to the front
    std::function<void()> quit;   ///< ends the program as its menu does
};

struct RemotePorts {
    ports::NowPlayingBoard& board;
    ports::ScreenSaver& screen_saver;
    ports::EventLoop& events;
    const ports::Files& files;
    const ports::Clock& clock;
};

class RemoteRoom final : private ports::RemoteControl {
public:
    /// The event loop keeps a reference to the room: it must end with or before it. Roles and ports must
    /// outlive the room.
    RemoteRoom(RemoteRoles roles, RemoteActions actions, RemotePorts ports);
    ~RemoteRoom() override;
    RemoteRoom(const RemoteRoom&) = delete;
    RemoteRoom& operator=(const RemoteRoom&) = delete;

private:
    /// What shows that something changed.
    struct Glance {
        roles::PlayerGlance player;
        roles::OrderGlance order;
        bool ended_by_itself = false;
        bool logged_in = false;

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
    void OnSetRepeat(bool repeat) override;
    void OnSetShuffle(bool shuffle) override;
    void OnGoTo(std::int64_t track) override;
    void OnRaise() override;
    void OnQuit() override;
    std::int64_t Position() override;
    std::vector<ports::ListedTrack> Describe(const std::vector<std::int64_t>& tracks) override;

    void Look();
    Glance TakeGlance();
    bool HasEndedByItself();
    ports::NowPlaying Now();
    void DescribeTrack(ports::NowPlaying& now, const roles::CurrentSong& song);
    ports::PlaybackStatus Status();
    void SeekTo(std::int64_t position);
    bool IsPlaying() const { return shown_.status == ports::PlaybackStatus::Playing; }
    bool IsStopped() const { return shown_.status == ports::PlaybackStatus::Stopped; }

    RemoteRoles roles_;
    RemoteActions actions_;
    RemotePorts ports_;
    RemoteTracks tracks_;
    ports::NowPlaying shown_;
    Glance glance_;
    std::optional<std::int64_t> asked_device_;  ///< when
    bool is_video_ = false;                     ///< what is shown
};

}  // namespace window
