// Starts songs and decides what comes next.
//
// One alias carries the current song; the other exists so that the next can start before the current one
// ends. Songs are never reused: an alias is closed and opened anew for each. A failure of the device is
// silent; the step it happened in changes nothing and the next step runs.
//
// PlaySong yields. Timers and events may run meanwhile and may start another song; the outer one then goes on
// and crosses over to its own. When the program was asked to end meanwhile, nothing is opened any more.
#pragma once

#include <string>
#include <string_view>

#include "controls/PictureBox.h"
#include "player/AliasTable.h"
#include "player/CueQueue.h"
#include "player/MciLayer.h"
#include "player/Outgoing.h"
#include "player/PlayOrder.h"
#include "player/PlayerControls.h"
#include "player/PlayerState.h"
#include "player/Roles.h"
#include "player/SongLookup.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"

namespace player {

/// What playback keeps itself.
struct PlaybackParts {
    SongLookup& songs;
    PlayOrder& order;
    CueQueue& cue;
};

/// What other rooms do for it.
struct PlaybackRoles {
    PlayMode& mode;
    Crossfade& crossfade;
    Volume& volume;
    Speed& speed;
    VideoPane& video;
};

/// What lies outside of the player.
struct PlaybackNeighbours {
    FileKinds& kinds;
    SongPaths& paths;
    HistoryLog& history;
    NowPlayingMessage& message;
    MainWindow& window;
    ports::Dialogs& dialogs;
    ports::EventLoop& loop;
};

class PlaybackRoom final : public SongPlayer {
public:
    PlaybackRoom(TitleControls& controls, controls::PictureBox& picSongProgress, MciLayer& mci,
                 PlayerState& state, PlaybackParts parts, PlaybackRoles roles, PlaybackNeighbours neighbours);

    /// Plays a file, or, when it is missing or no media, whatever comes next, until one plays or as many were
    /// missing in a row as the play order has rows; a box then says so. A call ends in any case: at the
    /// latest when everything that is cued and in order had its turn.
    void PlaySong(std::string_view filename) override;
    void EndOfSongCode() override;
    void PassOverSong() override;
    void GetSongInfo(std::int64_t song_id) override;
    /// Plays the entry before the current one in the play order.
    void PreviousTrack();
    /// Sends what plays to the messenger.
    void SendNowPlaying();
    /// Sends that nothing plays.
    void SendNothingPlaying();

private:
    bool CanPlay(const std::string& filename);
    bool IsEveryTrackMissing(int turns_left);
    void StartSong(const std::string& filename);
    std::string ChooseNextSong();
    std::string PathOfEntry(const std::string& entry);
    std::string PathOfCuedEntry(const std::string& entry);

    void NoteStart(const std::string& filename);
    void CountThePlay(const std::string& filename);
    void BeginPlaying();
    void PrepareVideoWindow(const std::string& filename);
    bool OpenOnFreeAlias(const std::string& filename);
    void StartFadeOf(const AliasRow& row);
    void MeasureSong();
    void ShowTitle(const std::string& filename);
    void CaptionVideoWindow();
    void ApplySpeedAndMute();

    TitleControls& controls_;
    controls::PictureBox& picSongProgress_;
    MciLayer& mci_;
    PlayerState& state_;
    PlaybackParts parts_;
    PlaybackRoles roles_;
    PlaybackNeighbours neighbours_;
};

}  // namespace player
