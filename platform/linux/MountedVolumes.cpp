#include "platform/linux/MountedVolumes.h"

#include <fcntl.h>
#include <poll.h>

#include <algorithm>
#include <array>
#include <utility>

#include "base/Text.h"

namespace linux {
namespace {

constexpr std::size_t kMountPointField = 4;

bool IsOctal(char character) {
    return character >= '0' && character <= '7';
}

// Blanks, tabs, line feeds and backslashes stand in the table as "\040".
std::string Unescaped(std::string_view text) {
    std::string out;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::string_view digits = text.substr(at + 1, 3);
        if (text[at] == '\\' && digits.size() == 3 && std::all_of(digits.begin(), digits.end(), IsOctal)) {
            out += static_cast<char>((digits[0] - '0') * 64 + (digits[1] - '0') * 8 + (digits[2] - '0'));
            at += 3;
        } else {
            out += text[at];
        }
    }
    return out;
}

bool IsVolume(std::string_view mount_point) {
    return mount_point == "/mnt" || mount_point.starts_with("/mnt/") || mount_point.starts_with("/media/") ||
           mount_point.starts_with("/run/media/");
}

// Kinds that wait for nothing but a disk of this computer.
bool IsOwn(std::string_view kind) {
    constexpr std::array kOwn = std::to_array<std::string_view>(
        {"bcachefs", "binfmt_misc", "bpf",      "btrfs",    "cgroup",     "cgroup2",  "configfs",  "cramfs",
         "debugfs",  "devpts",      "devtmpfs", "efivarfs", "erofs",      "exfat",    "ext2",      "ext3",
         "ext4",     "f2fs",        "fusectl",  "fuseblk",  "hfs",        "hfsplus",  "hugetlbfs", "iso9660",
         "jfs",      "mqueue",      "msdos",    "nilfs2",   "nsfs",       "ntfs",     "ntfs3",     "overlay",
         "proc",     "pstore",      "ramfs",    "reiserfs", "securityfs", "squashfs", "sysfs",     "tmpfs",
         "tracefs",  "udf",         "vfat",     "xfs",      "zfs"});
    return std::find(kOwn.begin(), kOwn.end(), kind) != kOwn.end();
}

std::string ReadAll(int descriptor) {
    std::string text;
    std::array<char, 16384> buffer{};
    ssize_t count = 0;
    ::lseek(descriptor, 0, SEEK_SET);
    while ((count = ::read(descriptor, buffer.data(), buffer.size())) > 0) {
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return text;
}

}  // namespace

std::vector<base::Volume> VolumesFrom(std::string_view mount_table, DriveLetters& letters) {
    std::vector<std::string> mount_points;
    for (const std::string& line : base::Split(mount_table, "\n")) {
        const std::vector<std::string> fields = base::Split(line, " ");
        if (fields.size() <= kMountPointField) continue;
        const std::string mount_point = Unescaped(fields[kMountPointField]);
        const bool is_known =
            std::find(mount_points.begin(), mount_points.end(), mount_point) != mount_points.end();
        if (IsVolume(mount_point) && !is_known) mount_points.push_back(mount_point);
    }
    return letters.Give(mount_points);
}

// The kind comes after a dash, which comes after any number of optional fields.
std::vector<Share> SharesFrom(std::string_view mount_table) {
    std::vector<Share> shares;
    for (const std::string& line : base::Split(mount_table, "\n")) {
        const std::vector<std::string> fields = base::Split(line, " ");
        const auto dash = std::find(fields.begin(), fields.end(), "-");
        if (fields.end() - dash < 2 || dash - fields.begin() <= static_cast<int>(kMountPointField)) continue;
        const std::string mount_point = Unescaped(fields[kMountPointField]);
        if (mount_point != "/" && !IsOwn(*(dash + 1))) shares.push_back({fields.front(), mount_point});
    }
    return shares;
}

MountedVolumes::MountedVolumes(const std::string& mount_table, DriveLetters letters)
    : table_(::open(mount_table.c_str(), O_RDONLY | O_CLOEXEC)), letters_(std::move(letters)) {
    if (table_.IsOpen()) Read();
}

void MountedVolumes::Read() {
    const std::string table = ReadAll(table_.Number());
    volumes_ = VolumesFrom(table, letters_);
    shares_ = SharesFrom(table);
    ++readings_;
}

const std::vector<base::Volume>& MountedVolumes::Current() {
    if (HasChanged()) Read();
    return volumes_;
}

const std::vector<Share>& MountedVolumes::CurrentShares() {
    if (HasChanged()) Read();
    return shares_;
}

bool MountedVolumes::HasChanged() const {
    if (!table_.IsOpen()) return false;
    pollfd wanted{table_.Number(), POLLPRI, 0};
    return ::poll(&wanted, 1, 0) > 0 && (wanted.revents & (POLLPRI | POLLERR)) != 0;
}

}  // namespace linux
