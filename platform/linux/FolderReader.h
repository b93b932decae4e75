// Reads one folder of the system, whatever bytes its names are made of.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "ports/Files.h"

namespace linux {

/// Where a link in a folder leads, as far as it can be told without following it.
enum class LinkTo { Here, FileElsewhere, FolderElsewhere, Nothing };
using LinkJudge = std::function<LinkTo(const std::string& native_path)>;

/// The files and sub folders below a native path, sorted; nothing when the folder cannot be read or
/// `may_go_on` cancelled it. Pipes, sockets, devices, dangling links, files that may not be read, and links
/// back to this folder or one above it are left out. A link that `judge` says leads elsewhere is not
/// followed.
std::optional<ports::FolderListing> ReadFolder(const std::string& native_path,
                                               const ports::MayGoOn& may_go_on = {},
                                               const LinkJudge& judge = {});

}  // namespace linux
