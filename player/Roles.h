// The roles that the player's rooms play for one another.
#pragma once

#include <cstdint>
#include <string_view>

namespace player {

/// Starts songs.
class SongPlayer {
public:
    virtual ~SongPlayer() = default;
    virtual void PlaySong(std::string_view filename) = 0;
    /// Chooses and starts the next song.
    virtual void EndOfSongCode() = 0;
    /// Goes on behind a song that could not be opened; it counts as a missing one.
    virtual void PassOverSong() = 0;
    /// Plays the song with that number; nothing when there is none.
    virtual void GetSongInfo(std::int64_t song_id) = 0;
};

/// Repeat and shuffle.
class PlayMode {
public:
    virtual ~PlayMode() = default;
    virtual bool IsRepeating() const = 0;
    virtual bool IsShuffling() const = 0;
};

/// The ramp between two songs and its marker.
class Crossfade {
public:
    virtual ~Crossfade() = default;
    /// Starts the ramp towards "b", or else towards "a".
    virtual void StartFade(bool to_b) = 0;
    virtual void StopFade() = 0;
    /// Lets the timer run in the direction that it had, whether or not there was a ramp.
    virtual void RestartFade() = 0;
    /// Ends a drag of the marker, as a new song does.
    virtual void ClearDrag() = 0;
    /// Puts the marker on the bar of a song that just started.
    virtual void PlaceMarkerForSong() = 0;
};

/// The sweep between the speakers.
class Panning {
public:
    virtual ~Panning() = default;
    virtual void SetPanningRunning(bool running) = 0;
    /// What the menu entry does.
    virtual void mnuPanOff_Click() = 0;
};

/// The level.
class Volume {
public:
    virtual ~Volume() = default;
    /// Sends and keeps the level of imgVol; ends mute.
    virtual void volchanged() = 0;
    virtual bool IsMuted() const = 0;
};

/// The speed.
class Speed {
public:
    virtual ~Speed() = default;
    /// Gives the current song the speed of the marker.
    virtual void ApplySpeed() = 0;
};

/// The scrolling title.
class TitleScroller {
public:
    virtual ~TitleScroller() = default;
    /// One step of the title, or its resting place when it does not scroll.
    virtual void ScrollStep() = 0;
};

/// The video window and its place in the main window.
class VideoPane {
public:
    virtual ~VideoPane() = default;
    /// Gets the window ready for a video, a song with a light show, or a song alone.
    virtual void PrepareVideo() = 0;
    virtual void PrepareLightShow() = 0;
    virtual void PrepareMusic() = 0;
    /// Shows the window for a video or a light show; otherwise makes it normal and hides it.
    virtual void ShowOrHideWindow() = 0;
    virtual void HideWindow() = 0;
    virtual void SetWindowCaption(std::string_view caption) = 0;
    /// The platform's handle of picVid, the parent of both aliases.
    virtual std::int64_t ParentHandle() const = 0;
    /// Gives the current song's picture the size of the window.
    virtual void PutVideo() = 0;
    /// Keeps place and size for the next video.
    virtual void SavePlace() = 0;
    /// Closes the hole and hides picVideo.
    virtual void ClosePane() = 0;
    virtual void theresize() = 0;
    virtual void cmdAttachVid_Click() = 0;
    /// Keeps an attached window over its hole.
    virtual void FollowMainWindow() = 0;
};

}  // namespace player
