#include "platform/gstreamer/Threads.h"

#include <utility>

namespace gstreamer {
namespace {

constexpr std::chrono::milliseconds kGlance{2};

std::atomic<bool> gave_up = false;

}  // namespace

Threads::~Threads() {
    End(std::chrono::milliseconds::zero());
}

void Threads::Start(std::function<void()> work) {
    const std::lock_guard lock(mutex_);
    if (ended_) return;
    JoinDone();
    auto done = std::make_shared<std::atomic<bool>>(false);
    tasks_.push_back({std::thread([work = std::move(work), done]() mutable {
                          work();
                          work = nullptr;
                          *done = true;
                      }),
                      done});
}

bool Threads::End(std::chrono::milliseconds patience) {
    const auto until = std::chrono::steady_clock::now() + patience;
    std::vector<Task> tasks;
    {
        const std::lock_guard lock(mutex_);
        ended_ = true;
        tasks.swap(tasks_);
    }
    bool all_done = true;
    for (Task& task : tasks) {
        while (!*task.done && std::chrono::steady_clock::now() < until)
            std::this_thread::sleep_for(kGlance);
        if (*task.done) {
            task.thread.join();
        } else {
            task.thread.detach();
            all_done = false;
        }
    }
    if (!all_done) gave_up = true;
    return all_done;
}

bool Threads::HasGivenUp() {
    return gave_up;
}

void Threads::JoinDone() {
    std::erase_if(tasks_, [](Task& task) {
        if (!*task.done) return false;
        task.thread.join();
        return true;
    });
}

}  // namespace gstreamer
