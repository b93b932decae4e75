#include "platform/linux/CommandLine.h"

#include <algorithm>
#include <array>

namespace linux {
namespace {

constexpr std::string_view kWithoutHomePages = "--without-home-pages";
constexpr std::array<std::string_view, 5> kPlayerOptions{"--play-pause", "--next", "--previous", "--stop",
                                                         "--status"};

bool IsOption(std::string_view argument) {
    return argument.size() > 1 && argument.starts_with('-');
}

CommandLine Wrong(std::string trouble) {
    return {.kind = CommandLine::Kind::Wrong, .trouble = std::move(trouble)};
}

CommandLine Alone(CommandLine line, std::string_view option, std::size_t arguments) {
    if (arguments == 1) return line;
    return Wrong(std::string(option) + " stands alone.");
}

CommandLine ReadOption(std::string_view option, std::size_t arguments) {
    if (option == "--help" || option == "-h") return {.kind = CommandLine::Kind::Help};
    if (option == "--version") return {.kind = CommandLine::Kind::Version};
    if (option == "--new-tab") return Alone({.kind = CommandLine::Kind::NewTab}, option, arguments);
    if (std::find(kPlayerOptions.begin(), kPlayerOptions.end(), option) == kPlayerOptions.end())
        return Wrong("There is no option " + std::string(option) + ".");
    return Alone({.kind = CommandLine::Kind::Player, .option = std::string(option.substr(2))}, option,
                 arguments);
}

}  // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& arguments) {
    CommandLine line;
    bool may_be_option = true;
    for (const std::string& argument : arguments) {
        if (may_be_option && argument == "--") {
            may_be_option = false;
        } else if (may_be_option && argument == kWithoutHomePages) {
            line.without_home_pages = true;
        } else if (may_be_option && IsOption(argument)) {
            return ReadOption(argument, arguments.size());
        } else {
            line.arguments.push_back(argument);
        }
    }
    return line;
}

std::string HelpText() {
    return "Brindlepost [--without-home-pages] [FILE|ADDRESS...]\n"
           "    Starts the program and opens media files, play lists and addresses. Where it runs already, "
           "they\n"
           "    are opened there, and its window comes to the front.\n"
           "  --without-home-pages   leave the home pages closed in this start\n"
           "\n"
           "Brindlepost OPTION\n"
           "  --play-pause   play what is paused or chosen, or pause what plays\n"
           "  --next         the next song\n"
           "  --previous     the song before\n"
           "  --stop         stop\n"
           "  --status       what plays: playing, paused or stopped; the song; the place in it and its "
           "length\n"
           "  --new-tab      a new tab; starts the program where it does not run\n"
           "  --help, -h     this text\n"
           "  --version      the version\n"
           "    The first five are answered by the program that runs; its window stays where it is.\n"
           "\n"
           "--               what follows is opened, though it may begin with a dash\n"
           "\n"
           "Exit codes: 0 done; 1 not possible now, such as no next song; 2 an unknown or misplaced option, "
           "or no\n"
           "display to start on; 3 the program's folder cannot be used; 4 the program does not run, or its "
           "stores\n"
           "cannot be used.\n";
}

}  // namespace linux
