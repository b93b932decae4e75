// The list of the user's programs for kinds of files, `mimeapps.list`, as a text that is changed in one place
// and kept in every other byte.
#pragma once

#include <string>
#include <string_view>

namespace linux {

/// A kind of files and the desktop entry that is to open it, as in "audio/mpeg" and "player.desktop".
struct MimeClaim {
    std::string_view kind;
    std::string_view entry;
};

/// The text with the entry first among the default programs of the kind and among those added to it, and no
/// longer among those removed from it. What was there before the entry follows it. A group that is missing is
/// added at the end. Lines that are neither group nor key stay as they are.
std::string WithClaim(std::string_view text, const MimeClaim& claim);

/// A default program of the kind is named.
bool NamesDefault(std::string_view text, std::string_view kind);

}  // namespace linux
