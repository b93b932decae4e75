// Puts back what was removed last: songs into the library and tracks into their playlists, whole and where
// they were, each exactly once. Ctrl+Z in the lists asks for it.
//
// What is there already stays as it is and comes back no second time: a row that was put back before, or a
// song whose file was added to the library meanwhile. A row whose place or key another one took meanwhile
// comes back at the end, under the next key.
#pragma once

#include <cstddef>
#include <vector>

#include "library/LibraryControls.h"
#include "library/LibraryListsRoom.h"
#include "library/TaskRoom.h"
#include "library/UndoLog.h"
#include "store/Stores.h"

namespace library {

class UndoRoom final {
public:
    UndoRoom(PlayListControls& controls, MediaSources& sources, UndoLog& log, TaskRoom& task,
             LibraryListsRoom& lists, store::Stores& stores);

    /// Nothing happens while a task of the library runs, or when nothing was removed.
    void Undo();

private:
    std::size_t PutSongsBack(RemovedRows& step);
    std::size_t PutPlayListRowsBack(std::vector<store::KeptRow>& back);

    PlayListControls& controls_;
    MediaSources& sources_;
    UndoLog& log_;
    TaskRoom& task_;
    LibraryListsRoom& lists_;
    store::Stores& stores_;
};

}  // namespace library
