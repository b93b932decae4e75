// What is mounted.
//
// Volumes get a drive letter that they keep (DriveLetters): what is mounted below /media, /run/media and
// /mnt. Shares are what another computer or a program answers for, wherever they are mounted,
// and may hang.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/DrivePath.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/DriveLetters.h"

namespace linux {

struct Share {
    std::string number;       ///< of the mount, never used again while the system runs on
    std::string mount_point;  ///< in native bytes
};

constexpr const char* kMountTable = "/proc/self/mountinfo";

/// The volumes of a mount table in the form of kMountTable; other lines are skipped.
std::vector<base::Volume> VolumesFrom(std::string_view mount_table, DriveLetters& letters);

/// The shares of a mount table, in the order of mounting: everything of a kind that is not known to be a
/// disk's or the system's own. The root is none.
std::vector<Share> SharesFrom(std::string_view mount_table);

class MountedVolumes {
public:
    explicit MountedVolumes(const std::string& mount_table = kMountTable, DriveLetters letters = {});
    /// As they are now; costs one question to the system while nothing was mounted or unmounted.
    const std::vector<base::Volume>& Current();
    const std::vector<Share>& CurrentShares();
    /// How often the mount table was read.
    std::uint64_t Readings() const { return readings_; }

private:
    bool HasChanged() const;
    void Read();

    Descriptor table_;
    DriveLetters letters_;
    std::vector<base::Volume> volumes_;
    std::vector<Share> shares_;
    std::uint64_t readings_ = 0;
};

}  // namespace linux
