#include "platform/gstreamer/MediaEngine.h"

#include <chrono>
#include <utility>

#include "platform/gstreamer/MciErrors.h"
#include "platform/gstreamer/Pipeline.h"
#include "platform/gstreamer/SpareSink.h"

namespace gstreamer {
namespace {

constexpr std::chrono::seconds kFarewell{1};

// Only what needs no answer and no place of its own can be told to all devices.
bool CanBeForAll(Verb verb) {
    return verb != Verb::Status && verb != Verb::Put;
}

}  // namespace

MediaEngine::MediaEngine(Resolver resolve) : resolve_(std::move(resolve)) {}

MediaEngine::~MediaEngine() {
    CloseAll();
    if (threads_->End(kFarewell)) SpareSink::Release();
}

void MediaEngine::WarmUp() {
    threads_->Start(LoadElements);
}

ports::MediaReply MediaEngine::SendString(std::string_view command) {
    Command parsed;
    ports::MediaReply reply;
    reply.error = ParseCommand(command, parsed);
    if (reply.error == kNoError) reply.error = Run(parsed, reply.text);
    return reply;
}

std::string MediaEngine::ErrorString(int error) const {
    return std::string(ErrorText(error));
}

int MediaEngine::Run(const Command& command, std::string& answer) {
    if (command.verb == Verb::Open) return Open(command);
    if (command.target == "all") return RunOnAll(command);
    const auto found = devices_.find(command.target);
    if (found == devices_.end()) return kNotOpen;
    if (command.verb != Verb::Close) return RunOnDevice(*found->second, command, answer);
    Close(command.target);
    return kNoError;
}

int MediaEngine::Open(const Command& command) {
    if (devices_.contains(command.alias)) return kAliasInUse;
    if (!command.type.empty() && command.type != "MPEGVideo" && command.type != "mpegvideo")
        return kTypeNotInstalled;
    const std::string path = resolve_(command.target);
    if (path.empty()) return kFileNotFound;
    auto device = std::make_unique<Device>(threads_);
    const int error =
        device->Open({.native_path = path, .parent = command.parent, .likely_speed = last_speed_});
    if (error == kNoError) devices_[command.alias] = std::move(device);
    return error;
}

void MediaEngine::Close(const std::string& alias) {
    devices_.erase(alias);
}

int MediaEngine::CloseAll() {
    devices_.clear();
    return kNoError;
}

int MediaEngine::RunOnAll(const Command& command) {
    if (command.verb == Verb::Close) return CloseAll();
    if (!CanBeForAll(command.verb)) return kCannotUseAll;
    int result = kNoError;
    std::string no_answer;
    for (const auto& [alias, device] : devices_) {
        const int error = RunOnDevice(*device, command, no_answer);
        if (error != kNoError) result = result == kNoError ? error : kMultipleErrors;
    }
    return result;
}

int MediaEngine::RunOnDevice(Device& device, const Command& command, std::string& answer) {
    switch (command.verb) {
        case Verb::Play:
            return device.Play(command);
        case Verb::Seek:
            return device.Seek(command);
        case Verb::SetSpeed:
            return SetSpeed(device, command.value);
        case Verb::SetAudio:
            return device.SetLevel(command.channel, command.value);
        case Verb::Pause:
            device.Pause();
            break;
        case Verb::Resume:
            device.Resume();
            break;
        case Verb::Stop:
            device.Stop();
            break;
        case Verb::SetTimeFormat:
            device.SetTimeFormat(command.format);
            break;
        case Verb::Put:
            device.PutPicture(command.place);
            break;
        case Verb::Status:
            answer = device.Status(command);
            break;
        case Verb::Open:
        case Verb::Close:
            break;
    }
    return kNoError;
}

int MediaEngine::SetSpeed(Device& device, std::int64_t speed) {
    const int error = device.SetSpeed(speed);
    if (error == kNoError) last_speed_ = static_cast<int>(speed);
    return error;
}

}  // namespace gstreamer
