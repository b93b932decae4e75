// Cueing and uncueing songs, the double click on a cued one, and files dropped among them.
#pragma once

#include "controls/Event.h"
#include "player/CueQueue.h"
#include "player/PlaybackRoom.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "roles/AddressRow.h"
#include "roles/Highlights.h"

namespace player {

class QueueRoom final {
public:
    QueueRoom(CueControls& controls, CueMenu& menu, TrackListView tracks, CueQueue& cue,
              PlaybackRoom& playback, roles::AddressRow& address, roles::Highlights& highlights);

private:
    void imgCueSongOver_Click();
    void imgUnCueOver_Click();
    void lstCuedSongs_DblClick();
    void lstCuedSongs_OLEDragDrop(const controls::DropData& data);

    CueControls& controls_;
    TrackListView tracks_;
    CueQueue& cue_;
    PlaybackRoom& playback_;
    roles::AddressRow& address_;
    roles::Highlights& highlights_;
    controls::EventClaims claims_;
};

}  // namespace player
