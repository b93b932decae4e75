// The controls of the player on the main window. The constructors give them their looks, and markers and
// texts their places in their own bars; where everything else is belongs to the layout.
//
// Each small struct is the group of one room; the three bigger ones only put groups together for the window.
#pragma once

#include "controls/CommandButton.h"
#include "controls/Frame.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/PictureBox.h"
#include "controls/Timer.h"

namespace player {

/// imgVol's Left is the level: 17.85 units of its bar are one percent.
inline constexpr double kUnitsPerPercent = 17.85;
inline constexpr double kFullVolumeLeft = 1785;
/// Units across the speed bar; its middle is the normal speed.
inline constexpr double kSpeedBarScale = 200;

/// The speed's marker keeps this width in twips, whatever the scale of its bar.
inline constexpr double kSpeedMarkerWidth = 120;
/// The song's two markers are a pixel wide: a song ends when they meet, and with the fades off they must not
/// meet before 99.5 percent have played. The screen draws them wide enough to be caught with the mouse.
inline constexpr double kSongMarkerWidth = 15;

/// Restores a marker's width in twips, converted to the units of its bar.
void KeepMarkerWidth(controls::Label& marker, const controls::PictureBox& bar, double width);

/// Play, pause, stop: each a plain picture and its bright twin, which takes the click.
struct PlayButtonControls {
    PlayButtonControls();

    controls::Image imgPlay{"imgPlay", "play"};
    controls::Image imgPlayOver{"imgPlayOver", "playover"};
    controls::Image imgPause{"imgPause", "pause"};
    controls::Image imgPauseOver{"imgPauseOver", "pauseover"};
    controls::Image imgStop{"imgStop", "stop"};
    controls::Image imgStopOver{"imgStopOver", "stopover"};
};

/// Repeat on and off.
struct PlayModeControls {
    PlayModeControls();

    controls::Image imgRepeat{"imgRepeat", "repeat"};
    controls::Image imgRepeatOver{"imgRepeatOver", "repeatover"};
    controls::Image imgNoRepeat{"imgNoRepeat", "norepeat"};
    controls::Image imgNoRepeatOver{"imgNoRepeatOver", "norepeatover"};
};

/// The current song: its title scrolls in picTrackTitle.
struct TitleControls {
    TitleControls();

    controls::PictureBox picTrackTitle{"picTrackTitle"};
    controls::Label lblTrack{"lblTrack"};
    controls::Label lblNoFile{"lblNoFile", "File not found"};  ///< the file asked for cannot be played
    controls::Label lblFileNowPlaying{"lblFileNowPlaying"};    ///< hidden; full path of the current file
    controls::Label lblQuote{"lblQuote", "\""};                ///< hidden; the double quote
};

/// The position in the song. The scale unit of picSongProgress is the second.
struct ProgressControls {
    ProgressControls();

    controls::PictureBox picRunningTime{"picRunningTime"};
    controls::Label lblRunningTime{"lblRunningTime", "0:00/0:00"};
    controls::PictureBox picSongProgress{"picSongProgress"};
    controls::Label lblProgress{"lblProgress"};
    controls::Timer tmrPlay{"tmrPlay", 50, true};
};

/// The transport's panel.
struct PanelControls {
    PanelControls();

    controls::Frame fraControls{"fraControls"};
    controls::Image imgControlsBG{"imgControlsBG"};
};

/// The start-fade marker on picSongProgress and the ramp between two songs.
struct FadeControls {
    FadeControls();

    controls::Label lblStartFade{"lblStartFade"};
    controls::Timer tmrFade{"tmrFade", 60};
};

/// The volume. imgVol, the knob, is in picVolume below lblVol, which begins half a knob in: the x of a press
/// on lblVol is a Left of imgVol, so the middle of the knob goes to the pointer. lblNoVol and lblFullVol
/// cover the half knobs beyond both ends.
struct VolumeControls {
    VolumeControls();

