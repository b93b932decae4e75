#include "fakes/FakeMediaControl.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/Number.h"
#include "base/Text.h"

namespace fakes {
namespace {

constexpr int kUnrecognisedKeyword = 259;
constexpr int kUnrecognisedCommand = 261;
constexpr int kNotOpen = 263;
constexpr int kNoCommand = 267;
constexpr int kBadInteger = 270;
constexpr int kMissingParameter = 273;
constexpr int kFileNotFound = 275;
constexpr int kOutOfRange = 282;
constexpr int kCannotUseAll = 279;
constexpr int kAliasInUse = 289;
constexpr int kNameRequired = 292;
constexpr int kBadTimeFormat = 293;
constexpr int kInvalidFile = 296;
constexpr double kFastest = 100'000;

std::vector<std::string> WordsOf(std::string_view command) {
    std::vector<std::string> words;
    for (const std::string& word : base::Split(command, " ")) {
        if (!word.empty()) words.push_back(word);
    }
    return words;
}

std::string Lower(const std::vector<std::string>& words, std::size_t index) {
    return index < words.size() ? base::LCase(words[index]) : std::string();
}

std::size_t Find(const std::vector<std::string>& words, std::string_view keyword) {
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (base::LCase(words[i]) == keyword) return i;
    }
    return words.size();
}

}  // namespace

ports::MediaReply FakeMediaControl::SendString(std::string_view command) {
    Commands.emplace_back(command);
    ports::MediaReply reply;
    if (!fail_beginning_.empty() && base::StartsWith(command, fail_beginning_)) {
        fail_beginning_.clear();
        reply.error = fail_error_;
        return reply;
    }
    reply.error = Run(WordsOf(command), reply.text);
    return reply;
}

std::string FakeMediaControl::ErrorString(int error) const {
    static const std::map<int, std::string> texts = {
        {kUnrecognisedKeyword, "The driver cannot recognize the specified command parameter."},
        {kUnrecognisedCommand, "The driver cannot recognize the specified command."},
        {kNotOpen, "The specified device is not open or is not recognized by MCI."},
        {kNoCommand, "No command was specified."},
        {kBadInteger, "The specified integer is invalid for this command."},
        {kMissingParameter, "The specified command requires a parameter. Please supply one."},
        {kFileNotFound, "Cannot find the specified file. Make sure the path and filename are correct."},
        {kOutOfRange, "The specified parameter is out of range for the specified command."},
        {kCannotUseAll, "Cannot use 'all' as the device name with the specified command."},
        {kNameRequired,
         "The specified command requires an alias, file, driver, or device name. Please supply one."},
        {kBadTimeFormat, "The specified value for the time format is invalid."},
        {kInvalidFile,
         "The specified file cannot be played. The file may be corrupt, or not in the correct format."},
        {kAliasInUse, "The specified alias is already being used in this application. Use a unique alias."},
    };
    const auto found = texts.find(error);
    return found == texts.end() ? std::string() : found->second;
}

int FakeMediaControl::Run(const Words& words, std::string& answer) {
    const std::string verb = Lower(words, 0);
    if (verb.empty()) return kNoCommand;
    if (verb == "open") return Open(words);
    if (verb == "close") return Close(words);
    Device* const device = words.size() > 1 ? Find(words[1]) : nullptr;
    if (verb == "status" && Lower(words, 1) == "all") return kCannotUseAll;
    if (device == nullptr) return kNotOpen;
    if (verb == "status") return Status(*device, words, answer);
    if (verb == "set") return Set(*device, words);
    if (verb == "setaudio") return SetAudio(*device, words);
    if (verb == "play") return Play(*device, words);
    if (verb == "seek") return Seek(*device, words);
    if (verb == "follow") return Follow(*device, words);
    if (verb == "put") return 0;
    if (verb == "pause") {
        if (device->mode == "playing") device->mode = "paused";
        return 0;
    }
    if (verb == "resume") {
        if (device->mode == "paused") device->mode = "playing";
        return 0;
    }
    if (verb == "stop") {
        device->mode = "stopped";
        return 0;
    }
    return kUnrecognisedCommand;
}

