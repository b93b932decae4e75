#include "player/MediaWatch.h"

#include "base/Text.h"

namespace player {

ports::MediaReply MediaWatch::SendString(std::string_view command) {
    ports::MediaReply reply = media_.SendString(command);
    for (const std::string_view quiet : {"status ", "setaudio ", "put "}) {
        if (command.starts_with(quiet)) return reply;
    }
    if (base::Contains(command, " time format ")) return reply;
    ++orders_;
    if (reply.error == 0 && command.starts_with("open ")) ++openings_;
    if (reply.error == 0 && command.starts_with("seek ")) ++seeks_;
    return reply;
}

}  // namespace player
