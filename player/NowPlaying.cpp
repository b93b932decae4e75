#include "player/NowPlaying.h"

namespace player {

NowPlaying::NowPlaying(const TitleControls& controls, TrackListView tracks, MciLayer& mci,
                       const PlaybackState& state, NowPlayingRooms rooms)
    : controls_(controls), tracks_(tracks), mci_(mci), state_(state), rooms_(rooms) {}

roles::PlayerGlance NowPlaying::Glance() const {
    return {.orders = rooms_.watch.Orders(),
            .openings = rooms_.watch.Openings(),
            .seeks = rooms_.watch.Seeks(),
            .volume = rooms_.volume.Volume(),
            .has_selected_track = tracks_.lstTracks.ListIndex() >= 0,
            .has_next = HasNext(),
            .has_previous = rooms_.order.Count() > 0};
}

roles::PlayerStatus NowPlaying::Status() {
    if (state_.PlayerStopped || state_.CurrentAlias == Alias::None) return roles::PlayerStatus::Stopped;
    switch (mci_.ModeOf(TextOf(state_.CurrentAlias))) {
        case Mode::Playing:
            return roles::PlayerStatus::Playing;
        case Mode::Paused:
            return roles::PlayerStatus::Paused;
        default:
            return roles::PlayerStatus::Stopped;
    }
}

roles::CurrentSong NowPlaying::Song() {
    // Of a player that is stopped the device has nothing to say.
    const bool is_open = !state_.PlayerStopped;
    return {.artist = state_.NowArtist,
            .title = state_.NowTitle,
            .path = controls_.lblFileNowPlaying.Caption(),
            .length = is_open ? Seconds(mci_.MciLengthFrames(TextOf(state_.CurrentAlias))) : 0,
            .speed = rooms_.speed.Speed(),
            .is_video = state_.VideoPlaying};
}

double NowPlaying::Position() {
    return Seconds(mci_.MciPosition(TextOf(state_.CurrentAlias)));
}

bool NowPlaying::HasNext() const {
    const bool repeats = rooms_.mode.IsRepeatChecked() && !controls_.lblFileNowPlaying.Caption().empty();
    return repeats || rooms_.order.Count() > 0 || rooms_.cue.SongCount() > 0;
}

double NowPlaying::Seconds(std::int64_t frames) const {
    if (frames < 0 || state_.FramesPerSecond <= 0) return 0;
    return static_cast<double>(frames) / state_.FramesPerSecond;
}

}  // namespace player
