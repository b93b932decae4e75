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
    return verb != Verb::Status && verb != Verb::Put && verb != Verb::Follow;
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
    // What follows a song is opened at once, or nobody wants it.
    const std::unique_ptr<Device> unwanted = command.verb == Verb::Open ? nullptr : std::move(follower_);
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
    if (TakeFollower(path, command.alias)) return kNoError;
    follower_.reset();
    auto device = std::make_unique<Device>(threads_);
    const int error =
        device->Open({.native_path = path, .parent = command.parent, .likely_speed = last_speed_});
    if (error == kNoError) devices_[command.alias] = std::move(device);
    return error;
}

/// What is heard already when it is opened goes on under the alias. The song that it followed, where that is
/// still open, keeps its own.
bool MediaEngine::TakeFollower(const std::string& path, const std::string& alias) {
    if (follower_ != nullptr && follower_->BecomeFollower(path)) {
        devices_[alias] = std::move(follower_);
        return true;
    }
    for (auto& [other, device] : devices_) {
        auto left = device->LeftBy(path);
        if (left == nullptr) continue;
        std::swap(left, device);
        devices_[alias] = std::move(left);
        return true;
    }
    return false;
}

int MediaEngine::Follow(Device& device, const Command& command) {
    const std::string path = command.file.empty() ? std::string() : resolve_(command.file);
    if (path.empty() && !command.file.empty()) return kFileNotFound;
    device.Follow(path);
    return kNoError;
}

void MediaEngine::Close(const std::string& alias) {
    const auto found = devices_.find(alias);
    if (found->second->IsFollowed()) follower_ = std::move(found->second);
    devices_.erase(found);
}

int MediaEngine::CloseAll() {
    devices_.clear();
    follower_.reset();
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
        case Verb::Follow:
            return Follow(device, command);
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
