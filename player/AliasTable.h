// Which of the two aliases a new song takes, and which crossfade that starts.
#pragma once

#include <array>

#include "player/Alias.h"

namespace player {

enum class Before { Any, A, NotA };  ///< what CurrentAlias must be for a row to count
enum class FadeStart { None, ToA, ToB };

struct AliasRow {
    bool a_playing;
    bool b_playing;
    Before current;
    Alias alias;  ///< where the new song goes
    bool silent;  ///< it starts at volume 0
    FadeStart fade;
};

/// When both play, the older song is cut off and the new one sounds at once.
inline constexpr std::array kAliasTable = {
    AliasRow{false, false, Before::Any, Alias::A, false, FadeStart::None},
    AliasRow{false, true, Before::Any, Alias::A, true, FadeStart::ToA},
    AliasRow{true, false, Before::Any, Alias::B, true, FadeStart::ToB},
    AliasRow{true, true, Before::A, Alias::B, false, FadeStart::ToB},
    AliasRow{true, true, Before::NotA, Alias::A, false, FadeStart::ToA},
};

/// The row that counts; there is one for every case.
constexpr const AliasRow& ChooseAlias(bool a_playing, bool b_playing, Alias current_alias) {
    const Before current = current_alias == Alias::A ? Before::A : Before::NotA;
    for (const AliasRow& row : kAliasTable) {
        if (row.a_playing != a_playing || row.b_playing != b_playing) continue;
        if (row.current == Before::Any || row.current == current) return row;
    }
    return kAliasTable.front();
}

}  // namespace player