    controls::PictureBox picVolume{"picVolume"};
    controls::Label lblVol{"lblVol"};
    controls::Label lblNoVol{"lblNoVol"};
    controls::Label lblFullVol{"lblFullVol"};
    controls::Image imgVol{"imgVol", "knob"};
    controls::Label lblMute{"lblMute", "Mute"};  ///< visible while the sound is off
};

/// The speed, 0 to 200 with the normal speed at 100.
struct SpeedControls {
    SpeedControls();

    controls::PictureBox picSpeed{"picSpeed"};
    controls::Label lblSongSpeed{"lblSongSpeed"};
    controls::Label lblSpeedLabel{"lblSpeedLabel", "SPEED"};
};

struct PanningControls {
    controls::Timer tmrPanning{"tmrPanning", 100};
};

/// The hidden play order: an entry of fewer than 8 characters is a SongID, any longer one a file path.
struct PlayOrderControls {
    PlayOrderControls();

    controls::ListBox lstNowPlaying{"lstNowPlaying"};
};

/// The cue list; lstCuedSongsPath runs parallel to lstCuedSongs.
struct CueControls {
    CueControls();

    controls::Label lblCuedLabel{"lblCuedLabel", "UP NEXT"};
    controls::ListBox lstCuedSongs{"lstCuedSongs"};
    controls::ListBox lstCuedSongsPath{"lstCuedSongsPath"};  ///< hidden
    controls::Image imgCueSong{"imgCueSong", "cuesong"};
    controls::Image imgCueSongOver{"imgCueSongOver", "cuesongover"};
    controls::Image imgUnCue{"imgUnCue", "uncue"};
    controls::Image imgUnCueOver{"imgUnCueOver", "uncueover"};
};

/// The transport: everything in fraControls except the levels.
struct TransportControls : PlayButtonControls,
                           PlayModeControls,
                           TitleControls,
                           ProgressControls,
                           PanelControls {
    /// Puts fraControls with its content, and the repeat pictures, into the music pane.
    void PutInto(controls::Container& pane);
};

/// The levels, in the transport's panel; the start-fade marker is on the song bar.
struct LevelControls : FadeControls, VolumeControls, SpeedControls, PanningControls {
    void PutInto(TransportControls& transport);
};

struct QueueControls : PlayOrderControls, CueControls {
    void PutInto(controls::Container& pane);
};

/// Between the upper library lists and the tracks.
struct SplitterControls {
    SplitterControls();

    controls::Label lblSlider{"lblSlider"};
};

/// The offer to go on where the music stopped, in the box of the title, and the beat at which that is kept.
struct ResumeControls {
    ResumeControls();

    controls::Label lblResume{"lblResume"};
    controls::Timer tmrKeepPlace{"tmrKeepPlace", 1000, true};
};

/// Where an attached video shows, and the button that puts a floating one back.
struct VideoPaneControls {
    VideoPaneControls();

    controls::PictureBox picVideo{"picVideo"};
    controls::CommandButton cmdAttachVid{"cmdAttachVid", "Attach"};
};

/// All controls of the player on the main window.
struct PlayerControls {
    TransportControls transport;
    LevelControls levels;
    QueueControls queue;
    ResumeControls resume;
    SplitterControls splitter;
    VideoPaneControls video;

    /// Puts everything but picVideo into the music pane, and picVideo into the window.
    void PutInto(controls::Container& pane, controls::Container& window);
};

// What the library keeps and the player reads.

/// The visible tracks with their entries. The player answers lstTracks.DblClick.
struct TrackListView {
    controls::ListBox& lstTracks;
    controls::ListBox& lstMaybe;
    bool& ListMaybeChanged;  ///< the tracks were refilled: the play order is copied again at the next double
                             ///< click
};

/// What the splitter moves.
struct SplitListView {
    controls::ListBox& lstArtists;
    controls::ListBox& lstPlayLists;
    controls::ListBox& lstTracks;
};

}  // namespace player
