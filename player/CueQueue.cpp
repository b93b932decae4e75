#include "player/CueQueue.h"

#include "base/Text.h"

namespace player {

namespace {

/// A head with fewer characters is a number. One less than in the play order.
constexpr std::size_t kShortestPathAtHead = 7;

}  // namespace

CueQueue::CueQueue(CueControls& controls, const controls::Label& lblQuote, CueState& state)
    : controls_(controls), lblQuote_(lblQuote), state_(state) {}

void CueQueue::Add(std::string_view text, std::string_view entry) {
    // The last row may have gone without a word about the flag.
    if (IsEmpty()) state_.CueHeadIsPath = false;
    controls_.lstCuedSongs.AddItem(text);
    controls_.lstCuedSongsPath.AddItem(entry);
    state_.CueHeadIsId = true;
}

std::string CueQueue::TakePath() {
    std::string path = base::Replace(SelectEntry(0), lblQuote_.Caption(), "");
    RemoveRow(0);
    state_.CueHeadIsId = !IsEmpty() && IsHeadShort();
    state_.CueHeadIsPath = !IsEmpty() && !IsHeadShort();
    return path;
}

std::string CueQueue::TakeEntry() {
    std::string entry = SelectEntry(0);
    RemoveRow(0);
    state_.CueHeadIsId = !IsEmpty();
    return entry;
}

std::string CueQueue::SelectEntryOfRow() {
    return SelectEntry(controls_.lstCuedSongs.ListIndex());
}

void CueQueue::RemoveSelectedRow() {
    RemoveRow(controls_.lstCuedSongs.ListIndex());
    state_.CueHeadIsId = !IsEmpty();
}

void CueQueue::Uncue() {
    const int selected = controls_.lstCuedSongs.ListIndex();
    RemoveRow(selected < 0 ? 0 : selected);
    if (IsEmpty()) {
        state_.CueHeadIsPath = false;
        state_.CueHeadIsId = false;
        return;
    }
    state_.CueHeadIsPath = !IsHeadShort();
    if (IsHeadShort()) state_.CueHeadIsId = true;
}

std::string CueQueue::SelectEntry(int row) {
    controls_.lstCuedSongsPath.SetListIndex(row);
    return std::string(controls_.lstCuedSongsPath.List(row));
}

void CueQueue::RemoveRow(int row) {
    controls_.lstCuedSongsPath.RemoveItem(row);
    controls_.lstCuedSongs.RemoveItem(row);
}

bool CueQueue::IsHeadShort() const {
    return base::Len(controls_.lstCuedSongsPath.List(0)) < kShortestPathAtHead;
}

}  // namespace player
