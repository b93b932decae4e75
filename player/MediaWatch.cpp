#include "player/MediaWatch.h"

#include "base/Text.h"

namespace player {

int MediaWatch::SendString(std::string_view command, std::string* reply, int return_length,
                           std::int64_t callback) {
    const int error = media_.SendString(command, reply, return_length, callback);
    for (const std::string_view quiet : {"status ", "setaudio ", "put "}) {
        if (command.starts_with(quiet)) return error;
    }
    if (base::Contains(command, " time format ")) return error;
    ++orders_;
    if (error == 0 && command.starts_with("open ")) ++openings_;
    if (error == 0 && command.starts_with("seek ")) ++seeks_;
    return error;
}

bool MediaWatch::ErrorString(int error, std::string& text, int length) const {
    return media_.ErrorString(error, text, length);
}

}  // namespace player
