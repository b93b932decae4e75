// What of a message may be kept: nothing that tells where a user was, what a user played or who a user is.
#pragma once

#include <string>
#include <string_view>

namespace linux {

/// A line of an engine or the toolkit without addresses, hosts, paths, names of files and mail addresses.
/// From the first of them on the rest of the line goes, since what follows may belong to it; "[...]" stands
/// for it. Of a line of a backtrace the name of the library and the place stay. A long line is cut.
std::string WithoutNames(std::string_view line);

}  // namespace linux
