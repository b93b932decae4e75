// What GStreamer's threads tell the worker of a device.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <utility>

namespace gstreamer {

enum class PipelineEvent { None, Ready, Ended, Broken, LengthChanged, Begun };

/// What GStreamer's threads report, for the worker to take.
class EventQueue final {
public:
    explicit EventQueue(std::function<void()> wake) : wake_(std::move(wake)) {}
    void Add(PipelineEvent event);
    /// As adding Broken, for where an event could not be added.
    void Fail() noexcept;
    void Clear();
    PipelineEvent Take();
    /// Takes Ready or Broken out: 0, or the number of the error.
    int WaitUntilReady(std::chrono::milliseconds timeout);

private:
    std::function<void()> wake_;
    std::mutex mutex_;
    std::condition_variable added_;
    std::deque<PipelineEvent> events_;
    std::atomic<bool> failed_ = false;
};

}  // namespace gstreamer
