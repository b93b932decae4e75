// What was removed last, step by step, so that it can be put back: rows of songs and of playlists, as they
// were.
//
// A row is written down before it is removed, and each step is a text of its own that only grows: whenever
// the program is killed, every row that is gone is in it. The steps outlast the run; the oldest of more than
// twenty goes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ports/KeptTexts.h"
#include "store/KeptRow.h"
#include "store/RecordSet.h"

namespace library {

/// Rows that were removed together, in the order in which they went.
struct RemovedRows {
    std::string name;  ///< of the step
    std::vector<store::KeptRow> songs;
    /// Songs whose file was in the library a second time, which stayed.
    std::vector<store::KeptRow> twins;
    std::vector<store::KeptRow> playlist_rows;

    bool operator==(const RemovedRows&) const = default;
};

/// What one removal takes out, which comes back together; of one without rows nothing is written. A removal
/// that yields has its own, whatever else is removed meanwhile.
class UndoStep final {
    friend class UndoLog;
    std::string name_;  // empty until the step has a row
};

class UndoLog final {
public:
    explicit UndoLog(ports::KeptTexts& texts) : texts_(texts) {}

    /// Writes down the current row of tblSong or of tblPlayList, which is about to be removed.
    void KeepSong(UndoStep& step, const store::RecordSet& song);
    void KeepTwin(UndoStep& step, const store::RecordSet& song);
    void KeepPlayListRow(UndoStep& step, const store::RecordSet& row);

    /// The step of before; nothing when there is none. One that cannot be read is set aside.
    std::optional<RemovedRows> LastStep();
    /// The step was undone.
    void Forget(const RemovedRows& step);

private:
    template <class Fields>
    void Keep(UndoStep& step, std::string_view kind, const Fields& fields, const store::RecordSet& row);
    void Open(UndoStep& step);

    ports::KeptTexts& texts_;
};

}  // namespace library
