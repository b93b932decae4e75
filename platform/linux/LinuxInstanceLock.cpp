#include "platform/linux/LinuxInstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "base/DrivePath.h"

namespace linux {
namespace {

std::string NameOfUser() {
    return ".brindlepost-" + std::to_string(::geteuid());
}

// False when the file was replaced between its opening and its locking.
bool IsStillThere(const Descriptor& file, int folder, const std::string& name) {
    struct stat opened{};
    struct stat there{};
    return ::fstat(file.Number(), &opened) == 0 && ::fstatat(folder, name.c_str(), &there, 0) == 0 &&
           opened.st_dev == there.st_dev && opened.st_ino == there.st_ino;
}

// The lock is opened above all other descriptors. The system closes a dying program's from the lowest up, so
// its socket is gone before its lock is.
constexpr int kAboveOthers = 200;

Descriptor OpenLockFile(int folder, const std::string& name) {
    const Descriptor opened(::openat(folder, name.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!opened.IsOpen()) return {};
    return Descriptor(::fcntl(opened.Number(), F_DUPFD_CLOEXEC, kAboveOthers));
}

}  // namespace

LinuxInstanceLock::LinuxInstanceLock(std::string folder, std::string startup_id)
    : folder_path_(std::move(folder)),
      startup_id_(std::move(startup_id)),
      lock_name_(NameOfUser() + ".lock") {}

// The table of descriptors grows with the highest of them and never shrinks again. Where threads share it,
// the system lets all of them come by before the old one goes, which takes 10 ms and more.
void LinuxInstanceLock::MakeRoom() {
    const Descriptor any(::open("/", O_PATH | O_CLOEXEC));
    if (any.IsOpen()) Descriptor(::fcntl(any.Number(), F_DUPFD_CLOEXEC, kAboveOthers)).Close();
}

LinuxInstanceLock::~LinuxInstanceLock() {
    if (lock_.IsOpen()) server_.Close(Place());
}

SocketPlace LinuxInstanceLock::Place() const {
    return {folder_.Number(), NameOfUser() + ".socket"};
}

ports::Instance LinuxInstanceLock::TryBecomeFirst() {
    answer_ = Try();
    return answer_;
}

ports::Instance LinuxInstanceLock::Try() {
    if (lock_.IsOpen()) return ports::Instance::First;
    failure_.clear();
    folder_ = Descriptor(::open(folder_path_.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!folder_.IsOpen()) return Fail("cannot be opened", errno);
    Descriptor lock;
    do {
        lock = OpenLockFile(folder_.Number(), lock_name_);
        if (!lock.IsOpen()) return Fail("cannot be written to", errno);
        if (::flock(lock.Number(), LOCK_EX | LOCK_NB) != 0) {
            return errno == EWOULDBLOCK ? ports::Instance::Second : Fail("has no file locks", errno);
        }
    } while (!IsStillThere(lock, folder_.Number(), lock_name_));
    // Someone removed the lock file under a running instance: it is the first all the same.
    if (IsSomeoneListening(Place())) return ports::Instance::Second;
    lock_ = std::move(lock);
    // Without a socket this is still the one instance; later starts end without handing over.
    server_.Listen(Place());
    return ports::Instance::First;
}

ports::Instance LinuxInstanceLock::Fail(std::string_view what, int error) {
    const std::string shown = base::WithoutStandIns(base::NameToText(folder_path_));
    failure_ =
        "The folder " + shown + " " + std::string(what) + ": " + std::generic_category().message(error) + ".";
    return ports::Instance::Failed;
}

bool LinuxInstanceLock::HandOff(std::string_view text) {
    return folder_.IsOpen() && !lock_.IsOpen() && Deliver(Place(), startup_id_, text);
}

std::optional<ports::OptionAnswer> LinuxInstanceLock::AskFirst(std::string_view option) {
    if (lock_.IsOpen()) return std::nullopt;
    const Descriptor folder(::open(folder_path_.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!folder.IsOpen()) return std::nullopt;
    return AskOption({folder.Number(), Place().name}, option);
}

void LinuxInstanceLock::Serve() {
    // What is not read yet keeps the descriptor readable.
    if (listener_ == nullptr && option_listener_ == nullptr) return;
    server_.Serve({.texts = listener_, .options = option_listener_, .take_id = OnStartupId});
}

}  // namespace linux
