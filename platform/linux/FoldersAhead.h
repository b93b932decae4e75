// Reads the folders that a walk asks for next on a thread of its own, while the walk looks at the last one.
//
// A walk asks for the sub folders of a folder one after another, and for what is below one before the next.
// The thread reads a few folders ahead in that order; what is not read yet, the walk reads itself. A listing
// that was read ahead is a moment old: one that is older than that, or that met a link, is read again.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "platform/linux/FolderReader.h"
#include "ports/Files.h"

namespace linux {

class FoldersAhead {
public:
    FoldersAhead() = default;
    ~FoldersAhead();
    FoldersAhead(const FoldersAhead&) = delete;
    FoldersAhead& operator=(const FoldersAhead&) = delete;

    /// As ReadFolder. Of the sub folders only those that `may_read_ahead` allows are read ahead, and those
    /// that are links never.
    std::optional<ports::FolderListing> List(const std::string& native_path, const ports::MayGoOn& may_go_on,
                                             const LinkJudge& judge,
                                             const std::function<bool(const std::string&)>& may_read_ahead);

private:
    using Clock = std::chrono::steady_clock;
    using Listing = std::optional<ports::FolderListing>;

    enum class State { Waiting, ReadByThread, ReadByWalk, Read };
    struct Folder {
        std::string path;
        State state = State::Waiting;
        Listing listing;  // nothing where the walk has to read the folder itself
        Clock::time_point when;
        std::atomic<bool> is_dropped = false;  // nobody will ask for it
    };
    using SharedFolder = std::shared_ptr<Folder>;

    SharedFolder Take(const std::string& path);
    bool WaitFor(const Folder& folder, const ports::MayGoOn& may_go_on, const LinkJudge& judge);
    void Expect(const std::string& path, const ports::FolderListing& inside,
                const std::function<bool(const std::string&)>& may_read_ahead);
    void Drop(std::size_t count);
    SharedFolder NextToRead(State reader);
    void Keep(Folder& folder, Listing listing);
    void Start();
    void Work();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<SharedFolder> folders_;  // in the order in which they will be asked for; guarded by mutex_
    bool is_walk_ = false;              // folders are asked for in that order; guarded by mutex_
    std::atomic<bool> is_ending_ = false;
    std::thread thread_;
};

}  // namespace linux
