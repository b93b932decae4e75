// The cue list: what plays before the play order goes on.
//
// Two flags say how the head is to be played. They are set when a song is cued, and again whenever a row
// goes. A head is taken off before it is played, so that a missing one makes way for the next.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/SongEntry.h"
#include "controls/Label.h"
#include "player/PlayerControls.h"
#include "player/PlayerState.h"
#include "player/SongLookup.h"
#include "player/StoppedPlace.h"
#include "roles/CueList.h"

namespace player {

class CueQueue final : public roles::CueList {
public:
    CueQueue(CueControls& controls, const controls::Label& quote, SongLookup& songs, CueState& state);

    int SongCount() const override { return controls_.lstCuedSongs.ListCount(); }
    int PathCount() const override { return controls_.lstCuedSongsPath.ListCount(); }
    void SelectPath(int row) override { controls_.lstCuedSongsPath.SetListIndex(row); }
    void CueFile(std::string_view path, std::string_view title) override;
    void RemovePath(std::string_view path) override;

    /// How the head is to be played; both are false while there is none, whatever the flags say.
    bool IsPathAtHead() const { return !IsEmpty() && state_.CueHeadIsPath; }
    bool IsIdAtHead() const { return !IsEmpty() && state_.CueHeadIsId; }

    /// The rows, with the texts that show.
    std::vector<CuedRow> Rows() const;
    /// Puts rows that were kept before those that are there. How the head is played is the caller's to say.
    void PutBefore(const std::vector<CuedRow>& rows);
    /// Another number for other rows, as far as their count, the first and the last one tell.
    std::uint64_t Mark() const;

    /// Adds a song with the text to show and its entry, a number or a path.
    void Add(std::string_view text, std::string_view entry);
    /// Adds a file at the end: as the song of the library that has this path, with its number, or else under
    /// its file name without the extension, as a path.
    void AddPath(std::string_view path);
    /// Takes the head off: its path, without quotes. The next head counts as a number when it is shorter
    /// than 7.
    std::string TakePath();
    /// Takes the head off: its entry. What remains counts as numbers.
    base::SongEntry TakeEntry();
    /// Selects the entry of the selected row, and returns it.
    std::string SelectEntryOfRow();
    /// Removes the selected row, if there is one; what remains counts as numbers.
    void RemoveSelectedRow();
    /// Removes the selected row, or else the head, and looks at the new head.
    void Uncue();

private:
    std::string SelectEntry(int row);
    void RemoveRow(int row);
    void LookAtHead();
    bool IsEmpty() const { return PathCount() == 0; }
    bool IsHeadShort() const;

    CueControls& controls_;
    const controls::Label& quote_;
    SongLookup& songs_;
    CueState& state_;
};

}  // namespace player
