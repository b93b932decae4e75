// The maintenance pane of the preferences: what clears or fills the library and the history as a whole.
//
// Each deletion is one change of its store. What is said to be done is on the disk by then.
#pragma once

#include <string_view>

#include "controls/CommandButton.h"
#include "controls/Event.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "roles/History.h"
#include "roles/TrackLists.h"
#include "session/StoreTroubleRoom.h"
#include "store/DataSource.h"

namespace session {

struct MaintenanceControls {
    MaintenanceControls();

    controls::Frame fraMisc{"fraMisc"};
    controls::Label lblMisc{"lblMisc", "MAINTENANCE"};
    controls::Label lblReset{"lblReset", "Click here to reset the play count on all your media files."};
    controls::CommandButton cmdReset{"cmdReset", "Reset Play Count"};
    controls::Label lblEmpty{"lblEmpty", "Click here to empty your media library."};
    controls::CommandButton cmdEmpty{"cmdEmpty", "Empty Library"};
    controls::Label lblAddMedia{"lblAddMedia", "Click here to add media to your library."};
    controls::CommandButton cmdAddMedia{"cmdAddMedia", "Add Media"};
    controls::Label lblDeleteHistory{"lblDeleteHistory", "Click here to delete the history."};
    controls::CommandButton cmdDeleteHistory{"cmdDeleteHistory", "Delete History"};
};

struct MaintenanceSources {
    store::DataSource& datSong;
    store::DataSource& datPlayList;
    store::DataSource& datFolder;
};

class MaintenanceRoom final {
public:
    MaintenanceRoom(MaintenanceControls& controls, MaintenanceSources sources, controls::Form& frmAddMedia,
                    roles::TrackLists& lists, roles::History& history, SessionStores stores,
                    ports::Dialogs& dialogs, ports::EventLoop& loop);

private:
    void cmdReset_Click();
    void cmdEmpty_Click();
    void cmdAddMedia_Click();
    void cmdDeleteHistory_Click();

    bool ClearSongs();
    bool ClearFolders();
    bool ClearPlayLists();
    bool Clear(store::DataSource& source, std::string_view query);
    bool ResetPlayCounts();
    bool Agrees(std::string_view text, std::string_view title);
    void ShowHourglassFor(const store::RecordSet& rows);

    MaintenanceSources sources_;
    controls::Form& frm_add_media_;
    roles::TrackLists& lists_;
    roles::History& history_;
    SessionStores stores_;
    ports::Dialogs& dialogs_;
    ports::EventLoop& loop_;
    controls::EventClaims claims_;
};

}  // namespace session
