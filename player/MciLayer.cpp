#include "player/MciLayer.h"

#include <utility>

#include "base/Number.h"
#include "base/Text.h"

namespace player {
namespace {

// An answer and an error's text are read as texts of this many characters.
constexpr std::size_t kReplyLength = 128;
constexpr std::size_t kErrorLength = 128;
constexpr std::size_t kShortPathLength = 255;
// The style bit of a child window.
constexpr std::int64_t kChildWindowStyle = 0x40000000;
constexpr int kDeviceUnits = 10;
constexpr std::int64_t kFailed = -1;
// What the rest of an answer's 128 characters holds.
constexpr char kFill = '\0';

std::string Text(std::int64_t number) {
    return base::ToText(number);
}

std::string Join(std::string_view verb, std::string_view alias, std::string_view rest = {}) {
    std::string command(verb);
    command.append(alias).append(rest);
    return command;
}

bool IsOneSide(std::string_view channel) {
    return base::EqualIgnoringCase(channel, "left") || base::EqualIgnoringCase(channel, "right");
}

}  // namespace

MciLayer::MciLayer(ports::MediaControl& media, const ports::WindowServices& windows,
                   const ports::Files& files)
    : media_(media), windows_(windows), files_(files) {}

std::string MciLayer::MciOpen(std::int64_t parent, std::string_view alias, std::string_view path,
                              std::string_view device_type) {
    const std::string short_path = files_.GetShortPathName(path);
    std::string command = "open ";
    command.append(base::Left(short_path, kShortPathLength)).append(" type ").append(device_type);
    command.append(" Alias ").append(alias).append(" parent ").append(Text(parent));
    command.append(" Style ").append(Text(kChildWindowStyle));
    return Command(command);
}

std::string MciLayer::MciPlay(std::string_view alias, std::string_view from, std::string_view to) {
    const std::string first = from.empty() ? "0" : std::string(from);
    const std::string last = to.empty() ? Text(MciLengthFrames(alias)) : std::string(to);
    return Command(Join("play ", alias, " from " + first + " to " + last));
}

std::string MciLayer::MciClose(std::string_view alias) {
    return Command(Join("Close ", alias));
}

std::string MciLayer::MciPause(std::string_view alias) {
    return Command(Join("Pause ", alias));
}

std::string MciLayer::MciStop(std::string_view alias) {
    return Command(Join("Stop ", alias));
}

std::string MciLayer::MciResume(std::string_view alias) {
    return Command(Join("Resume ", alias));
}

std::string MciLayer::MciStatusMode(std::string_view alias) {
    std::optional<std::string> mode = Ask(Join("status ", alias, " mode"));
    if (!mode) return std::string(kMciModeError);
    // The last of the 128 characters counts as the fill, and the word ends at the first like it. Only an
    // answer that leaves no room for the fill is cut by this.
    mode->resize(kReplyLength, kFill);
    return mode->substr(0, mode->find(mode->back()));
}

Mode MciLayer::ModeOf(std::string_view alias) {
    const std::string mode = MciStatusMode(alias);
    if (mode == "playing") return Mode::Playing;
    if (mode == "paused") return Mode::Paused;
    if (mode == "stopped") return Mode::Stopped;
    return mode == kMciModeError ? Mode::Error : Mode::Other;
}

std::int64_t MciLayer::MciLengthFrames(std::string_view alias) {
    SetTimeFormat(alias, "frames");
    return AskNumber(Join("status ", alias, " length"));
}

std::int64_t MciLayer::MciLengthMs(std::string_view alias) {
    SetTimeFormat(alias, "ms");
    const std::int64_t length = AskNumber(Join("status ", alias, " length"));
    SetTimeFormat(alias, "frames");
    return length;
}

std::string MciLayer::MciSeekAndPlay(std::string_view alias, std::int64_t position) {
    std::string result = Command(Join("seek ", alias, " to " + Text(position)));
    Command(Join("Play ", alias));
    return result;
}

std::int64_t MciLayer::MciPosition(std::string_view alias) {
    return AskNumber(Join("status ", alias, " position"));
}

std::string MciLayer::MciPutWindow(std::int64_t window, std::string_view alias, int x, int y, int& width,
                                   int& height) {
    if (width == 0 || height == 0) {
        ports::WindowRect rect;
        windows_.GetWindowRect(window, rect);
        width = rect.right - rect.left;
        height = rect.bottom - rect.top;
    }
    return Command(Join("put ", alias,
                        " window at " + Text(x) + " " + Text(y) + " " + Text(width) + " " + Text(height)));
}

std::int64_t MciLayer::MciPercentPlayed(std::string_view alias) {
    const std::int64_t length = MciLengthFrames(alias);
    const std::int64_t position = MciPosition(alias);
    if (length == kFailed || position == kFailed || length == 0) return kFailed;
    return base::RoundHalfEven(static_cast<double>(position) * 100.0 / static_cast<double>(length));
}

std::int64_t MciLayer::MciFramesPerSecond(std::string_view alias) {
    const std::int64_t milliseconds = MciLengthMs(alias);
    const std::int64_t frames = MciLengthFrames(alias);
    if (milliseconds == kFailed || frames == kFailed || milliseconds == 0) return kFailed;
    return base::RoundHalfEven(static_cast<double>(frames) / (static_cast<double>(milliseconds) / 1000.0));
}

std::string MciLayer::MciCloseAll() {
    return Command("Close All");
}

std::string MciLayer::MciSetVolume(std::string_view alias, std::string_view channel, int percent) {
    if (percent < 0 || percent > 100) return std::string(kMciOutOfVolume);
    const std::string side = IsOneSide(channel) ? " " + std::string(channel) : std::string();
    return Command(
        Join("setaudio ", alias, side + " Volume to " + Text(std::int64_t{percent} * kDeviceUnits)));
}

std::int64_t MciLayer::MciGetVolume(std::string_view alias, std::string_view channel) {
    const std::string side = IsOneSide(channel) ? " " + std::string(channel) : std::string();
    const std::optional<std::string> level = Ask(Join("status ", alias, side + " Volume"));
    return level ? base::RoundHalfEven(base::Val(*level) / kDeviceUnits) : kFailed;
}

std::string MciLayer::MciFollow(std::string_view alias, std::string_view path) {
    if (path.empty()) return Command(Join("follow ", alias));
    return Command(
        Join("follow ", alias, " by ").append(base::Left(files_.GetShortPathName(path), kShortPathLength)));
}

std::string MciLayer::MciSetSpeed(std::string_view alias, int speed) {
    return Command(Join("set ", alias, " speed " + Text(std::int64_t{speed} * kDeviceUnits)));
}

std::string MciLayer::Command(const std::string& command) {
    const int error = media_.SendString(command).error;
    if (error == 0) return std::string(kMciSuccess);
    return std::string(base::Left(media_.ErrorString(error), kErrorLength));
}

std::optional<std::string> MciLayer::Ask(const std::string& command) {
    ports::MediaReply reply = media_.SendString(command);
    if (reply.error != 0) return std::nullopt;
    return std::move(reply.text);
}

std::int64_t MciLayer::AskNumber(const std::string& command) {
    const std::optional<std::string> number = Ask(command);
    return number ? base::WholeVal(*number) : kFailed;
}

void MciLayer::SetTimeFormat(std::string_view alias, std::string_view format) {
    Command(Join("set ", alias, " time format " + std::string(format)));
}

}  // namespace player
