// The threads of one engine. None is left to itself: each is joined once its work is done, or told of when
// the engine's patience ends before it.
#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace gstreamer {

class Threads final {
public:
    Threads() = default;
    /// Joins as End does, without patience.
    ~Threads();
    Threads(const Threads&) = delete;
    Threads& operator=(const Threads&) = delete;

    /// Runs `work` on a thread of its own; called from any thread. False after End, and when the system has
    /// no thread left. What the work throws ends the work and no more; it is reported on the standard error.
    bool Start(std::function<void()> work);
    /// Waits until all work is done, `patience` at most. False when a thread still works then, as one that
    /// waits for a frozen sound server does: it is given up, and HasGivenUp tells so.
    bool End(std::chrono::milliseconds patience);

    /// A thread of this process was given up. It may be anywhere in a library, so the process has to end
    /// without running exit handlers beside it.
    static bool HasGivenUp();

private:
    struct Task {
        std::thread thread;
        std::shared_ptr<std::atomic<bool>> done;
    };
    void JoinDone();

    std::mutex mutex_;
    std::vector<Task> tasks_;  // guarded by mutex_
    bool ended_ = false;       // guarded by mutex_
};

}  // namespace gstreamer
