#include "player/CueQueue.h"

#include <functional>

#include "base/DrivePath.h"
#include "base/MediaKinds.h"
#include "base/Text.h"

namespace player {

namespace {

std::string TextOfFile(std::string_view path) {
    const std::string name = base::WithoutStandIns(base::FileNameOf(path));
    return name.substr(0, name.rfind('.'));
}

}  // namespace

CueQueue::CueQueue(CueControls& controls, const controls::Label& quote, SongLookup& songs, CueState& state)
    : controls_(controls), quote_(quote), songs_(songs), state_(state) {}

/// Only a file that becomes the head makes the head a path: songs that wait before it are played as they were
/// cued.
void CueQueue::CueFile(std::string_view path, std::string_view title) {
    if (IsEmpty()) state_.CueHeadIsPath = true;
    controls_.lstCuedSongsPath.AddItem(path);
    controls_.lstCuedSongs.AddItem(title);
}

void CueQueue::Add(std::string_view text, std::string_view entry) {
    // Whoever took the last row may have left the flag.
    if (IsEmpty()) state_.CueHeadIsPath = false;
    controls_.lstCuedSongs.AddItem(text);
    controls_.lstCuedSongsPath.AddItem(entry);
    state_.CueHeadIsId = true;
}

void CueQueue::AddPath(std::string_view path) {
    if (const std::optional<SongLookup::Song> song = songs_.SongAt(path)) {
        Add(song->artist + " - " + song->title, song->id);
    } else {
        CueFile(path, TextOfFile(path));
    }
}

std::vector<CuedRow> CueQueue::Rows() const {
    std::vector<CuedRow> rows;
    rows.reserve(static_cast<std::size_t>(PathCount()));
    for (int row = 0; row < PathCount(); ++row) {
        rows.push_back({.text = std::string(controls_.lstCuedSongs.List(row)),
                        .entry = std::string(controls_.lstCuedSongsPath.List(row))});
    }
    return rows;
}

void CueQueue::PutBefore(const std::vector<CuedRow>& rows) {
    const std::vector<CuedRow> now = Rows();
    controls_.lstCuedSongs.Clear();
    controls_.lstCuedSongsPath.Clear();
    for (const std::vector<CuedRow>* const part : {&rows, &now}) {
        for (const CuedRow& row : *part) {
            controls_.lstCuedSongs.AddItem(row.text);
            controls_.lstCuedSongsPath.AddItem(row.entry);
        }
    }
}

std::uint64_t CueQueue::Mark() const {
    if (IsEmpty()) return 0;
    const std::hash<std::string_view> hash;
    std::uint64_t mark = static_cast<std::uint64_t>(PathCount());
    for (const int row : {0, PathCount() - 1})
        mark = mark * 31 + hash(controls_.lstCuedSongsPath.List(row));
    return mark;
}

std::string CueQueue::TakePath() {
    std::string path = base::Replace(SelectEntry(0), quote_.Caption(), "");
    RemoveRow(0);
    state_.CueHeadIsId = !IsEmpty() && IsHeadShort();
    state_.CueHeadIsPath = !IsEmpty() && !IsHeadShort();
    return path;
}

base::SongEntry CueQueue::TakeEntry() {
    base::SongEntry entry(SelectEntry(0), base::kShortestPathFromCue);
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
    LookAtHead();
}

void CueQueue::RemovePath(std::string_view path) {
    int row = 0;
    while (row < PathCount() && controls_.lstCuedSongsPath.List(row) != path)
        ++row;
    if (row == PathCount()) return;
    RemoveRow(row);
    LookAtHead();
}

void CueQueue::LookAtHead() {
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
    return base::SongEntry(controls_.lstCuedSongsPath.List(0), base::kShortestPathAtCueHead).IsSongId();
}

}  // namespace player
