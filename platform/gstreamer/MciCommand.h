// Command texts of the media control interface, read into their parts. No device is looked at here.
//
// Words are separated by blanks; keywords are read in any case; a word in double quotes may hold blanks. The
// flags "wait" and "notify" are understood and change nothing.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace gstreamer {

enum class Verb {
    Open,
    Close,
    Play,
    Pause,
    Resume,
    Stop,
    Seek,
    SetTimeFormat,
    SetSpeed,
    SetAudio,
    Status,
    Put,
    Follow
};
enum class Channel { Both, Left, Right };
enum class TimeFormat { Frames, Milliseconds };
enum class Item { Mode, Length, Position, Volume, Speed, TimeFormat };
enum class SeekTarget { Place, Start, End };

struct Command {
    Verb verb = Verb::Status;
    std::string target;                ///< the alias in lower case; the file of an open command
    std::string alias;                 ///< open: in lower case; the file when none is given
    std::string type;                  ///< open: as written, may be empty
    std::int64_t parent = 0;           ///< open
    std::optional<std::int64_t> from;  ///< play, in the device's time format, unchecked
    std::optional<std::int64_t> to;    ///< play and seek
    SeekTarget seek = SeekTarget::Place;
    std::int64_t value = 0;  ///< speed or level, unchecked
    Channel channel = Channel::Both;
    TimeFormat format = TimeFormat::Frames;
    Item item = Item::Mode;
    std::array<int, 4> place{};  ///< put: x, y, width, height
    std::string file;            ///< follow: what is to be heard next; empty for nothing
};

/// Fills `command` and returns 0, or returns the number of the error.
int ParseCommand(std::string_view text, Command& command);

}  // namespace gstreamer
