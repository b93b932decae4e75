// The player: builds its rooms in order, lets them meet through their roles, and answers the main window.
//
// Clicks that other parts of the program run ("the mnuQuickFade click") are raised on the control itself;
// what is no control's event is a verb here.
#pragma once

#include <string_view>

#include "player/CueQueue.h"
#include "player/FadeRoom.h"
#include "player/MciLayer.h"
#include "player/Outgoing.h"
#include "player/PanningRoom.h"
#include "player/PlayButtonsRoom.h"
#include "player/PlayModeRoom.h"
#include "player/PlayOrder.h"
#include "player/PlaybackRoom.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/QueueRoom.h"
#include "player/SongLookup.h"
#include "player/SpeakerTestForm.h"
#include "player/SpeakerTestRoom.h"
#include "player/SpeedRoom.h"
#include "player/SplitterRoom.h"
#include "player/TitleRoom.h"
#include "player/TransportRoom.h"
#include "player/VideoForm.h"
#include "player/VideoRoom.h"
#include "player/VisualisationRoom.h"
#include "player/VolumeRoom.h"
#include "ports/Clock.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "store/DataSource.h"

namespace player {

/// The windows and what they show of the library.
struct PlayerWindows {
    PlayerControls& controls;
    PlayerMenu& menu;
    VideoForm& frmVideo;
    SpeakerTestForm& frmSpeakerTest;
    TrackListView tracks;
    SplitListView lists;
};

/// What lies outside of the player.
struct PlayerNeighbours {
    FileKinds& kinds;
    SongPaths& paths;
    HistoryLog& history;
    NowPlayingMessage& message;
    AddressRow& address;
    MainWindow& window;
};

struct PlayerPorts {
    MciLayer& mci;
    store::DataSource& datSong;  ///< the player's own: other walks do not disturb it
    ports::Dialogs& dialogs;
    ports::EventLoop& loop;
    ports::Chance& chance;
};

class Player final {
public:
    Player(PlayerWindows windows, PlayerState& state, PlayerNeighbours neighbours, PlayerPorts ports);

    void PlaySong(std::string_view filename) { playback_.PlaySong(filename); }
    void EndOfSongCode() { playback_.EndOfSongCode(); }
    void GetSongInfo(std::int64_t song_id) { playback_.GetSongInfo(song_id); }
    void PreviousTrack() { playback_.PreviousTrack(); }
    /// What Stop does.
    void StopCurrentSong() { buttons_.imgStopOver_Click(); }
    /// Sends artist, title and the person's own text as they stand; or that nothing plays.
    void SendNowPlaying() { playback_.SendNowPlaying(); }
    void SendNothingPlaying() { playback_.SendNothingPlaying(); }
    void volchanged() { volume_.volchanged(); }
    void dontscrolltitle() { title_.dontscrolltitle(); }
    void MoveSlider() { splitter_.MoveSlider(); }
    void theresize() { video_.theresize(); }
    void FollowMainWindow() { video_.FollowMainWindow(); }
    /// Scales of the bars and places of their markers, after the layout gave the bars another width.
    void RestoreBars();
    /// After the bright pictures were hidden.
    void SettlePictures() { mode_.SettlePictures(); }
    /// A video or light show stands over its hole, so the hole follows the layout.
    bool IsVideoAttached() const;

private:
    PlayerState& state_;
    SongLookup songs_;
    PlayOrder order_;
    CueQueue cue_;
    PlayModeRoom mode_;
    VolumeRoom volume_;
    SpeedRoom speed_;
    PanningRoom panning_;
    FadeRoom fade_;
    VideoRoom video_;
    VisualisationRoom visuals_;
    PlaybackRoom playback_;
    QueueRoom queue_;
    PlayButtonsRoom buttons_;
    TitleRoom title_;
    TransportRoom transport_;
    SplitterRoom splitter_;
    SpeakerTestRoom speaker_test_;
};

}  // namespace player
