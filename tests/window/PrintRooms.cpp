// Prints the page of the rooms, or with --write puts it into docs/.
#include <fstream>
#include <iostream>
#include <string_view>

#include "RoomsPage.h"

int main(int count, char** arguments) {
    rooms_page::RunningProgram running;
    const std::string page = rooms_page::PageOf(rooms_page::TablesOf(running.program.windows));
    if (count == 2 && std::string_view(arguments[1]) == "--write") {
        std::ofstream(BRINDLEPOST_SOURCE_DIR "/docs/rooms.md") << page;
        return 0;
    }
    std::cout << page;
    return 0;
}
