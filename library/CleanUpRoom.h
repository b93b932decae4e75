// The clean-up of the library: takes songs out whose file is gone, and looks for paths that are stored twice.
//
// It runs in its panel on the one thread and yields at each row. Paths that are stored twice are counted and
// listed; their rows stay. A store that cannot be read ends the clean-up where it is, with the panel as it
// was left; the end of the program ends it at the next row.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "controls/Event.h"
#include "library/LibraryControls.h"
#include "library/LibraryMenu.h"
#include "library/TaskRoom.h"
#include "library/UndoLog.h"
#include "ports/Clock.h"
#include "ports/Dialogs.h"
#include "ports/Files.h"
#include "roles/TrackLists.h"
#include "store/DataSource.h"

namespace library {

/// The tables that the clean-up walks.
struct CleanUpStores {
    store::DataSource& datSong;
    store::DataSource& datHistory;
};

struct CleanUpPorts {
    const ports::Files& files;
    ports::Dialogs& dialogs;
    const ports::Clock& clock;
};

class CleanUpRoom final {
public:
    /// `last_clean_up_age` is the age of the last run as the session found it: the plain difference of two
    /// numbers yyyymmdd.
    CleanUpRoom(CleanUpControls& controls, CleanUpMenu& menu, CleanUpStores stores,
                const std::int32_t& last_clean_up_age, TaskRoom& task, UndoLog& undo,
                roles::TrackLists& lists, CleanUpPorts ports);

private:
    void mnuCleanUp_Click();

    void CleanUp();
    bool IsConfirmed();
    void ShowPanel();
    bool StoreToday();
    bool SearchFiles(store::RecordSet& songs);
    void SearchFile(store::RecordSet& song, UndoStep& step);
    bool FindDuplicates();
    void SkipDuplicates(store::RecordSet& songs);
    void ShowResult();
    void TellUnknown();
    void BeginPhase(std::string_view status, std::size_t steps);

    CleanUpControls& controls_;
    CleanUpStores stores_;
    const std::int32_t& last_clean_up_age_;
    TaskRoom& task_;
    UndoLog& undo_;
    roles::TrackLists& lists_;
    CleanUpPorts ports_;
    std::int64_t songs_removed_ = 0;
    std::int64_t songs_unknown_ = 0;  ///< what they are on does not answer
    controls::EventClaims claims_;
};

}  // namespace library
