// Reads one folder of the system, whatever bytes its names are made of.
#pragma once

#include <optional>
#include <string>

#include "ports/Files.h"

namespace linux_os {

/// The files and sub folders below a native path, sorted; nothing when the folder cannot be read. Pipes,
/// sockets, devices, dangling links and links back to this folder or one above it are left out.
std::optional<ports::FolderListing> ReadFolder(const std::string& native_path);

}  // namespace linux_os
