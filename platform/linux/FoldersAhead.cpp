#include "platform/linux/FoldersAhead.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "base/DrivePath.h"

namespace linux {
namespace {

// So few that a walk which is given up has read little in vain.
constexpr std::size_t kMostAhead = 8;
constexpr std::chrono::milliseconds kFresh{1000};
constexpr std::chrono::milliseconds kBetweenQuestions{5};

}  // namespace

FoldersAhead::~FoldersAhead() {
    {
        const std::lock_guard lock(mutex_);
        is_ending_ = true;
        Drop(folders_.size());
    }
    changed_.notify_all();
    if (thread_.joinable()) thread_.join();
}

std::optional<ports::FolderListing> FoldersAhead::List(
    const std::string& native_path, const ports::MayGoOn& may_go_on, const LinkJudge& judge,
    const std::function<bool(const std::string&)>& may_read_ahead) {
    Listing listing;
    if (const SharedFolder folder = Take(native_path)) {
        if (!WaitFor(*folder, may_go_on, judge)) return std::nullopt;
        const std::lock_guard lock(mutex_);
        if (folder->state == State::Read && Clock::now() - folder->when < kFresh)
            listing = std::move(folder->listing);
    }
    if (!listing) listing = ReadFolder(native_path, may_go_on, judge);
    if (listing) Expect(native_path, *listing, may_read_ahead);
    return listing;
}

// The folder, if it was expected; what was expected before it is not wanted any more.
FoldersAhead::SharedFolder FoldersAhead::Take(const std::string& path) {
    const std::lock_guard lock(mutex_);
    const auto found = std::find_if(folders_.begin(), folders_.end(),
                                    [&path](const SharedFolder& one) { return one->path == path; });
    is_walk_ = found != folders_.end();
    if (!is_walk_) {
        Drop(folders_.size());
        return nullptr;
    }
    Drop(static_cast<std::size_t>(found - folders_.begin()));
    SharedFolder folder = std::move(folders_.front());
    folders_.pop_front();
    return folder;
}

// Meanwhile the folders that come next are read here. One that a walk further up is reading is not waited
// for. False when the walk is cancelled.
bool FoldersAhead::WaitFor(const Folder& folder, const ports::MayGoOn& may_go_on, const LinkJudge& judge) {
    std::unique_lock lock(mutex_);
    while (folder.state == State::ReadByThread) {
        if (const SharedFolder next = NextToRead(State::ReadByWalk)) {
            lock.unlock();
            Listing listing = ReadFolder(next->path, may_go_on, judge);
            lock.lock();
            Keep(*next, std::move(listing));
            continue;
        }
        if (changed_.wait_for(lock, kBetweenQuestions) == std::cv_status::no_timeout) continue;
        lock.unlock();
        if (may_go_on && !may_go_on()) return false;
        lock.lock();
    }
    return true;
}

void FoldersAhead::Expect(const std::string& path, const ports::FolderListing& inside,
                          const std::function<bool(const std::string&)>& may_read_ahead) {
    const std::string front = path.ends_with('/') ? path : path + '/';
    std::deque<SharedFolder> expected;
    auto next_link = inside.Links.begin();
    for (const std::string& name : inside.SubFolders) {
        if (next_link != inside.Links.end() && *next_link == name) {
            ++next_link;
            continue;
        }
        std::string below = front + base::TextToBytes(name);
        if (!may_read_ahead(below)) continue;
        expected.push_back(std::make_shared<Folder>());
        expected.back()->path = std::move(below);
    }
    if (expected.empty()) return;
    const std::lock_guard lock(mutex_);
    folders_.insert(folders_.begin(), expected.begin(), expected.end());
    if (is_walk_) Start();
    changed_.notify_all();
}

// Called with the lock held.
void FoldersAhead::Drop(std::size_t count) {
    for (; count > 0; --count) {
        folders_.front()->is_dropped = true;
        folders_.pop_front();
    }
}

// Called with the lock held; the folder is the caller's to read.
FoldersAhead::SharedFolder FoldersAhead::NextToRead(State reader) {
    if (!is_walk_) return nullptr;
    const auto end = folders_.begin() + static_cast<std::ptrdiff_t>(std::min(kMostAhead, folders_.size()));
    const auto next = std::find_if(folders_.begin(), end,
                                   [](const SharedFolder& one) { return one->state == State::Waiting; });
    if (next == end) return nullptr;
    (*next)->state = reader;
    return *next;
}

// Called with the lock held.
void FoldersAhead::Keep(Folder& folder, Listing listing) {
    folder.listing = std::move(listing);
    folder.when = Clock::now();
    folder.state = State::Read;
}

// A system that has no thread left lets the walk read everything itself.
void FoldersAhead::Start() {
    if (thread_.joinable()) return;
    try {
        thread_ = std::thread([this] { Work(); });
    } catch (const std::system_error&) {
        is_walk_ = false;
    }
}

void FoldersAhead::Work() {
    std::unique_lock lock(mutex_);
    while (!is_ending_) {
        const SharedFolder folder = NextToRead(State::ReadByThread);
        if (folder == nullptr) {
            changed_.wait(lock);
            continue;
        }
        lock.unlock();
        // Where a link leads may be asked by the walk alone.
        bool has_link = false;
        Listing listing = ReadFolder(
            folder->path, [this, &folder] { return !is_ending_ && !folder->is_dropped; },
            [&has_link](const std::string&) {
                has_link = true;
                return LinkTo::Nothing;
            });
        lock.lock();
        Keep(*folder, has_link ? std::nullopt : std::move(listing));
        changed_.notify_all();
    }
}

}  // namespace linux
