// The media control interface: one text command in, an error number and perhaps an answer out.
//
// Why: the player speaks to every device through command texts only, so that its whole behaviour can be read
// off, and tested against, a transcript.
#pragma once

#include <string>
#include <string_view>

namespace ports {

struct MediaReply {
    int error = 0;     ///< 0 is success
    std::string text;  ///< the answer to a status command; empty for any other, and after an error
};

class MediaControl {
public:
    virtual ~MediaControl() = default;
    /// Carries out one command, for instance "status a position". Opening waits for the file, at most 5
    /// seconds; everything else answers at once. Never throws.
    virtual MediaReply SendString(std::string_view command) = 0;
    /// The text of an error number; empty for a number that is no error's.
    virtual std::string ErrorString(int error) const = 0;
};

}  // namespace ports
