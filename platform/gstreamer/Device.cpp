#include "platform/gstreamer/Device.h"

#include <algorithm>
#include <utility>

#include "base/Number.h"
#include "platform/gstreamer/DeviceShare.h"
#include "platform/gstreamer/MciErrors.h"
#include "platform/gstreamer/Threads.h"
#include "platform/gstreamer/Worker.h"

namespace gstreamer {
namespace {

constexpr std::chrono::seconds kOpenTimeout{5};
constexpr double kNanosecondsPerSecond = 1e9;
constexpr double kMillisecondsPerSecond = 1000;
constexpr int kNormalSpeed = 1000;
// How old a place may be before the worker is asked for a new one, and how far it is carried on without.
constexpr std::chrono::milliseconds kFreshPlace{200};
constexpr std::chrono::milliseconds kStalePlace{1500};

std::string_view ModeWord(Mode mode) {
    switch (mode) {
        case Mode::Playing:
            return "playing";
        case Mode::Paused:
            return "paused";
        case Mode::Stopped:
            break;
    }
    return "stopped";
}

}  // namespace

Device::Device(std::shared_ptr<Threads> threads) : share_(std::make_shared<DeviceShare>()) {
    share_->threads = std::move(threads);
}

Device::~Device() {
    const std::lock_guard lock(share_->mutex);
    share_->closing = true;
    share_->changed.notify_all();
}

int Device::Open(const OpenRequest& request) {
    std::unique_lock lock(share_->mutex);
    share_->request = request;
    if (!share_->threads->Start([share = share_] { RunWorker(share); })) return kHardware;
    share_->opened.wait_for(lock, kOpenTimeout, [this] { return share_->open_result.has_value(); });
    return share_->open_result.value_or(kNotReady);
}

int Device::Play(const Command& command) {
    const std::lock_guard lock(share_->mutex);
    const std::int64_t length = share_->facts.length;
    std::int64_t from = Position();
    std::int64_t to = length;
    if (command.from) {
        if (const int error = ReadPlace(*command.from, from)) return error;
    }
    if (command.to) {
        if (const int error = ReadPlace(*command.to, to)) return error;
    }
    if (from > to) return kOutOfRange;
    // The length as it is told is rounded; played to there, nothing of the end is cut.
    const bool to_end = to >= length || (command.to && *command.to >= FromNanoseconds(length));
    const std::int64_t stop = to_end ? -1 : to;
    const bool same_place = !command.from && stop == share_->wish.stop;
    share_->wish.stop = stop;
    if (!same_place && (from != Position() || stop >= 0)) JumpTo(from);
    share_->wish.playing = true;
    share_->mode = Mode::Playing;
    share_->changed.notify_all();
    return kNoError;
}

int Device::Seek(const Command& command) {
    const std::lock_guard lock(share_->mutex);
    std::int64_t to = command.seek == SeekTarget::End ? share_->facts.length : 0;
    if (command.to) {
        if (const int error = ReadPlace(*command.to, to)) return error;
    }
    share_->wish.stop = -1;
    share_->wish.playing = false;
    share_->mode = Mode::Stopped;
    JumpTo(to);
    return kNoError;
}

void Device::Pause() {
    const std::lock_guard lock(share_->mutex);
    if (share_->mode != Mode::Playing) return;
    share_->mode = Mode::Paused;
    share_->wish.playing = false;
    share_->changed.notify_all();
}

void Device::Resume() {
    const std::lock_guard lock(share_->mutex);
    if (share_->mode != Mode::Paused) return;
    share_->mode = Mode::Playing;
    share_->wish.playing = true;
    share_->changed.notify_all();
}

void Device::Stop() {
    const std::lock_guard lock(share_->mutex);
    share_->follower.refused = true;
    share_->mode = Mode::Stopped;
    share_->wish.playing = false;
    share_->changed.notify_all();
}

int Device::SetSpeed(std::int64_t speed) {
    constexpr std::int64_t kFastest = 100'000;
    if (speed < 1 || speed > kFastest) return kOutOfRange;
    const std::lock_guard lock(share_->mutex);
    share_->wish.speed = static_cast<int>(speed);
    share_->wish.speed_told = true;
    share_->changed.notify_all();
    return kNoError;
}

int Device::SetLevel(Channel channel, std::int64_t level) {
    if (level < 0 || level > Gain::kFull) return kOutOfRange;
    const std::lock_guard lock(share_->mutex);
    share_->levels_open = false;
    if (channel != Channel::Right) share_->gain->SetLeft(static_cast<int>(level));
    if (channel != Channel::Left) share_->gain->SetRight(static_cast<int>(level));
    return kNoError;
}

void Device::PutPicture(const std::array<int, 4>& place) {
    const std::lock_guard lock(share_->mutex);
    share_->wish.place = place;
    ++share_->wish.put;
    share_->changed.notify_all();
}

void Device::Follow(const std::string& native_path) {
    const std::lock_guard lock(share_->mutex);
    share_->wish.next_path = native_path;
    ++share_->wish.next;
    share_->changed.notify_all();
}

bool Device::IsFollowed() const {
    const std::lock_guard lock(share_->mutex);
    return !share_->follower.path.empty();
}

bool Device::BecomeFollower(const std::string& native_path) {
    const std::lock_guard lock(share_->mutex);
    DeviceShare& share = *share_;
    if (share.follower.path != native_path || share.follower.refused || native_path.empty()) return false;
    share.request.native_path = native_path;
    share.facts = share.follower.facts;
    share.follower = {};
    share.follower.taken = true;
    share.mode = Mode::Stopped;
    Wish wish;
    wish.jump = share.wish.jump;
    wish.put = share.wish.put;
    wish.next = share.wish.next;
    share.wish = wish;
    share.anchor = {};
    share.last_told = 0;
    share.levels_open = true;
    format_ = TimeFormat::Frames;
    share.changed.notify_all();
    return true;
}

std::unique_ptr<Device> Device::LeftBy(const std::string& native_path) {
    {
        const std::lock_guard lock(share_->mutex);
        if (native_path.empty() || share_->follower.path != native_path) return nullptr;
    }
    auto left = std::make_unique<Device>(share_->threads);
    left->StayAtEnd(*this);
    if (BecomeFollower(native_path)) return left;
    return nullptr;
}

/// Opens what `followed` had open, in its own time.
void Device::StayAtEnd(const Device& followed) {
    const std::scoped_lock lock(share_->mutex, followed.share_->mutex);
    share_->request = followed.share_->request;
    share_->facts = followed.share_->facts;
    format_ = followed.format_;
    JumpTo(share_->facts.length);
    share_->threads->Start([share = share_] { RunWorker(share); });
}

std::string Device::Status(const Command& command) {
    const std::lock_guard lock(share_->mutex);
    switch (command.item) {
        case Item::Mode:
            return std::string(ModeWord(share_->mode));
        case Item::Length:
            return base::ToText(FromNanoseconds(share_->facts.length));
        case Item::Position:
            return base::ToText(FromNanoseconds(Position()));
        case Item::Volume:
            return base::ToText(Level(command.channel));
        case Item::Speed:
            return base::ToText(share_->wish.speed);
        case Item::TimeFormat:
            break;
    }
    return format_ == TimeFormat::Frames ? "frames" : "milliseconds";
}

double Device::UnitsPerSecond() const {
    return format_ == TimeFormat::Frames ? share_->facts.frames_per_second : kMillisecondsPerSecond;
}

std::int64_t Device::ToNanoseconds(std::int64_t place) const {
    return base::RoundHalfEven(static_cast<double>(place) * kNanosecondsPerSecond / UnitsPerSecond());
}

std::int64_t Device::FromNanoseconds(std::int64_t time) const {
    return base::RoundHalfEven(static_cast<double>(time) * UnitsPerSecond() / kNanosecondsPerSecond);
}

int Device::ReadPlace(std::int64_t place, std::int64_t& time) const {
    if (place < 0 || place > FromNanoseconds(share_->facts.length)) return kOutOfRange;
    // The last unit of a file may be a broken one.
    time = std::min(ToNanoseconds(place), share_->facts.length);
    return kNoError;
}

void Device::JumpTo(std::int64_t time) {
    ++share_->wish.jump;
    share_->wish.jump_to = share_->last_told = time;
    share_->changed.notify_all();
}

std::int64_t Device::Position() {
    DeviceShare& share = *share_;
    if (share.jump_done != share.wish.jump) return share.wish.jump_to;
    std::int64_t position = share.anchor.position;
    if (share.anchor.running && share.mode == Mode::Playing) {
        const auto age = Anchor::Clock::now() - share.anchor.at;
        const auto carried = std::min<Anchor::Clock::duration>(age, kStalePlace);
        position +=
            static_cast<std::int64_t>(static_cast<double>(carried.count()) * share.wish.speed / kNormalSpeed);
        share.place_wanted = share.place_wanted || age > kFreshPlace;
        if (share.place_wanted) share.changed.notify_all();
    }
    const std::int64_t end = share.wish.stop < 0 ? share.facts.length : share.wish.stop;
    position = std::max<std::int64_t>({position, share.last_told, 0});
    // A file that did not tell its length ends when it ends.
    if (end > 0) position = std::min(position, end);
    share.last_told = position;
    return position;
}

int Device::Level(Channel channel) const {
    if (share_->levels_open) return Gain::kFull;
    const Gain& gain = *share_->gain;
    if (channel == Channel::Left) return gain.Left();
    if (channel == Channel::Right) return gain.Right();
    return (gain.Left() + gain.Right()) / 2;
}

}  // namespace gstreamer
