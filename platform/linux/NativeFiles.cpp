#include "platform/linux/NativeFiles.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>

#include "platform/linux/Descriptor.h"

namespace linux {
namespace {

ports::FileResult ResultOf(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return ports::FileResult::Missing;
        case EEXIST:
            return ports::FileResult::AlreadyThere;
        case EACCES:
        case EPERM:
        case EROFS:
            return ports::FileResult::Refused;
        case ENOSPC:
        case EDQUOT:
            return ports::FileResult::DiskFull;
        default:
            return ports::FileResult::Failed;
    }
}

// A pipe or a device would make an opener wait; nothing here waits.
Descriptor OpenAtOnce(const std::string& native, int flags) {
    return Descriptor(::open(native.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666));
}

bool IsRegular(const Descriptor& file) {
    struct stat status{};
    return ::fstat(file.Number(), &status) == 0 && S_ISREG(status.st_mode);
}

bool WriteAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(file.Number(), bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

// A link stays a link: what it leads to is written. One that leads nowhere is replaced.
std::string BehindLinks(const std::string& native) {
    struct stat status{};
    if (native.empty() || ::lstat(native.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return native;
    std::array<char, PATH_MAX> buffer{};
    return ::realpath(native.c_str(), buffer.data()) != nullptr ? std::string(buffer.data()) : native;
}

constexpr std::string_view kBeside = ".brindlepost-";

}  // namespace

std::string_view LastName(std::string_view native) {
    while (native.size() > 1 && native.back() == '/')
        native.remove_suffix(1);
    return native.substr(native.rfind('/') + 1);
}

std::optional<int> AttributesAt(const std::string& native) {
    struct stat status{};
    if (native.empty() || ::stat(native.c_str(), &status) != 0) return std::nullopt;
    const bool is_folder = S_ISDIR(status.st_mode);
    if (!is_folder && !S_ISREG(status.st_mode)) return std::nullopt;
    const bool is_read_only = (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
    return (is_folder ? ports::kFolder : 0) | (is_read_only ? ports::kReadOnly : 0) |
           (LastName(native).starts_with('.') ? ports::kHidden : 0);
}

ports::FileResult MakeFolderAt(const std::string& native) {
    if (native.empty()) return ports::FileResult::Missing;
    return ::mkdir(native.c_str(), 0777) == 0 ? ports::FileResult::Done : ResultOf(errno);
}

ports::FileResult DeleteFileAt(const std::string& native) {
    struct stat status{};
    if (native.empty() || ::lstat(native.c_str(), &status) != 0) return ports::FileResult::Missing;
    if (S_ISDIR(status.st_mode)) return ports::FileResult::Failed;
    if (!S_ISREG(status.st_mode) && !S_ISLNK(status.st_mode)) return ports::FileResult::Missing;
    return ::unlink(native.c_str()) == 0 ? ports::FileResult::Done : ResultOf(errno);
}

std::optional<std::string> ReadTextAt(const std::string& native, std::size_t limit,
                                      const ports::MayGoOn& may_go_on) {
    const Descriptor file = OpenAtOnce(native, O_RDONLY);
    if (!file.IsOpen() || !IsRegular(file)) return std::nullopt;
    std::string text;
    std::array<char, 65536> buffer{};
    while (text.size() < limit) {
        if (may_go_on && !may_go_on()) return std::nullopt;
        const std::size_t wanted = std::min(buffer.size(), limit - text.size());
        const ssize_t count = ::read(file.Number(), buffer.data(), wanted);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return text;
}

// The new text is complete on the disk, in a hidden file beside the old one, before it takes its place.
ports::FileResult WriteTextAt(const std::string& path, std::string_view bytes) {
    const std::string native = BehindLinks(path);
    if (native.empty()) return ports::FileResult::Missing;
    struct stat old{};
    const bool is_there = ::stat(native.c_str(), &old) == 0;
    if (is_there && !S_ISREG(old.st_mode)) return ports::FileResult::Failed;
    const std::string beside =
        native.substr(0, native.rfind('/') + 1) + std::string(kBeside) + std::to_string(::getpid());
    ::unlink(beside.c_str());
    Descriptor file(::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666));
    if (!file.IsOpen()) return ResultOf(errno);
    const bool is_written = (!is_there || ::fchmod(file.Number(), old.st_mode & 07777U) == 0) &&
                            WriteAll(file, bytes) && ::fsync(file.Number()) == 0 && file.Close() &&
                            ::rename(beside.c_str(), native.c_str()) == 0;
    if (is_written) return ports::FileResult::Done;
    const ports::FileResult result = ResultOf(errno);
    ::unlink(beside.c_str());
    return result;
}

}  // namespace linux
