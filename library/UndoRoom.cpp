#include "library/UndoRoom.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "library/TableRows.h"

namespace library {
namespace {

using Texts = std::unordered_set<std::string>;

const std::string& ValueOf(const store::KeptRow& row, store::Field field) {
    return row.values[static_cast<std::size_t>(field.column)];
}

/// What tells rows apart: the texts of some fields, one after another.
using Marks = std::span<const store::Field>;

std::string MarkOf(const store::KeptRow& row, Marks fields) {
    std::string mark;
    for (const store::Field& field : fields)
        mark.append(ValueOf(row, field)).append(1, '\0');
    return mark;
}

void MarkOf(const store::RecordSet& row, Marks fields, std::string& mark) {
    mark.clear();
    for (const store::Field& field : fields)
        mark.append(row.Text(field)).append(1, '\0');
}

/// The marks of rows that are there, as far as rows that come back have them: a library may have a million
/// others.
Texts Taken(store::RecordSet& rows, Marks fields, const std::vector<store::KeptRow>& back) {
    Texts wanted;
    for (const store::KeptRow& row : back)
        wanted.insert(MarkOf(row, fields));
    Texts taken;
    std::string mark;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        MarkOf(rows, fields, mark);
        if (wanted.contains(mark)) taken.insert(mark);
    }
    return taken;
}

void LeaveOutTaken(store::RecordSet& rows, Marks fields, std::vector<store::KeptRow>& back) {
    if (back.empty()) return;
    const Texts taken = Taken(rows, fields, back);
    std::erase_if(back, [&](const store::KeptRow& row) { return taken.contains(MarkOf(row, fields)); });
}

/// Puts rows back; those whose place or key was taken come to the end, under the next key.
template <class Fields>
void PutBack(store::RecordSet& rows, const Fields& fields, const std::vector<store::KeptRow>& back,
             controls::Label& entry_count) {
    const store::Field key = fields[0];
    const Marks key_alone(&key, 1);
    Texts taken = Taken(rows, key_alone, back);
    std::vector<store::KeptRow> in_place;
    std::vector<store::KeptRow> at_end;
    for (const store::KeptRow& row : back)
        (taken.insert(MarkOf(row, key_alone)).second ? in_place : at_end).push_back(row);
    for (const std::size_t refused : rows.PutBack(in_place))
        at_end.push_back(in_place[refused]);
    for (const store::KeptRow& row : at_end) {
        if (!AddNewWithKey(rows, key, entry_count)) return;
        for (std::size_t column = 1; column < fields.size(); ++column)
            rows.Set(fields[column], row.values[column]);
        rows.Update();
    }
}

}  // namespace

UndoRoom::UndoRoom(PlayListControls& controls, MediaSources& sources, UndoLog& log, TaskRoom& task,
                   LibraryListsRoom& lists, store::Stores& stores)
    : controls_(controls), sources_(sources), log_(log), task_(task), lists_(lists), stores_(stores) {}

void UndoRoom::Undo() {
    if (task_.IsBusy()) return;
    std::optional<RemovedRows> step = log_.LastStep();
    if (!step) return;
    std::size_t back = PutSongsBack(*step);
    back += PutPlayListRowsBack(step->playlist_rows);
    // Until they are in their file the step is needed: it brings back what is not there.
    if (stores_.CommitAll()) log_.Forget(*step);
    lists_.Command1();
    lists_.ShowPutBack(back);
}

// A song that was added again meanwhile is there by its file. Where the file had two rows, only the whole row
// tells.
std::size_t UndoRoom::PutSongsBack(RemovedRows& step) {
    if (step.songs.empty() && step.twins.empty()) return 0;
    store::RecordSet rows = OpenRows(sources_.datSong, store::kAllSongs);
    static constexpr std::array kFile{store::tblSong::FilePath};
    static constexpr std::array kSame{store::tblSong::SongID, store::tblSong::FilePath};
    LeaveOutTaken(rows, kFile, step.songs);
    LeaveOutTaken(rows, kSame, step.twins);
    step.songs.insert(step.songs.end(), step.twins.begin(), step.twins.end());
    PutBack(rows, store::tblSong::kFields, step.songs, controls_.lblEntryCount2);
    return step.songs.size();
}

std::size_t UndoRoom::PutPlayListRowsBack(std::vector<store::KeptRow>& back) {
    if (back.empty()) return 0;
    store::RecordSet rows = OpenRows(sources_.datPlayList, store::kAllPlayListRows);
    LeaveOutTaken(rows, store::tblPlayList::kFields, back);
    PutBack(rows, store::tblPlayList::kFields, back, controls_.lblEntryCount2);
    return back.size();
}

}  // namespace library
