// The media control interface over decoders in processes of their own, one for each channel.
//
// The text of a command goes to the process of its alias as it is, and its answer comes back. A process that
// ends, or does not answer within two seconds, is started again; what was open in it is closed then. What
// follows a song without a gap is opened in that song's process, whatever its alias.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/decoder/Process.h"
#include "ports/MediaControl.h"

namespace gstreamer {
struct Command;
}

namespace decoder {

class MediaProcesses : public ports::MediaControl {
public:
    /// What this process has as its own standard error.
    static constexpr int kOwnErrors = 2;

    /// `resolve` gives the native path of a file name as commands have it; empty when it names nothing.
    using Resolver = std::function<std::string(std::string_view)>;

    /// `program` is the decoder's program file. `raise` is for threads that feed the sound server.
    /// `errors` is the standard error of both processes.
    MediaProcesses(std::string program, Resolver resolve, Raiser raise = nullptr, int errors = kOwnErrors);
    /// What is heard fades out; both processes have ended when it returns.
    ~MediaProcesses() override;
    MediaProcesses(const MediaProcesses&) = delete;
    MediaProcesses& operator=(const MediaProcesses&) = delete;

    /// Starts both, so that the first song starts at once. For a program whose window is up; without it the
    /// first open command starts what it needs.
    void WarmUp();
    /// The number of a channel's process in the system; 0 when none runs.
    pid_t ProcessOf(std::string_view alias);

    ports::MediaReply SendString(std::string_view command) override;
    std::string ErrorString(int error) const override;

private:
    struct Channel {
        Process process;
        std::map<std::string, std::string> songs;  ///< native paths of what is open, by alias
        std::string next;                          ///< native path of what is to follow; empty for nothing
    };
    Channel& ChannelOf(std::string_view alias);
    Channel& ChannelFor(const std::string& alias, const std::string& path);
    ports::MediaReply Follow(const gstreamer::Command& command, std::string_view text);
    bool IsAtEnd(Channel& channel);
    static void DropNext(Channel& channel);
    static void Lose(Channel& channel);
    void Tend(Channel& channel);
    ports::MediaReply Open(const gstreamer::Command& command, std::string_view text);
    std::optional<ports::MediaReply> AskToOpen(Channel& channel, const std::string& alias,
                                               std::string_view text, const std::string& path);
    ports::MediaReply Ask(Channel& channel, std::string_view text);
    int AskAll(const gstreamer::Command& command, std::string_view text);
    static void Close(Channel& channel, const std::string& alias);
    static void CloseAll(Channel& channel);

    Resolver resolve_;
    std::array<Channel, 2> channels_;
};

}  // namespace decoder
