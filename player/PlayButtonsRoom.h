// Play, pause and stop, and the double click on a track.
#pragma once

#include "controls/Event.h"
#include "controls/Label.h"
#include "player/FadeRoom.h"
#include "player/MciLayer.h"
#include "player/MessengerLine.h"
#include "player/PanningRoom.h"
#include "player/PlayOrder.h"
#include "player/PlayPausePair.h"
#include "player/PlaybackRoom.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/VideoRoom.h"
#include "roles/AddressRow.h"

namespace player {

struct PlayButtonRooms {
    PlayPausePair& pair;
    PlayOrder& order;
    PlaybackRoom& playback;
    FadeRoom& fade;
    PanningRoom& panning;
    VideoRoom& video;
    MessengerLine& line;
};

class PlayButtonsRoom final {
public:
    PlayButtonsRoom(PlayButtonControls& controls, PlayButtonMenu& menu, TrackListView tracks,
                    controls::Label& song_marker, MciLayer& mci, PlayerState& state, PlayButtonRooms rooms,
                    roles::AddressRow& address);

    /// Each as a click on its button.
    void Play();
    void Pause();
    /// Ends both songs and notifies the messenger.
    void Stop();
    /// While stopped, after the bars were laid out again: what Stop left. Nobody is notified, the keyboard
    /// stays where it is, and so does a light show that is on the screen.
    void StayStopped();
    /// The next press of a play key plays.
    bool IsPlayShown() const { return rooms_.pair.IsPlayShown(); }

private:
    void lstTracks_DblClick();

    void ShowStopped();
    bool IsAnyIn(Mode mode);
    bool IsIdle();
    void ResumeCurrent();
    void PlaySelectedTrack();

    PlayButtonControls& controls_;
    TrackListView tracks_;
    controls::Label& song_marker_;
    MciLayer& mci_;
    PlayerState& state_;
    PlayButtonRooms rooms_;
    roles::AddressRow& address_;
    controls::EventClaims claims_;
};

}  // namespace player
