// Media that comes into the library from outside: typed, dropped, opened by the shell.
#pragma once

#include <string_view>

namespace roles {

class MediaIntake {
public:
    virtual ~MediaIntake() = default;
    /// Takes a file into the library unless a song has its path already. A file that the library does not
    /// take is ignored.
    virtual void AddMediaFromCommand(std::string_view path) = 0;
    /// Reads a playlist file into the library, an ".mpl" or a list of another player, given by its drive
    /// path, native path or address; a file that is not there is ignored. Yields, and shows boxes. The lists
    /// are the caller's to rebuild.
    virtual void AddPlayList(std::string_view path) = 0;
    /// Asks, when the library is empty, whether media shall be added, and opens the dialog on Yes.
    virtual void OfferToAddMedia() = 0;
};

}  // namespace roles
