// What the player's rooms know together, under the names the whole program uses.
#pragma once

#include <cstdint>
#include <string>

#include "player/Alias.h"
#include "player/MarkerDrag.h"

namespace player {

struct PlaybackState {
    /// Alias of the current song.
    Alias CurrentAlias = Alias::None;
    /// Set by Stop and by closing the music tab; the position tick does nothing meanwhile.
    bool PlayerStopped = true;
    /// Tracks in a row that were missing, no media or not to be opened; wide enough for any list.
    std::int32_t MissingTrackCount = 0;
    /// Of the current song; 0 or -1 when it could not be opened.
    std::int16_t FramesPerSecond = 0;
    /// Length of the current song: minutes, ":", two-digit seconds.
    std::string TotalTimeText;
    /// The current song is a video.
    bool VideoPlaying = false;
    /// The three texts of the now-playing message; the third is the user's own.
    std::string NowArtist;
    std::string NowTitle;
    std::string NowAlbum;
};

struct CueState {
    /// The head of the cue list is to be played as a file path.
    bool CueHeadIsPath = false;
    /// The head of the cue list is to be played as a song number or path, or a cue is pending.
    bool CueHeadIsId = false;
};

struct LevelState {
    /// How many seconds before the end of a song the next one starts.
    std::int16_t FadeSeconds = 5;
    /// Direction of the running crossfade: True when the new song is on "b".
    bool FadeToB = false;
    /// Percent that an incoming song is brought up to.
    std::int32_t MusicVolume = 100;
    /// Left of the speed marker, in units of its bar.
    std::int16_t SongSpeed = 100;
    /// The start-fade marker is dragged; a press on the song bar does not seek meanwhile.
    MarkerDrag FadeDragging{DragEnds::EachEnd};
};

struct VideoState {
    /// The video window's place and size at the end of the last video.
    std::int16_t VideoLeft = 0;
    std::string VideoSizeText;  ///< height, ",", width; or "Max"
    /// A light show is in use.
    bool VisualisationOn = false;
    /// 0 none, 1 strobe, 2 party, 3 mood, 4 animation.
    std::int16_t visual = 0;
    /// Party turns into mood once while this is set.
    bool FirstLoad = false;
    /// The video window has been detached from the hole.
    bool resized = false;
    /// Calls of theresize since the last reset.
    std::int16_t counter = 0;
};

struct TitleState {
    /// The title scrolls in picTrackTitle.
    bool ScrollTitle = true;
    /// Ticks for which a new title still rests before it scrolls.
    int title_rest = 0;
};

struct PlayerState : PlaybackState, CueState, LevelState, VideoState, TitleState {};

}  // namespace player
