#include "platform/linux/ReadableFiles.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

#include "base/DrivePath.h"

namespace linux {
namespace {

constexpr std::size_t kBatch = 1024;
constexpr std::chrono::milliseconds kBetweenQuestions{5};

}  // namespace

ReadableFiles::~ReadableFiles() {
    {
        const std::lock_guard lock(mutex_);
        is_ending_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) thread_.join();
}

void ReadableFiles::Add(std::string_view native_name) {
    open_.names.append(native_name).push_back('\0');
    if (++open_.count < kBatch) return;
    Enqueue();
    Start();
}

bool ReadableFiles::MoveTo(NameSorter& sorter, Pace& pace) {
    Enqueue();
    while (Batch* const batch = Next()) {
        if (!Ask(*batch, [&pace] { return pace.Step(); })) return false;
        Finish(*batch);
    }
    if (!WaitForAll(pace)) return false;
    for (Batch& batch : batches_)
        sorter.AddRun(std::move(batch.readable));
    return true;
}

void ReadableFiles::Enqueue() {
    {
        const std::lock_guard lock(mutex_);
        batches_.push_back(std::exchange(open_, {}));
    }
    changed_.notify_all();
}

// A system that has no thread left lets the caller ask about everything.
void ReadableFiles::Start() {
    if (thread_.joinable()) return;
    try {
        thread_ = std::thread([this] { Work(); });
    } catch (const std::system_error&) {
        return;
    }
}

void ReadableFiles::Work() {
    while (!is_ending_) {
        if (Batch* const batch = Next()) {
            const auto may_go_on = [this] {
                ++steps_of_thread_;
                return !is_ending_;
            };
            if (Ask(*batch, may_go_on)) Finish(*batch);
            continue;
        }
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return is_ending_ || next_ < batches_.size(); });
    }
}

ReadableFiles::Batch* ReadableFiles::Next() {
    const std::lock_guard lock(mutex_);
    return next_ < batches_.size() ? &batches_[next_++] : nullptr;
}

// One that takes long is given up between two files.
bool ReadableFiles::Ask(Batch& batch, const std::function<bool()>& may_go_on) {
    for (std::size_t at = 0; at < batch.names.size();) {
        if (!may_go_on()) return false;
        const char* const name = batch.names.data() + at;
        const std::string_view text(name);
        if (::faccessat(folder_, name, R_OK, AT_EACCESS) == 0)
            batch.readable.PushBack(base::NameToText(text));
        at += text.size() + 1;
    }
    batch.names = {};
    batch.readable.Sort();
    return true;
}

void ReadableFiles::Finish(Batch& batch) {
    {
        const std::lock_guard lock(mutex_);
        batch.is_done = true;
    }
    changed_.notify_all();
}

// Nothing is said to go on while the system does not answer the thread.
bool ReadableFiles::WaitForAll(Pace& pace) {
    std::size_t steps = 0;
    std::unique_lock lock(mutex_);
    while (!changed_.wait_for(lock, kBetweenQuestions, [this] { return AreAllDone(); })) {
        const std::size_t now = steps_of_thread_;
        if (std::exchange(steps, now) == now) continue;
        lock.unlock();
        if (!pace.MayGoOn()) return false;
        lock.lock();
    }
    return true;
}

bool ReadableFiles::AreAllDone() const {
    return std::all_of(batches_.begin(), batches_.end(), [](const Batch& batch) { return batch.is_done; });
}

}  // namespace linux
