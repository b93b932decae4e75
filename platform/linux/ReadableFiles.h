// Tells which files of a folder may be read. Each is a question to the system, so that with very many of them
// a second thread asks about some.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

#include "base/RowTexts.h"
#include "platform/linux/NameSorter.h"

namespace linux {

class ReadableFiles {
public:
    /// The folder is an open one, and stays open meanwhile.
    explicit ReadableFiles(int folder) : folder_(folder) {}
    ~ReadableFiles();
    ReadableFiles(const ReadableFiles&) = delete;
    ReadableFiles& operator=(const ReadableFiles&) = delete;

    void Add(std::string_view native_name);
    /// Hands over the names, as texts, of those that may be read; false when `pace` cancelled it. Once, at
    /// the end.
    bool MoveTo(NameSorter& sorter, Pace& pace);

private:
    struct Batch {
        std::string names;  // each ends with a zero
        std::size_t count = 0;
        base::RowTexts readable;  // in order, once it is done
        bool is_done = false;     // guarded by mutex_
    };

    void Enqueue();
    void Start();
    void Work();
    Batch* Next();
    bool Ask(Batch& batch, const std::function<bool()>& may_go_on);
    void Finish(Batch& batch);
    bool WaitForAll(Pace& pace);
    bool AreAllDone() const;

    const int folder_;
    Batch open_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Batch> batches_;  // guarded by mutex_, but for one that was taken
    std::size_t next_ = 0;       // to be taken; guarded by mutex_
    std::atomic<std::size_t> steps_of_thread_ = 0;
    std::atomic<bool> is_ending_ = false;
    std::thread thread_;
};

}  // namespace linux
