// Which of the two aliases a new song takes, and which crossfade that starts.
#pragma once

#include <array>
#include <string_view>

namespace player {

enum class Before { Any, A, NotA };  ///< what CurrentAlias must be for a row to count
enum class FadeStart { None, ToA, ToB };

struct AliasRow {
    bool a_playing;
    bool b_playing;
    Before current;
    std::string_view alias;  ///< where the new song goes
    bool silent;             ///< it starts at volume 0
    FadeStart fade;
};

/// When both play, the older song is cut off and the new one sounds at once.
inline constexpr std::array kAliasTable = {
    AliasRow{false, false, Before::Any, "a", false, FadeStart::None},
    AliasRow{false, true, Before::Any, "a", true, FadeStart::ToA},
    AliasRow{true, false, Before::Any, "b", true, FadeStart::ToB},
    AliasRow{true, true, Before::A, "b", false, FadeStart::ToB},
    AliasRow{true, true, Before::NotA, "a", false, FadeStart::ToA},
};

/// The row that counts; there is one for every case.
constexpr const AliasRow& ChooseAlias(bool a_playing, bool b_playing, std::string_view current_alias) {
    const Before current = current_alias == "a" ? Before::A : Before::NotA;
    for (const AliasRow& row : kAliasTable) {
        if (row.a_playing != a_playing || row.b_playing != b_playing) continue;
        if (row.current == Before::Any || row.current == current) return row;
    }
    return kAliasTable.front();
}

}  // namespace player
