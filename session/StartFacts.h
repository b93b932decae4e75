// What the program's outer shell knows of this start and of the run before it.
#pragma once

#include <functional>
#include <string>

namespace session {

struct StartFacts {
    /// The command line asked for none.
    bool without_home_pages = false;
    /// The run before crashed: the native path of its report. Empty otherwise.
    std::string crash_report{};
    /// Shows the report to the user.
    std::function<void()> show_report{};
    /// Says at the edge of the screen that home pages were left closed. Nothing waits for it.
    std::function<void()> tell_left_closed{};
};

}  // namespace session
