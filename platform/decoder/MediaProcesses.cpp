#include "platform/decoder/MediaProcesses.h"

#include <utility>

#include "platform/gstreamer/MciCommand.h"
#include "platform/gstreamer/MciErrors.h"

namespace decoder {
namespace {

using gstreamer::Command;
using gstreamer::Verb;

// The engine itself waits a second for a sound server that does not take the rest.
constexpr std::chrono::milliseconds kFarewell{1300};
// A process that is gone so soon after it was asked may have been going before.
constexpr std::chrono::milliseconds kAtOnce{500};

ports::MediaReply Error(int error) {
    return {.error = error, .text = {}};
}

}  // namespace

MediaProcesses::MediaProcesses(std::string program, Resolver resolve, Raiser raise, int errors)
    : resolve_(std::move(resolve)),
      channels_{Channel{{program, "a", raise, errors}, {}, {}},
                Channel{{program, "b", raise, errors}, {}, {}}} {}

MediaProcesses::~MediaProcesses() {
    for (Channel& channel : channels_)
        channel.process.Leave();
    const auto until = Process::Clock::now() + kFarewell;
    for (Channel& channel : channels_)
        channel.process.Wait(until);
}

void MediaProcesses::WarmUp() {
    for (Channel& channel : channels_)
        channel.process.Start();
}

pid_t MediaProcesses::ProcessOf(std::string_view alias) {
    return ChannelOf(alias).process.Number();
}

ports::MediaReply MediaProcesses::SendString(std::string_view text) {
    Command command;
    if (const int error = gstreamer::ParseCommand(text, command)) return Error(error);
    for (Channel& channel : channels_)
        Tend(channel);
    if (command.verb == Verb::Open) return Open(command, text);
    if (command.target == "all") return Error(AskAll(command, text));
    Channel& channel = ChannelOf(command.target);
    if (!channel.songs.contains(command.target)) return Error(gstreamer::kNotOpen);
    if (command.verb == Verb::Follow) return Follow(command, text);
    ports::MediaReply reply = Ask(channel, text);
    if (command.verb == Verb::Close) Close(channel, command.target);
    return reply;
}

std::string MediaProcesses::ErrorString(int error) const {
    return std::string(gstreamer::ErrorText(error));
}

/// Where it is open, else where it is opened as a rule.
MediaProcesses::Channel& MediaProcesses::ChannelOf(std::string_view alias) {
    const std::string name(alias);
    for (Channel& channel : channels_)
        if (channel.songs.contains(name)) return channel;
    return channels_.at(alias == "b" ? 1 : 0);
}

/// What follows a song is opened where that is heard; then the other alias moves to the other process. Two
/// songs are in one process only while the first of them is at its end.
MediaProcesses::Channel& MediaProcesses::ChannelFor(const std::string& alias, const std::string& path) {
    for (Channel& channel : channels_)
        if (!path.empty() && channel.next == path && IsAtEnd(channel)) return channel;
    Channel& own = ChannelOf(alias);
    Channel& other = channels_.at(&own == channels_.data() ? 1 : 0);
    const bool is_free = own.songs.empty() || own.songs.contains(alias) || !other.songs.empty();
    return is_free ? own : other;
}

bool MediaProcesses::IsAtEnd(Channel& channel) {
    for (const auto& [alias, path] : channel.songs) {
        const auto mode = channel.process.Ask("status " + alias + " mode", {});
        if (!mode || mode->text != "stopped") return false;
    }
    return true;
}

void MediaProcesses::DropNext(Channel& channel) {
    if (!channel.next.empty() && channel.process.IsReady()) channel.process.Gate().Forget(channel.next);
    channel.next.clear();
}

void MediaProcesses::Lose(Channel& channel) {
    channel.songs.clear();
    channel.next.clear();
}

/// The gatekeeper has a path once for each time that it was handed.
ports::MediaReply MediaProcesses::Follow(const Command& command, std::string_view text) {
    Channel& channel = ChannelOf(command.target);
    const std::string path = command.file.empty() ? std::string() : resolve_(command.file);
    if (path.empty() && !command.file.empty()) return Error(gstreamer::kFileNotFound);
    if (!channel.process.IsReady()) return Error(gstreamer::kNotReady);
    if (!path.empty()) channel.process.Gate().Hand(path);
    std::optional<ports::MediaReply> reply = channel.process.Ask(std::string(text), path);
    if (!reply) {
        Lose(channel);
        channel.process.Start();
        return Error(gstreamer::kNotOpen);
    }
    DropNext(channel);
    channel.next = path;
    return *std::move(reply);
}

/// A process that ended is started again; only one that was there before, for a program may never play.
void MediaProcesses::Tend(Channel& channel) {
    if (channel.process.Number() == 0 || channel.process.IsRunning()) return;
    Lose(channel);
    channel.process.Start();
}

ports::MediaReply MediaProcesses::Open(const Command& command, std::string_view text) {
    const std::string path = resolve_(command.target);
    Channel& channel = ChannelFor(command.alias, path);
    const auto begin = Process::Clock::now();
    std::optional<ports::MediaReply> reply = AskToOpen(channel, command.alias, text, path);
    if (!reply && Process::Clock::now() - begin < kAtOnce)
        reply = AskToOpen(channel, command.alias, text, path);
    return reply ? *std::move(reply) : Error(gstreamer::kInvalidFile);
}

/// Nothing when the process ended over it, or was ended; the next one is on its way then.
std::optional<ports::MediaReply> MediaProcesses::AskToOpen(Channel& channel, const std::string& alias,
                                                           std::string_view text, const std::string& path) {
    channel.process.Start();
    bool is_ready = channel.process.WaitUntilReady();
    if (!is_ready && channel.process.Number() == 0) {
        // It was on its way out when it was asked.
        Lose(channel);
        channel.process.Start();
        is_ready = channel.process.WaitUntilReady();
    }
    if (!is_ready) return Error(gstreamer::kNotReady);
    if (!channel.songs.contains(alias)) channel.process.Gate().Hand(path);
    std::optional<ports::MediaReply> reply = channel.process.Ask(std::string(text), path);
    if (!reply) {
        const bool hung = channel.process.HasHung();
        Lose(channel);
        channel.process.Start();
        if (hung) return Error(gstreamer::kNotReady);
    } else if (reply->error == gstreamer::kNoError) {
        channel.songs[alias] = path;
        DropNext(channel);
    } else if (!channel.songs.contains(alias)) {
        channel.process.Gate().Forget(path);
    }
    return reply;
}

/// Of something that is open in the channel.
ports::MediaReply MediaProcesses::Ask(Channel& channel, std::string_view text) {
    if (std::optional<ports::MediaReply> reply = channel.process.Ask(std::string(text), {}))
        return *std::move(reply);
    Lose(channel);
    channel.process.Start();
    return Error(gstreamer::kNotOpen);
}

int MediaProcesses::AskAll(const Command& command, std::string_view text) {
    if (command.verb == Verb::Status || command.verb == Verb::Put) return gstreamer::kCannotUseAll;
    int result = gstreamer::kNoError;
    for (Channel& channel : channels_) {
        if (channel.songs.empty()) continue;
        const int error = Ask(channel, text).error;
        if (command.verb == Verb::Close) CloseAll(channel);
        if (error != gstreamer::kNoError)
            result = result == gstreamer::kNoError ? error : gstreamer::kMultipleErrors;
    }
    return result;
}

void MediaProcesses::Close(Channel& channel, const std::string& alias) {
    const auto found = channel.songs.find(alias);
    if (found == channel.songs.end()) return;
    if (channel.process.IsReady()) channel.process.Gate().Forget(found->second);
    channel.songs.erase(found);
}

void MediaProcesses::CloseAll(Channel& channel) {
    while (!channel.songs.empty())
        Close(channel, channel.songs.begin()->first);
}

}  // namespace decoder
