// Artist and title of a file, as the player shows them.
#pragma once

#include <string>
#include <string_view>

namespace player {

struct SongTitle {
    std::string artist;  ///< ends in a blank when it comes from the name
    std::string title;
};

/// Splits a file name at its first " - ". A name without one is by "Unknown". The title loses the last 4
/// characters, the extension; one shorter than that stays whole. A video gets " [Video]" after its title.
SongTitle TitleOfFile(std::string_view name, bool is_video);

/// Both trimmed, with " - " between them.
std::string CaptionOf(const SongTitle& song);

}  // namespace player
