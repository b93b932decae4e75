#include "platform/gstreamer/Threads.h"

#include <cstdio>
#include <exception>
#include <system_error>
#include <utility>

namespace gstreamer {
namespace {

constexpr std::chrono::milliseconds kGlance{2};

std::atomic<bool> gave_up = false;

void Run(const std::function<void()>& work) noexcept {
    try {
        work();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "A thread of the media engine ended early: %s\n", error.what());
    }
}

}  // namespace

Threads::~Threads() {
    End(std::chrono::milliseconds::zero());
}

bool Threads::Start(std::function<void()> work) {
    const std::lock_guard lock(mutex_);
    if (ended_) return false;
    JoinDone();
    auto done = std::make_shared<std::atomic<bool>>(false);
    Task& task = tasks_.emplace_back();
    task.done = done;
    try {
        task.thread = std::thread([work = std::move(work), done]() mutable {
            Run(work);
            work = nullptr;
            *done = true;
        });
    } catch (const std::system_error&) {
        tasks_.pop_back();
        return false;
    }
    return true;
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
