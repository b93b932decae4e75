// Where the music stopped: what was to play next, and the place in the song. As two texts, since the lists
// may be long and change seldom, and the place is short and changes all the time.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace player {

struct CuedRow {
    std::string text;   ///< of `lstCuedSongs`
    std::string entry;  ///< of `lstCuedSongsPath`

    bool operator==(const CuedRow&) const = default;
};

/// The cue list and the play order.
struct StoppedLists {
    std::int64_t stamp = 0;  ///< tells lists apart, so that a place is not taken for one of other lists
    bool CueHeadIsPath = false;
    bool CueHeadIsId = false;
    std::vector<CuedRow> cued;
    std::vector<std::string> order;

    bool operator==(const StoppedLists&) const = default;
};

/// The place in them and in the song. Without a path no song played.
struct StoppedPlace {
    std::int64_t stamp = 0;  ///< of the lists it belongs to
    int row = -1;            ///< of the order; -1 for none
    std::int64_t milliseconds = 0;
    std::string path;
    std::string title;  ///< as it was shown

    bool operator==(const StoppedPlace&) const = default;
};

std::string TextOf(const StoppedLists& lists);
std::string TextOf(const StoppedPlace& place);
/// Nothing for a text that is not whole, or none of these.
std::optional<StoppedLists> ListsOfText(std::string_view text);
std::optional<StoppedPlace> PlaceOfText(std::string_view text);

}  // namespace player
