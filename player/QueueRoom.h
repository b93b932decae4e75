// Cueing and uncueing songs, and the double click on a cued one.
#pragma once

#include "controls/Event.h"
#include "player/CueQueue.h"
#include "player/Outgoing.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/Roles.h"

namespace player {

class QueueRoom final {
public:
    QueueRoom(CueControls& controls, CueMenu& menu, TrackListView tracks, CueQueue& cue, SongPlayer& player,
              AddressRow& address, MainWindow& window);

private:
    void imgCueSongOver_Click();
    void imgUnCueOver_Click();
    void lstCuedSongs_DblClick();

    CueControls& controls_;
    TrackListView tracks_;
    CueQueue& cue_;
    SongPlayer& player_;
    AddressRow& address_;
    MainWindow& window_;
    controls::EventClaims claims_;
};

}  // namespace player
