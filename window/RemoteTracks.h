// The tracks that the desktop's player controls list: the play order around the row that was chosen last.
//
// Each has a number of its own. The track that plays has the number of its start, as it has everywhere; the
// others are numbered by the order they belong to and their row, far above any count of starts.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "ports/Files.h"
#include "ports/NowPlaying.h"
#include "roles/PlayOrder.h"

namespace window {

class RemoteTracks final {
public:
    RemoteTracks(roles::PlayOrder& order, const ports::Files& files) : order_(order), files_(files) {}

    /// Takes the order as it is now. `playing` is the number of the track that plays; 0 for none.
    void Look(const roles::OrderGlance& order, std::int64_t playing);
    /// The numbers of the listed tracks, in order.
    const std::vector<std::int64_t>& Numbers() const { return numbers_; }
    /// What the tracks are; those that are not listed are left out.
    std::vector<ports::ListedTrack> Describe(const std::vector<std::int64_t>& numbers);
    /// Plays a listed track.
    void Play(std::int64_t number);

private:
    std::optional<int> RowOf(std::int64_t number) const;

    roles::PlayOrder& order_;
    const ports::Files& files_;
    std::vector<std::int64_t> numbers_;
    int first_row_ = 0;
};

}  // namespace window
