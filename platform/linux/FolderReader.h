// Reads one folder of the system, whatever bytes its names are made of.
#pragma once

#include <optional>
#include <string>

#include "ports/Files.h"

namespace linux {

/// The files and sub folders below a native path, sorted; nothing when the folder cannot be read or
/// `may_go_on` cancelled it. Pipes, sockets, devices, dangling links, files that may not be read, and links
/// back to this folder or one above it are left out.
std::optional<ports::FolderListing> ReadFolder(const std::string& native_path,
                                               const ports::MayGoOn& may_go_on = {});

}  // namespace linux
