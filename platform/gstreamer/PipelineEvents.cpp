#include "platform/gstreamer/PipelineEvents.h"

#include "platform/gstreamer/Guard.h"
#include "platform/gstreamer/MciErrors.h"

namespace gstreamer {

void EventQueue::Add(PipelineEvent event) {
    {
        const std::lock_guard lock(mutex_);
        events_.push_back(event);
    }
    added_.notify_all();
    wake_();
}

void EventQueue::Fail() noexcept {
    failed_ = true;
    Guarded(
        false,
        [this] {
            // Who is about to wait has looked at the flag by now, or has not yet.
            mutex_.lock();
            mutex_.unlock();
            added_.notify_all();
            wake_();
            return true;
        },
        [] {});
}

void EventQueue::Clear() {
    const std::lock_guard lock(mutex_);
    events_.clear();
    failed_ = false;
}

PipelineEvent EventQueue::Take() {
    const std::lock_guard lock(mutex_);
    if (failed_.exchange(false)) return PipelineEvent::Broken;
    if (events_.empty()) return PipelineEvent::None;
    const PipelineEvent event = events_.front();
    events_.pop_front();
    return event;
}

int EventQueue::WaitUntilReady(std::chrono::milliseconds timeout) {
    std::unique_lock lock(mutex_);
    int error = kNotReady;
    const auto decided = [&] {
        if (failed_.exchange(false)) {
            error = kInvalidFile;
            return true;
        }
        for (auto event = events_.begin(); event != events_.end(); ++event) {
            if (*event != PipelineEvent::Ready && *event != PipelineEvent::Broken) continue;
            error = *event == PipelineEvent::Ready ? kNoError : kInvalidFile;
            events_.erase(event);
            return true;
        }
        return false;
    };
    added_.wait_for(lock, timeout, decided);
    return error;
}

}  // namespace gstreamer
