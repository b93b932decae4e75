// What a playlist file says: the program's own ".mpl", and the lists of other players, M3U, M3U8, PLS, XSPF.
//
// An ".mpl" is text in Windows-1252, or marked UTF-8; each line names a song as "artist - title". The others
// name songs by their places as well. Nothing here fails: what cannot be understood is left out.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "ports/Files.h"

namespace library {

inline constexpr std::size_t kMostLines = 1'000;           ///< of an ".mpl"
inline constexpr std::size_t kMostForeignLines = 100'000;  ///< songs of any other list
/// Characters; no artist and title that the library holds are nearly as long. The rest of a line is cut.
inline constexpr std::size_t kLongestLine = 1'000;

struct ListedSong {
    /// "artist - title", or a title alone; not blank, without blanks at its ends.
    std::string line;
    /// Where its file may be, in drive form, the likeliest first. Empty for an ".mpl" and for what is not on
    /// this computer.
    std::vector<std::string> paths;
};

/// The songs of a list, in its order; which format it has is told by the path's extension, any but the four
/// others is an ".mpl". Relative places are counted from the list's own folder.
std::vector<ListedSong> ReadPlayListFile(std::string_view path, std::string_view bytes,
                                         const ports::Files& files);

struct LineNames {
    std::string artist;
    std::string title;
};

/// Left and right of the first " - ", trimmed; the artist "Unknown" without one.
LineNames NamesInLine(std::string_view line);

}  // namespace library
