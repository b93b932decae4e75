// The one way to sound and picture: eighteen wrappers, each of which sends one command text to the media
// control interface and reports the result.
//
// The layer does not know which aliases there are; an alias is a short text that the caller chooses. Volumes
// are percent, 0 to 100, ten device units each; a speed of 100 is the device's 1000, its normal speed.
// Positions and lengths are frames unless a name says milliseconds. Every call is synchronous and nothing is
// ever raised: a text result is "Success" or the device's error text, a number is -1 and a mode "ERROR" when
// the command failed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ports/Files.h"
#include "ports/MediaControl.h"
#include "ports/Windows.h"

namespace player {

inline constexpr std::string_view kMciSuccess = "Success";
inline constexpr std::string_view kMciModeError = "ERROR";
inline constexpr std::string_view kMciOutOfVolume = "out of volume";
/// The only device type in use.
inline constexpr std::string_view kMpegVideo = "MPEGVideo";

/// What MciStatusMode says, as a type: Error when the alias is not open.
enum class Mode { Playing, Paused, Stopped, Other, Error };

class MciLayer final {
public:
    /// All three must outlive the layer.
    MciLayer(ports::MediaControl& media, const ports::WindowServices& windows, const ports::Files& files);

    /// Opens a file under an alias, its picture in a child of the window `parent`. The path goes out in its
    /// short form, at most 255 characters, so that no blank has to be quoted.
    std::string MciOpen(std::int64_t parent, std::string_view alias, std::string_view path,
                        std::string_view device_type);
    /// Plays from one frame to another. An empty `from` is "0", an empty `to` the whole length.
    std::string MciPlay(std::string_view alias, std::string_view from, std::string_view to);
    std::string MciClose(std::string_view alias);
    std::string MciPause(std::string_view alias);
    std::string MciStop(std::string_view alias);
    std::string MciResume(std::string_view alias);
    /// "playing", "paused", "stopped" and so on; "ERROR" when the alias is not open.
    std::string MciStatusMode(std::string_view alias);
    Mode ModeOf(std::string_view alias);
    std::int64_t MciLengthFrames(std::string_view alias);
    /// Leaves the device in frames whatever happened.
    std::int64_t MciLengthMs(std::string_view alias);
    /// Plays from `position` on. The result is the seek's; playing is asked for even when that failed.
    std::string MciSeekAndPlay(std::string_view alias, std::int64_t position);
    /// In frames, the time format that every call leaves set.
    std::int64_t MciPosition(std::string_view alias);
    /// Puts the picture into a place of the window, in pixels. With a width or a height of 0 both are taken
    /// from the window's own size, and written back.
    std::string MciPutWindow(std::int64_t window, std::string_view alias, int x, int y, int& width,
                             int& height);
    /// 0 to 100, rounded to the nearest, halves to the even neighbour.
    std::int64_t MciPercentPlayed(std::string_view alias);
    /// Rounded likewise.
    std::int64_t MciFramesPerSecond(std::string_view alias);
    std::string MciCloseAll();
    /// `channel` is "left" or "right", in any case; any other text means both. A percent outside 0 to 100
    /// sends nothing and returns "out of volume".
    std::string MciSetVolume(std::string_view alias, std::string_view channel, int percent);
    std::int64_t MciGetVolume(std::string_view alias, std::string_view channel);
    /// What the device goes on with when the song is over, at once; empty for nothing. What is open under the
    /// alias comes to its end as ever; the file that follows is then opened under any alias and played.
    std::string MciFollow(std::string_view alias, std::string_view path);
    /// No range is checked.
    std::string MciSetSpeed(std::string_view alias, int speed);

private:
    std::string Command(const std::string& command);
    std::optional<std::string> Ask(const std::string& command);
    std::int64_t AskNumber(const std::string& command);
    void SetTimeFormat(std::string_view alias, std::string_view format);

    ports::MediaControl& media_;
    const ports::WindowServices& windows_;
    const ports::Files& files_;
};

}  // namespace player
