// The cue list: what plays before the play order goes on.
//
// Two flags say how the head is to be played. They are set by whoever cues, and anew whenever a row goes. A
// head is taken off before it is played, so that a missing one makes way for the next.
#pragma once

#include <string>

#include "player/PlayerControls.h"
#include "player/PlayerState.h"

namespace player {

class CueQueue final {
public:
    CueQueue(CueControls& controls, const controls::Label& lblQuote, CueState& state);

    bool IsPathAtHead() const { return state_.CueHeadIsPath; }
    bool IsIdAtHead() const { return state_.CueHeadIsId; }

    /// Adds a song with the text to show and its entry, a number or a path.
    void Add(std::string_view text, std::string_view entry);
    /// Takes the head off: its path, without quotes. The next head counts as a number when it is shorter
    /// than 7.
    std::string TakePath();
    /// Takes the head off: its entry. What remains counts as numbers.
    std::string TakeEntry();
    /// Takes a row off, by its place; what remains counts as numbers.
    std::string TakeRow(int row);
    /// Removes the selected row, or else the head, and looks at the new head.
    void Uncue();

private:
    std::string SelectEntry(int row);
    void RemoveRow(int row);
    bool IsEmpty() const { return controls_.lstCuedSongsPath.ListCount() == 0; }
    bool IsHeadShort() const;

    CueControls& controls_;
    const controls::Label& lblQuote_;
    CueState& state_;
};

}  // namespace player
