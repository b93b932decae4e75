// The player: builds its rooms in order and hands out what the rest of the program may ask of it.
#pragma once

#include <string_view>

#include "player/CueQueue.h"
#include "player/FadeRoom.h"
#include "player/JoinRoom.h"
#include "player/MciLayer.h"
#include "player/MediaWatch.h"
#include "player/MessengerLine.h"
#include "player/NowPlaying.h"
#include "player/OrderView.h"
#include "player/PanningRoom.h"
#include "player/PlayButtonsRoom.h"
#include "player/PlayModeRoom.h"
#include "player/PlayOrder.h"
#include "player/PlayPausePair.h"
#include "player/PlaybackRoom.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/QueueRoom.h"
#include "player/ResumeRoom.h"
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
#include "ports/Files.h"
#include "ports/MediaControl.h"
#include "ports/Windows.h"
#include "roles/PlayerSetup.h"
#include "roles/Transport.h"
#include "store/DataSource.h"

namespace player {

/// The windows and what they show of the library.
struct PlayerWindows {
    PlayerControls& controls;
    PlayerMenu& menu;
    VideoForm& video;
    SpeakerTestForm& speaker_test;
    TrackListView tracks;
    SplitListView lists;
};

struct PlayerRoles {
    roles::Window& window;
    roles::Layout& layout;
    roles::Hole& hole;
    roles::Highlights& highlights;
    roles::MediaKeys& keys;
    roles::AddressRow& address;
    roles::History& history;
    roles::Start& start;
    roles::Favourites& favourites;
    roles::Messenger& messenger;
};

struct PlayerPorts {
    ports::MediaControl& media;
    const ports::WindowServices& windows;
    const ports::Files& files;
    store::DataSource& songs;  ///< the player's own: other walks do not disturb it
    ports::Dialogs& dialogs;
    ports::EventLoop& loop;
    ports::Chance& chance;
    ports::KeptTexts& kept;
};

class Player final : public roles::Transport, public roles::PlayerSetup {
public:
    Player(PlayerWindows windows, PlayerState& state, PlayerRoles roles, PlayerPorts ports);

    roles::NowPlaying& Playing() { return playing_; }
    roles::MessengerLine& Line() { return line_; }
    roles::CueList& Cue() { return cue_; }
    roles::PlayOrder& Order() { return order_view_; }
    roles::KeptPlace& Place() { return resume_; }
    roles::VideoPane& Video() { return video_; }

    // roles::Transport
    void PlaySong(std::string_view path) override { playback_.PlaySong(path); }
    void Play() override { buttons_.Play(); }
    void Pause() override { buttons_.Pause(); }
    bool IsPlayShown() const override { return buttons_.IsPlayShown(); }
    void Stop() override { buttons_.Stop(); }
    void StayStopped() override { buttons_.StayStopped(); }
    void StopAndForget() override;
    void Next() override { playback_.EndOfSongCode(); }
    void Previous() override { playback_.PreviousTrack(); }
    void SeekTo(double second) override { transport_.SeekTo(second); }
    void SetSpeed(double percent) override { speed_.SetSpeed(percent); }
    void SetVolume(double level) override { volume_.SetVolume(level); }
    void ToggleMute() override { volume_.ToggleMute(); }
    void IncreaseVolume() override { volume_.IncreaseVolume(); }
    void DecreaseVolume() override { volume_.DecreaseVolume(); }

    // roles::PlayerSetup
    void SetDefaults() override;
    void ChooseQuickFade() override { fade_.ChooseQuickFade(); }
    void ClearVideoPicture() override { video_.ClearPicture(); }
    void EndUser() override;
    void CloseMedia() override { mci_.MciCloseAll(); }
    void RestoreBars() override;
    void SettlePictures() override { mode_.SettlePictures(); }

private:
    PlaybackRooms RoomsOfPlayback();
    PlayButtonRooms RoomsOfButtons();
    NowPlayingRooms RoomsOfPlaying() const;
    ResumeRooms RoomsOfResume();

    MediaWatch watch_;
    MciLayer mci_;
    SongLookup songs_;
    PlayOrder order_;
    CueQueue cue_;
    MessengerLine line_;
    PlayModeRoom mode_;
    VolumeRoom volume_;
    SpeedRoom speed_;
    PanningRoom panning_;
    FadeRoom fade_;
    JoinRoom join_;
    VideoRoom video_;
    VisualisationRoom visuals_;
    PlayPausePair pair_;
    PlaybackRoom playback_;
    QueueRoom queue_;
    PlayButtonsRoom buttons_;
    TitleRoom title_;
    TransportRoom transport_;
    SplitterRoom splitter_;
    SpeakerTestRoom speaker_test_;
    NowPlaying playing_;
    OrderView order_view_;
    ResumeRoom resume_;
};

}  // namespace player
