// The media control interface: one text command in, a number and perhaps a reply out.
//
// Why: the player speaks to every device through command texts only, so that its whole behaviour can be read
// off, and tested against, a transcript.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ports {

class MediaControl {
public:
    virtual ~MediaControl() = default;
    /// Carries out one command, for instance "status a position". `reply`, when given, is a buffer of
    /// `return_length` characters: the answer, a terminator, and the rest of the buffer as it was; with
    /// length 0 it is left alone. The result is 0, or the number of the error. Opening waits for the file, at
    /// most 5 seconds; everything else answers at once. Never throws.
    virtual int SendString(std::string_view command, std::string* reply, int return_length,
                           std::int64_t callback) = 0;
    /// The text of an error number, at most `length` characters; false for a number that is no error's.
    virtual bool ErrorString(int error, std::string& text, int length) const = 0;
};

}  // namespace ports
