// The media control interface on GStreamer.
//
// It answers the whole command set for any alias. One frame is one picture of a video, or one millisecond of
// sound. Opening waits for the file, 5 seconds at most; no other command waits for a disk, a sound server or
// a screen.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/gstreamer/Device.h"
#include "platform/gstreamer/Threads.h"
#include "ports/MediaControl.h"

namespace gstreamer {

class MediaEngine final : public ports::MediaControl {
public:
    /// `resolve` gives the native path of a file name as commands have it; empty when it names nothing.
    using Resolver = std::function<std::string(std::string_view)>;

    explicit MediaEngine(Resolver resolve);
    /// Closes everything and joins its threads, waiting a second at most; `Threads::HasGivenUp` tells whether
    /// that was enough.
    ~MediaEngine() override;
    MediaEngine(const MediaEngine&) = delete;
    MediaEngine& operator=(const MediaEngine&) = delete;

    /// Loads what the first song needs on a thread of its own, so that it starts at once. For a program whose
    /// window is up; without it the first open command does the loading.
    void WarmUp();

    ports::MediaReply SendString(std::string_view command) override;
    std::string ErrorString(int error) const override;

private:
    int Run(const Command& command, std::string& answer);
    int Open(const Command& command);
    int CloseAll();
    int RunOnAll(const Command& command);
    int RunOnDevice(Device& device, const Command& command, std::string& answer);
    int SetSpeed(Device& device, std::int64_t speed);
    bool TakeFollower(const std::string& path, const std::string& alias);
    int Follow(Device& device, const Command& command);
    void Close(const std::string& alias);

    Resolver resolve_;
    std::map<std::string, std::unique_ptr<Device>> devices_;
    std::unique_ptr<Device> follower_;  // of a song that was just closed
    int last_speed_ = 1000;             // a player tells each song the same
    std::shared_ptr<Threads> threads_ = std::make_shared<Threads>();
};

}  // namespace gstreamer
