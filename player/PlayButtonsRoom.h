// Play, pause and stop, and the double click on a track.
#pragma once

#include <string_view>

#include "controls/Event.h"
#include "controls/Label.h"
#include "player/MciLayer.h"
#include "player/Outgoing.h"
#include "player/PlayOrder.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/Roles.h"

namespace player {

/// What other rooms do for it.
struct PlayButtonRoles {
    SongPlayer& player;
    Crossfade& crossfade;
    Panning& panning;
    VideoPane& video;
};

class PlayButtonsRoom final {
public:
    PlayButtonsRoom(PlayButtonControls& controls, PlayButtonMenu& menu, TrackListView tracks,
                    controls::Label& lblProgress, PlayOrder& order, MciLayer& mci, PlayerState& state,
                    PlayButtonRoles roles, NowPlayingMessage& message, AddressRow& address);

    /// The click on Stop: ends both songs and tells the messenger.
    void imgStopOver_Click();

private:
    void imgPlayOver_Click();
    void imgPauseOver_Click();
    void lstTracks_DblClick();

    bool IsAnyIn(std::string_view mode);
    bool IsIdle();
    void ResumeCurrent();
    void PlaySelectedTrack();
    void ShowPlayButtons();
    void ShowPauseButtons();

    PlayButtonControls& controls_;
    TrackListView tracks_;
    controls::Label& lblProgress_;
    PlayOrder& order_;
    MciLayer& mci_;
    PlayerState& state_;
    PlayButtonRoles roles_;
    NowPlayingMessage& message_;
    AddressRow& address_;
    controls::EventClaims claims_;
};

}  // namespace player
