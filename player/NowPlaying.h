// What plays, for those who only show it. Asks the rooms that know and, for the song itself, the device.
#pragma once

#include "player/CueQueue.h"
#include "player/MciLayer.h"
#include "player/MediaWatch.h"
#include "player/PlayModeRoom.h"
#include "player/PlayOrder.h"
#include "player/PlayerControls.h"
#include "player/PlayerState.h"
#include "player/SpeedRoom.h"
#include "player/VolumeRoom.h"
#include "roles/NowPlaying.h"

namespace player {

/// The rooms that know.
struct NowPlayingRooms {
    const MediaWatch& watch;
    const PlayModeRoom& mode;
    const VolumeRoom& volume;
    const SpeedRoom& speed;
    const PlayOrder& order;
    const CueQueue& cue;
};

class NowPlaying final : public roles::NowPlaying {
public:
    NowPlaying(const TitleControls& controls, TrackListView tracks, MciLayer& mci, const PlaybackState& state,
               NowPlayingRooms rooms);

    roles::PlayerGlance Glance() const override;
    roles::PlayerStatus Status() override;
    roles::CurrentSong Song() override;
    double Position() override;
    bool IsStopped() const override { return state_.PlayerStopped; }
    bool IsNoFileShown() const override { return controls_.lblNoFile.Visible(); }
    std::string TrackCaption() const override { return controls_.lblTrack.Caption(); }

private:
    bool HasNext() const;
    double Seconds(std::int64_t frames) const;

    const TitleControls& controls_;
    TrackListView tracks_;
    MciLayer& mci_;
    const PlaybackState& state_;
    NowPlayingRooms rooms_;
};

}  // namespace player
