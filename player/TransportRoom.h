// The heartbeat of the player: every 50 milliseconds tmrPlay moves the position marker, writes the running
// time, scrolls the title, keeps the video window over its hole, and notices the end of a song. Also seeking
// on the bar.
//
// A song ends when the right edge of lblProgress is past lblStartFade, which starts a crossfade, or when the
// percent played rounds to 100; one that could not be opened ends at the first tick. One that the next
// follows without a gap ends with its last sample. While PlayerStopped is set a tick asks the device nothing.
#pragma once

#include <string>

#include "controls/Event.h"
#include "controls/Label.h"
#include "player/JoinRoom.h"
#include "player/MarkerDrag.h"
#include "player/MciLayer.h"
#include "player/PanningRoom.h"
#include "player/PlaybackRoom.h"
#include "player/PlayerControls.h"
#include "player/PlayerState.h"
#include "player/TitleRoom.h"
#include "player/VideoRoom.h"
#include "roles/AddressRow.h"
#include "roles/Highlights.h"

namespace player {

struct TransportRooms {
    PlaybackRoom& playback;
    PanningRoom& panning;
    TitleRoom& title;
    VideoRoom& video;
    JoinRoom& join;
};

struct TransportRoles {
    roles::AddressRow& address;
    roles::Highlights& highlights;
};

class TransportRoom final {
public:
    TransportRoom(ProgressControls& controls, PanelControls& panel, const controls::Label& fade_marker,
                  const controls::Label& title, MciLayer& mci, const PlayerState& state, TransportRooms rooms,
                  TransportRoles roles);

    /// As a press on picSongProgress there. Nothing while the fade marker is dragged or no title shows.
    void SeekTo(double second);
    /// The position marker as it is before the first song.
    void HideMarker();

    /// Gives the bar the song's length again, after it got another width.
    void RestoreBarScale();

private:
    void tmrPlay_Tick();
    void picSongProgress_MouseWheel(int notches);
    void lblProgress_MouseDown(double x);
    void lblProgress_MouseMove(double x);
    void lblProgress_MouseUp();

    void ShowWhetherStopped();
    void MoveMarker();
    void ShowRunningTime();
    bool IsAtStartFade() const;
    bool HasNoSong();
    bool HasLostSong();
    bool LengthIsUnknown();
    void ShowUnknownLength();
    bool EndSongWhenDue();
    void ShowEmptyTimeWithoutTotal();
    bool HasSong() const { return !title_.Caption().empty(); }

    ProgressControls& controls_;
    const controls::Label& fade_marker_;
    const controls::Label& title_;
    MciLayer& mci_;
    const PlayerState& state_;
    TransportRooms rooms_;
    TransportRoles roles_;
    MarkerDrag ProgressDragging_{DragEnds::FirstThatHolds};
    controls::EventClaims claims_;
};

}  // namespace player
