// The history: one log of what was visited, typed or played, in the table that also holds the settings rows.
//
// Nothing is kept in memory: every addition and every view walks the table. The log is in the order of its
// numbers, so a new row is always the last one. A number of 32767 cannot grow; the rows behind it carry it
// again and keep their order by their place.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/Event.h"
#include "places/Outgoing.h"
#include "places/PlacesMenu.h"
#include "ports/Dialogs.h"
#include "store/DataSource.h"

namespace places {

struct HistoryControls {
    store::DataSource datHistory{"datHistory"};
};

/// The kind of a played song; all others show in the address row.
inline constexpr std::string_view kMusicHistory = "Music";

class HistoryRoom final {
public:
    /// `save_history` is the session's `Save_History`, read at each addition.
    HistoryRoom(HistoryControls& controls, HistoryMenu& menu, store::DataSource& datSong,
                const bool& save_history, AddressRow& address, const FrontPage& page, PlayedSongsView& played,
                ports::Dialogs& dialogs);

    /// Adds a row, unless history is off, the text is empty or it is there already: an address once for all
    /// time (upper and lower case alike, settings rows too), a song not twice in a row. Songs are logged even
    /// with history off.
    void AddSiteToHistory(std::string_view kind, std::string_view text);
    /// "Music" fills the music pane with the last 20 songs, any other kind the list of the address row.
    void PopulateHistory(std::string_view kind);

private:
    void mnuHistory_Click();

    bool IsWanted(std::string_view kind, std::string_view text) const;
    bool IsKnown(std::string_view text);
    bool WasPlayedLast(std::string_view path);
    void Append(std::string_view kind, std::string_view text);
    void ShowKind(std::string_view kind);
    void ShowLastPlayed();
    std::vector<std::string> LastPlayedPaths();
    void DeleteAll();

    HistoryControls& controls_;
    store::DataSource& dat_song_;
    const bool& save_history_;
    AddressRow& address_;
    const FrontPage& page_;
    PlayedSongsView& played_;
    ports::Dialogs& dialogs_;
    controls::EventClaims claims_;
};

}  // namespace places
