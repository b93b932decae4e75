// The arguments of the process as one command text: each between quotes, one blank between them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ports/Files.h"

namespace linux {

/// Paths become drive paths, a relative one from the native `working_folder`; a file address ("file:///...")
/// is the path it names. Addresses stay as they are: what has a scheme, begins with "www.", or names a host
/// of a common domain where no such file is. Empty arguments are left out; no arguments give the empty text.
std::string CommandText(const std::vector<std::string>& arguments, std::string_view working_folder,
                        const ports::Files& files);

/// The folder the process was started in, as a native path; the root when it is not known.
std::string WorkingFolder();

}  // namespace linux
