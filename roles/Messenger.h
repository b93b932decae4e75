// Messengers that are notified of what plays.
#pragma once

#include <string_view>

namespace roles {

/// One now-playing message. `format` places `first`, `second` and `third`; `enabled` False clears the line.
struct NowPlayingText {
    std::string_view first;
    std::string_view second;
    std::string_view third;
    std::string_view extra;
    std::string_view format;
    bool enabled = false;
};

class Messenger {
public:
    virtual ~Messenger() = default;
    /// Nothing happens where no messenger listens.
    virtual void SendNowPlaying(const NowPlayingText& text) = 0;
};

}  // namespace roles
