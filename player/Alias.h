// The two aliases of the media device on which songs play.
#pragma once

#include <string_view>

namespace player {

enum class Alias { None, A, B };  ///< None: before the first song

/// The alias in media commands.
constexpr std::string_view TextOf(Alias alias) {
    switch (alias) {
        case Alias::A:
            return "a";
        case Alias::B:
            return "b";
        case Alias::None:
            break;
    }
    return {};
}

}  // namespace player