int FakeMediaControl::Open(const Words& words) {
    const std::size_t type = fakes::Find(words, "type");
    const std::size_t alias = fakes::Find(words, "alias");
    if (type == 1) return kNameRequired;
    if (type < 2 || alias + 1 >= words.size()) return kMissingParameter;
    // A path is one word.
    if (type != 2) return kUnrecognisedKeyword;
    if (Find(words[alias + 1]) != nullptr) return kAliasInUse;
    const std::string& path = words[1];
    const auto file = files_.find(path);
    if (file != files_.end() && file->second.milliseconds < 0) return kInvalidFile;
    if (file == files_.end() && !AnyFile) return kFileNotFound;
    Device device;
    device.path = path;
    device.media = file != files_.end() ? file->second : AnyMedia;
    device.end_ms = static_cast<double>(device.media.milliseconds);
    devices_.emplace(base::LCase(words[alias + 1]), device);
    if (WhenOpened) WhenOpened();
    return 0;
}

int FakeMediaControl::Close(const Words& words) {
    if (Lower(words, 1) == "all") {
        devices_.clear();
        return 0;
    }
    return words.size() > 1 && devices_.erase(base::LCase(words[1])) > 0 ? 0 : kNotOpen;
}

int FakeMediaControl::Status(Device& device, const Words& words, std::string& answer) {
    const std::string what = Lower(words, 2);
    if (what == "mode") answer = device.mode;
    if (what == "length") answer = base::ToText(FromMs(device, ToldLength(device)));
    if (what == "position") answer = base::ToText(FromMs(device, device.position_ms));
    if (what == "volume") answer = base::ToText((device.left + device.right) / 2);
    if (Lower(words, 3) == "volume" && what == "left") answer = base::ToText(device.left);
    if (Lower(words, 3) == "volume" && what == "right") answer = base::ToText(device.right);
    return answer.empty() ? kUnrecognisedKeyword : 0;
}

int FakeMediaControl::Set(Device& device, const Words& words) {
    if (Lower(words, 2) == "time" && Lower(words, 3) == "format") {
        const std::string format = Lower(words, 4);
        if (format != "frames" && format != "ms" && format != "milliseconds") return kBadTimeFormat;
        device.in_milliseconds = format != "frames";
        return 0;
    }
    if (Lower(words, 2) != "speed") return kUnrecognisedKeyword;
    const auto speed = base::ToNumber(words.size() > 3 ? words[3] : "");
    if (!speed) return kBadInteger;
    if (*speed < 1 || *speed > kFastest) return kOutOfRange;
    device.speed = static_cast<int>(*speed);
    return 0;
}

int FakeMediaControl::SetAudio(Device& device, const Words& words) {
    const std::string side = Lower(words, 2);
    const std::size_t to = fakes::Find(words, "to");
    const auto level = base::ToNumber(to + 1 < words.size() ? words[to + 1] : "");
    if (!level) return kBadInteger;
    if (*level < 0 || *level > 1000) return kOutOfRange;
    if (side != "right") device.left = static_cast<int>(*level);
    if (side != "left") device.right = static_cast<int>(*level);
    return 0;
}

int FakeMediaControl::Play(Device& device, const Words& words) {
    double from = device.position_ms;
    double to = static_cast<double>(device.media.milliseconds);
    for (const auto& [keyword, place] : {std::pair{"from", &from}, std::pair{"to", &to}}) {
        const std::size_t at = fakes::Find(words, keyword);
        if (at == words.size()) continue;
        if (const int error = ReadPlace(device, at + 1 < words.size() ? words[at + 1] : "", *place))
            return error;
    }
    if (from > to) return kOutOfRange;
    device.position_ms = from;
    device.at_end_ms = 0;
    device.end_ms = device.media.tells_length ? to : static_cast<double>(device.media.milliseconds);
    device.mode = "playing";
    return 0;
}

int FakeMediaControl::Seek(Device& device, const Words& words) {
    const std::size_t to = fakes::Find(words, "to");
    if (to + 1 >= words.size()) return kMissingParameter;
    const std::string target = base::LCase(words[to + 1]);
    double place = target == "end" ? ToldLength(device) : 0;
    if (target != "start" && target != "end") {
        if (const int error = ReadPlace(device, target, place)) return error;
    }
    device.position_ms = place;
    device.mode = "stopped";
    return 0;
}

