// The history: one log of what was visited, typed or played, in the table that also holds the settings rows.
//
// Nothing is kept in memory: every addition and every view walks the table. The log is in the order of its
// numbers, so a new row is always the last one. A number of 32767 cannot grow; the rows after it carry it
// again and keep their order by their place.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Event.h"
#include "places/PlacesMenu.h"
#include "ports/Dialogs.h"
#include "ports/PageEngine.h"
#include "roles/AddressRow.h"
#include "roles/FrontPage.h"
#include "roles/History.h"
#include "roles/TrackView.h"
#include "store/DataSource.h"

namespace places {

struct HistoryControls {
    store::DataSource datHistory{"datHistory"};
};

/// What the two views show in.
struct HistoryRoles {
    roles::AddressRow& address;
    const roles::FrontPage& page;
    roles::TrackView& played;
    /// The history was deleted.
    std::function<void()> deleted = {};
};

class HistoryRoom final : public roles::History {
public:
    /// `Save_History` is the session's, read at each addition.
    HistoryRoom(HistoryControls& controls, HistoryMenu& menu, store::DataSource& datSong,
                const bool& Save_History, HistoryRoles others, ports::Dialogs& dialogs,
                ports::PageEngine& pages);

    /// Adds a row, unless history is off, the text is empty or it is there already: an address once for all
    /// time (upper and lower case alike, settings rows too), a song not twice in a row. Songs are logged even
    /// with history off.
    void AddSiteToHistory(roles::HistoryKind kind, std::string_view text) override;
    void PopulateHistory(roles::HistoryKind kind) override;
    void DeleteHistory() override { mnuHistory_Click(); }

private:
    void mnuHistory_Click();

    bool IsWanted(roles::HistoryKind kind, std::string_view text) const;
    bool IsKnown(std::string_view text);
    bool WasPlayedLast(std::string_view path);
    void Append(roles::HistoryKind kind, std::string_view text);
    void ShowKind(roles::HistoryKind kind);
    void ShowLastPlayed();
    std::vector<std::string> LastPlayedPaths();
    void DeleteAll();

    HistoryControls& controls_;
    store::DataSource& dat_song_;
    const bool& Save_History_;
    HistoryRoles others_;
    ports::Dialogs& dialogs_;
    ports::PageEngine& pages_;
    controls::EventClaims claims_;
};

}  // namespace places
