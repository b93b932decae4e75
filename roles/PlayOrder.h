// The play order, and how it is walked. Why: the desktop's player controls list it, start a song of it, and
// set repeat and shuffle.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace roles {

/// What is cheap to read at the end of every handler.
struct OrderGlance {
    bool repeats = false;  ///< the current song, for ever
    bool shuffles = false;
    std::uint64_t version = 0;  ///< grows each time that the order is taken over
    int count = 0;
    int row = -1;  ///< the one that was chosen last; -1 for none

    bool operator==(const OrderGlance&) const = default;
};

struct OrderedSong {
    std::string artist;  ///< as the player shows it, and the title too
    std::string title;
    std::string path;  ///< drive form; empty for a song that the library does not know any more

    bool operator==(const OrderedSong&) const = default;
};

class PlayOrder {
public:
    virtual ~PlayOrder() = default;
    virtual OrderGlance Order() const = 0;
    /// The current song is the one at the order's own row, and not one that was cued or opened.
    virtual bool PlaysItsRow() = 0;
    /// The songs of some rows, which must be there.
    virtual std::vector<OrderedSong> SongsAt(const std::vector<int>& rows) = 0;
    virtual void SetRepeat(bool repeat) = 0;
    virtual void SetShuffle(bool shuffle) = 0;
    /// Plays the song of a row, or whatever comes next when it is missing. Nothing without such a row.
    virtual void PlayRow(int row) = 0;
};

}  // namespace roles
