// The clean-up of the library: takes songs out whose file is gone, and looks for paths that are stored twice.
//
// It runs in its panel on the one thread and yields at each row. Paths that are stored twice are counted and
// listed; their rows stay. A store that cannot be read ends the clean-up where it is, with the panel as it
// was left; the end of the program ends it at the next row.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "controls/Event.h"
#include "library/LibraryControls.h"
#include "library/LibraryMenu.h"
#include "ports/Clock.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "roles/Highlights.h"
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
    ports::EventLoop& loop;
    const ports::Clock& clock;
};

class CleanUpRoom final {
public:
    /// `last_clean_up_age` is the age of the last run as the session found it: the plain difference of two
    /// numbers yyyymmdd.
    CleanUpRoom(TaskControls& controls, CleanUpMenu& menu, CleanUpStores stores,
                const std::int32_t& last_clean_up_age, roles::TrackLists& lists,
                roles::Highlights& highlights, CleanUpPorts ports);

private:
    void mnuCleanUp_Click();

    void CleanUp();
    void SetPanelTexts();
    bool IsConfirmed();
    void ShowPanel();
    void HidePanel();
    bool StoreToday();
    bool SearchFiles(store::RecordSet& songs);
    void SearchFile(store::RecordSet& song);
    bool FindDuplicates();
    void SkipDuplicates(store::RecordSet& songs);
    void ShowResult();
    void BeginPhase(std::string_view status, std::size_t steps);
    bool EndStep();

    TaskControls& controls_;
    CleanUpStores stores_;
    const std::int32_t& last_clean_up_age_;
    roles::TrackLists& lists_;
    CleanUpPorts ports_;
    std::size_t steps_ = 0;  // of the phase that runs
    std::size_t done_ = 0;
    std::int64_t songs_removed_ = 0;
    bool running_ = false;
    controls::EventClaims claims_;
};

}  // namespace library
