// The system's own calls on native paths, each of which may wait for a disk or for another computer.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "ports/Files.h"

namespace linux {

/// As the calls of the same names of ports::Files; `may_go_on` cancels a reading.
std::optional<int> AttributesAt(const std::string& native);
ports::FileResult MakeFolderAt(const std::string& native);
ports::FileResult DeleteFileAt(const std::string& native);
std::optional<std::string> ReadTextAt(const std::string& native, std::size_t limit,
                                      const ports::MayGoOn& may_go_on = {});
ports::FileResult WriteTextAt(const std::string& native, std::string_view bytes);

/// The last name of a native path; "/" for the root.
std::string_view LastName(std::string_view native);

}  // namespace linux
