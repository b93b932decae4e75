// Starts songs and decides what comes next.
//
// One alias carries the current song; the other exists so that the next can start before the current one
// ends. Songs are never reused: an alias is closed and opened again for each. A failure of the device is
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
#include "player/FadeRoom.h"
#include "player/JoinRoom.h"
#include "player/MciLayer.h"
#include "player/MessengerLine.h"
#include "player/PlayModeRoom.h"
#include "player/PlayOrder.h"
#include "player/PlayPausePair.h"
#include "player/PlayerControls.h"
#include "player/PlayerState.h"
#include "player/SongLookup.h"
#include "player/SpeedRoom.h"
#include "player/VideoRoom.h"
#include "player/VolumeRoom.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "roles/History.h"
#include "roles/Start.h"

namespace player {

struct PlaybackRooms {
    PlayPausePair& pair;
    SongLookup& songs;
    PlayOrder& order;
    CueQueue& cue;
    PlayModeRoom& mode;
    FadeRoom& fade;
    JoinRoom& join;
    VolumeRoom& volume;
    SpeedRoom& speed;
    VideoRoom& video;
    MessengerLine& line;
};

struct PlaybackRoles {
    roles::History& history;
    roles::Start& start;
};

struct PlaybackPorts {
    const ports::Files& files;
    ports::Dialogs& dialogs;
    ports::EventLoop& loop;
};

class PlaybackRoom final {
public:
    PlaybackRoom(TitleControls& controls, controls::PictureBox& song_bar, MciLayer& mci, PlayerState& state,
                 PlaybackRooms rooms, PlaybackRoles roles, PlaybackPorts ports);

    /// Plays a file, or, when it is missing or no media, whatever comes next, until one plays or as many were
    /// missing in a row as the play order has rows; a box then says so. A call ends in any case: at the
    /// latest when everything that is cued and in order had its turn.
    void PlaySong(std::string_view filename);
    /// Chooses and starts the next song.
    void EndOfSongCode();
    /// The same because the current song is at its end: when every track is missing the player stops, or each
    /// tick would end the song again.
    void EndSong();
    /// Songs shorter than the fade end as soon as they have begun, until as many in a row did so as the play
    /// order has rows; from then on each is played to its end, until one is longer.
    bool MayEndBeforeItsEnd() const { return short_songs_ <= rooms_.order.Count(); }
    /// A song is between its history row and its opening, where the start yields: the song before is at its
    /// end already, whatever the ticks find.
    bool IsStarting() const { return starting_ > 0; }
    /// The last start was ended by a stop, or by the end of the program, while it yielded.
    bool WasCalledOff() const { return was_called_off_; }
    /// Takes the length of a song that did not tell it when it was opened, once it is known.
    void MeasureLateLength();
    /// Skips to the song after one that could not be opened; it counts as a missing one.
    void PassOverSong();
    /// The same after one that was opened and whose decoder ended; unless it was heard, its start counts as
    /// none.
    void PassOverLostSong(bool was_heard);
    /// Plays the song with that number; nothing when there is none.
    void GetSongInfo(std::int64_t song_id);
    /// Plays the entry before the current one in the play order.
    void PreviousTrack();

private:
    bool CanPlay(const std::string& filename);
    void Play(std::string path, bool at_end);
    bool IsEveryTrackMissing(int turns_left, bool at_end);
    void StartSong(const std::string& filename);
    std::string ChooseNextSong();

    void NoteStart(const std::string& filename);
    void CountThePlay(const std::string& filename);
    bool MakeReady(const std::string& filename);
    void BeginPlaying();
    void PrepareVideoWindow(const std::string& filename);
    bool OpenOnFreeAlias(const std::string& filename);
    void StartFadeOf(const AliasRow& row);
    void MeasureSong();
    void ShowTitle(const std::string& filename);
    void CaptionVideoWindow();
    void ApplySpeedAndMute();

    TitleControls& controls_;
    controls::PictureBox& song_bar_;
    MciLayer& mci_;
    PlayerState& state_;
    PlaybackRooms rooms_;
    PlaybackRoles roles_;
    PlaybackPorts ports_;
    int short_songs_ = 0;  ///< in a row, shorter than the fade
    std::int32_t missing_before_start_ = 0;
    int starting_ = 0;  ///< starts that yield at the moment
    bool was_called_off_ = false;
};

}  // namespace player
