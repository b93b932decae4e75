// The line about the current song that messengers show.
#pragma once

#include <string_view>

namespace roles {

class MessengerLine {
public:
    virtual ~MessengerLine() = default;
    /// The third field of the line (`NowAlbum`).
    virtual void SetCustomText(std::string_view text) = 0;
    /// Sends artist, title and custom text as they are.
    virtual void SendNowPlaying() = 0;
    /// Sends that nothing plays.
    virtual void SendNothingPlaying() = 0;
};

}  // namespace roles
