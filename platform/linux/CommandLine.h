// The options of the command line.
//
// An option is asked of the program that runs already, or answered on the spot; it starts nothing. Everything
// that is no option is what the program opens (CommandText).
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace linux {

/// What a start ends with, besides the codes of the start itself.
inline constexpr int kDone = 0;
inline constexpr int kNotPossible = 1;
inline constexpr int kWrongUse = 2;
inline constexpr int kNotRunning = 4;

struct CommandLine {
    enum class Kind {
        Open,     ///< start, or hand over to the program that runs
        NewTab,   ///< the same with the page of a new tab
        Player,   ///< ask the program that runs: `option`
        Help,     ///< show HelpText
        Version,  ///< show the version
        Wrong,    ///< tell `trouble` and end
    };
    Kind kind = Kind::Open;
    std::string option{};  ///< without its dashes: "play-pause", "next", "previous", "stop", "status"
    std::string trouble{};
    std::vector<std::string> arguments{};  ///< what is to be opened
    bool without_home_pages = false;       ///< of a start: none are opened
};

/// "--" ends the options, for a file whose name begins with a dash.
CommandLine ReadCommandLine(const std::vector<std::string>& arguments);

std::string HelpText();

}  // namespace linux
