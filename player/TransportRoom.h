// The heartbeat of the player: every 50 milliseconds tmrPlay moves the position marker, writes the running
// time, scrolls the title, keeps the video window over its hole, and notices the end of a song. Also seeking
// on the bar.
//
// A song ends when the right edge of lblProgress is past lblStartFade, which starts a crossfade, or when the
// percent played rounds to 100; one that could not be opened ends at the first tick. While PlayerStopped
// stands a tick asks the device nothing.
#pragma once

#include <string>

#include "controls/Event.h"
#include "controls/Label.h"
#include "player/MciLayer.h"
#include "player/Outgoing.h"
#include "player/PlayerControls.h"
#include "player/PlayerState.h"
#include "player/Roles.h"

namespace player {

/// What other rooms do for it.
struct TransportRoles {
    SongPlayer& player;
    Panning& panning;
    TitleScroller& title;
    VideoPane& video;
};

class TransportRoom final {
public:
    TransportRoom(ProgressControls& controls, PanelControls& panel, const controls::Label& lblStartFade,
                  const controls::Label& lblTrack, MciLayer& mci, const PlayerState& state,
                  TransportRoles roles, AddressRow& address, MainWindow& window);

    /// Gives the bar the song's length again, after it got another width.
    void RestoreBarScale();

private:
    void tmrPlay_Tick();
    void picSongProgress_MouseDown(double x);
    void picSongProgress_MouseWheel(int notches);
    void lblProgress_MouseDown(double x);
    void lblProgress_MouseMove(double x);
    void lblProgress_MouseUp();

    void MoveMarker();
    void ShowRunningTime();
    bool IsAtStartFade() const;
    bool HasNoSong();
    bool EndSongWhenDue();
    void ShowEmptyTimeWithoutTotal();
    bool HasSong() const { return !lblTrack_.Caption().empty(); }

    ProgressControls& controls_;
    const controls::Label& lblStartFade_;
    const controls::Label& lblTrack_;
    MciLayer& mci_;
    const PlayerState& state_;
    TransportRoles roles_;
    AddressRow& address_;
    MainWindow& window_;
    bool ProgressDragging_ = false;
    std::int16_t ProgressDragX_ = 0;
    controls::EventClaims claims_;
};

}  // namespace player
