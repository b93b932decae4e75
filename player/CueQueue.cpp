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
    return TakeRow(0);
}

std::string CueQueue::TakeRow(int row) {
    std::string entry = SelectEntry(row);
    RemoveRow(row);
    state_.CueHeadIsId = !IsEmpty();
    return entry;
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
