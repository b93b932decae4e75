// The mounted volumes that get a drive letter: what is mounted below /media, /run/media and /mnt, lettered
// from "D:" in the order of mounting.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/DrivePath.h"
#include "platform/linux/Descriptor.h"

namespace linux {

/// The volumes of a mount table in the form of /proc/self/mountinfo; other lines are skipped.
std::vector<base::Volume> VolumesFrom(std::string_view mount_table);

class MountedVolumes {
public:
    explicit MountedVolumes(const std::string& mount_table = "/proc/self/mountinfo");
    /// As they are now; costs one question to the system while nothing was mounted or unmounted.
    const std::vector<base::Volume>& Current();

private:
    bool HasChanged() const;

    Descriptor table_;
    std::vector<base::Volume> volumes_;
};

}  // namespace linux
