#include "player/JoinRoom.h"

#include <algorithm>

#include "base/MediaKinds.h"

namespace player {

namespace {

// A song is told what follows so long before its end, or so large a part of it: the part that counts as its
// end must lie in there.
constexpr double kSecondsAhead = 10;
constexpr double kPartAhead = 0.04;
// A device that does not get to the end of its song, in ticks of 50 ms.
constexpr int kStandsStill = 40;

}  // namespace

JoinRoom::JoinRoom(const TitleControls& controls, const controls::PictureBox& song_bar,
                   const controls::Label& progress, MciLayer& mci, const PlayerState& state, JoinRooms rooms,
                   const ports::Files& files)
    : controls_(controls),
      song_bar_(song_bar),
      progress_(progress),
      mci_(mci),
      state_(state),
      rooms_(rooms),
      files_(files) {}

void JoinRoom::Tick() {
    const std::string next = MayFollow() ? Next() : std::string();
    if (next == asked_) return;
    asked_ = next;
    const bool is_success = mci_.MciFollow(TextOf(state_.CurrentAlias), next) == kMciSuccess;
    is_told_ = is_success && !next.empty();
}

bool JoinRoom::HoldsEnd() {
    if (!is_told_) return false;
    const Mode mode = mci_.ModeOf(TextOf(state_.CurrentAlias));
    if (mode != Mode::Playing) return mode == Mode::Paused;
    const std::int64_t position = mci_.MciPosition(TextOf(state_.CurrentAlias));
    ticks_at_position_ = position == std::exchange(position_, position) ? ticks_at_position_ + 1 : 0;
    return ticks_at_position_ < kStandsStill;
}

void JoinRoom::Leave() {
    if (is_told_ && mci_.ModeOf(TextOf(state_.CurrentAlias)) == Mode::Playing)
        mci_.MciFollow(TextOf(state_.CurrentAlias), {});
    is_told_ = false;
    asked_.clear();
    next_.clear();
    place_ = {};
}

bool JoinRoom::MayFollow() const {
    if (!rooms_.fade.IsOff() || state_.FramesPerSecond <= 0 || state_.VideoPlaying || state_.VisualisationOn)
        return false;
    const double length = song_bar_.ScaleWidth();
    if (length - progress_.Left() > std::max(kSecondsAhead, length * kPartAhead)) return false;
    if (rooms_.mode.IsRepeating()) return true;
    return rooms_.cue.PathCount() == 0 && !(rooms_.mode.IsShuffling() && rooms_.order.Count() >= 2);
}

/// Looked up once for each place in the order.
const std::string& JoinRoom::Next() {
    const Place place{.version = rooms_.order.Version(),
                      .row = rooms_.order.Row(),
                      .count = rooms_.order.Count(),
                      .repeats = rooms_.mode.IsRepeating()};
    if (std::exchange(place_, place) != place) next_ = LookUpNext();
    return next_;
}

std::string JoinRoom::LookUpNext() const {
    if (rooms_.mode.IsRepeating()) return controls_.lblFileNowPlaying.Caption();
    std::string path = rooms_.songs.PathOfEntry(rooms_.order.PeekNext());
    const bool can_follow = base::IsMediaFile(path) && !base::IsVideoFile(path) && files_.FileExists(path);
    return can_follow ? path : std::string();
}

}  // namespace player
