// The media engine with a note of every level that went out, and when, on the clock of the recording.
#pragma once

#include <algorithm>
#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "platform/gstreamer/MciCommand.h"
#include "real/sound/Engine.h"
#include "real/sound/PrivateSound.h"

namespace sound {

/// A level told to an alias, 0 when it was closed. Percent; `sample` is the place in the recording at that
/// moment.
struct ToldLevel {
    std::string alias;
    gstreamer::Channel channel = gstreamer::Channel::Both;
    double percent = 0;
    std::size_t sample = 0;
};

class TimedMedia final : public ports::MediaControl {
public:
    TimedMedia(PrivateSound& server, Engine::Resolver resolve)
        : server_(server), engine_(std::move(resolve)) {}

    ports::MediaReply SendString(std::string_view command) override {
        ports::MediaReply reply = engine_.SendString(command);
        gstreamer::Command parsed;
        if (reply.error != 0 || gstreamer::ParseCommand(command, parsed) != 0) return reply;
        commands_.emplace_back(command);
        if (parsed.verb == gstreamer::Verb::Close) parsed.value = 0;
        if (parsed.verb != gstreamer::Verb::SetAudio && parsed.verb != gstreamer::Verb::Close) return reply;
        constexpr double kTenths = 10;
        told_.push_back({parsed.target, parsed.channel, static_cast<double>(parsed.value) / kTenths, Now()});
        return reply;
    }
    std::string ErrorString(int error) const override { return engine_.ErrorString(error); }

    /// The recorder hears in pieces; the piece that came soonest tells how its clock stands to this one's.
    std::size_t Now() {
        const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin_;
        const double samples = passed.count() * kRate;
        ahead_ = std::max(ahead_, static_cast<double>(server_.Heard()) - samples);
        return static_cast<std::size_t>(std::max(samples + ahead_, 0.0));
    }
    const std::vector<ToldLevel>& Told() const { return told_; }
    const std::vector<std::string>& Commands() const { return commands_; }
    void Forget() {
        told_.clear();
        commands_.clear();
    }

private:
    PrivateSound& server_;
    Engine engine_;
    std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
    double ahead_ = 0;
    std::vector<ToldLevel> told_;
    std::vector<std::string> commands_;
};

}  // namespace sound