// Opening takes no time here, so there is nothing to hear of it.
int FakeMediaControl::Follow(Device& device, const Words& words) {
    if (words.size() > 2 && Lower(words, 2) != "by") return kUnrecognisedKeyword;
    if (words.size() == 3) return kMissingParameter;
    device.next = words.size() > 3 ? words[3] : std::string();
    return 0;
}

double FakeMediaControl::ToldLength(const Device& device) {
    return device.media.tells_length ? static_cast<double>(device.media.milliseconds) : 0;
}

int FakeMediaControl::ReadPlace(const Device& device, const std::string& word, double& milliseconds) {
    const double length = ToldLength(device);
    const auto place = base::ToNumber(word);
    if (!place) return word.empty() ? kMissingParameter : kBadInteger;
    if (*place < 0 || *place > static_cast<double>(FromMs(device, length))) return kOutOfRange;
    // The last frame may be a broken one.
    milliseconds = std::min(ToMs(device, *place), length);
    return 0;
}

void FakeMediaControl::AddFile(std::string_view path, FakeMedia media) {
    files_[std::string(path)] = media;
}

void FakeMediaControl::Advance(int milliseconds) {
    for (auto& [alias, device] : devices_) {
        if (device.mode != "playing") continue;
        device.position_ms += milliseconds * device.speed / 1000.0;
        if (device.position_ms < device.end_ms) continue;
        device.position_ms = device.end_ms;
        device.at_end_ms += milliseconds;
        if (device.at_end_ms <= SaysPlayingAtEnd) continue;
        device.mode = "stopped";
        device.media.tells_length = true;
    }
}

void FakeMediaControl::TellLength(std::string_view alias) {
    if (Device* device = Find(alias)) device->media.tells_length = true;
}

void FakeMediaControl::FailNext(std::string_view beginning, int error) {
    fail_beginning_ = beginning;
    fail_error_ = error;
}

FakeMediaControl::Device* FakeMediaControl::Find(std::string_view alias) {
    const auto found = devices_.find(base::LCase(alias));
    return found == devices_.end() ? nullptr : &found->second;
}

const FakeMediaControl::Device* FakeMediaControl::Find(std::string_view alias) const {
    const auto found = devices_.find(base::LCase(alias));
    return found == devices_.end() ? nullptr : &found->second;
}

double FakeMediaControl::ToMs(const Device& device, double value) {
    return device.in_milliseconds ? value : value * 1000.0 / device.media.frames_per_second;
}

std::int64_t FakeMediaControl::FromMs(const Device& device, double milliseconds) {
    const double value =
        device.in_milliseconds ? milliseconds : milliseconds * device.media.frames_per_second / 1000.0;
    return std::llround(value);
}

bool FakeMediaControl::IsOpen(std::string_view alias) const {
    return Find(alias) != nullptr;
}

std::string FakeMediaControl::Mode(std::string_view alias) const {
    const Device* const device = Find(alias);
    return device != nullptr ? device->mode : std::string();
}

std::string FakeMediaControl::NextOf(std::string_view alias) const {
    const Device* const device = Find(alias);
    return device != nullptr ? device->next : std::string();
}

std::string FakeMediaControl::PathOf(std::string_view alias) const {
    const Device* const device = Find(alias);
    return device != nullptr ? device->path : std::string();
}

int FakeMediaControl::Left(std::string_view alias) const {
    const Device* const device = Find(alias);
    return device != nullptr ? device->left : -1;
}

int FakeMediaControl::Right(std::string_view alias) const {
    const Device* const device = Find(alias);
    return device != nullptr ? device->right : -1;
}

int FakeMediaControl::Speed(std::string_view alias) const {
    const Device* const device = Find(alias);
    return device != nullptr ? device->speed : -1;
}

void FakeMediaControl::SetFrame(std::string_view alias, std::int64_t frame) {
    if (Device* const device = Find(alias)) {
        device->position_ms = static_cast<double>(frame) * 1000.0 / device->media.frames_per_second;
    }
}

std::int64_t FakeMediaControl::Frame(std::string_view alias) const {
    const Device* const device = Find(alias);
    if (device == nullptr) return -1;
    return std::llround(device->position_ms * device->media.frames_per_second / 1000.0);
}

std::vector<std::string> FakeMediaControl::NewCommands() {
    std::vector<std::string> commands(Commands.begin() + static_cast<std::ptrdiff_t>(told_), Commands.end());
    told_ = Commands.size();
    return commands;
}

}  // namespace fakes
