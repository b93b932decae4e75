// How much sound lies in the sound server, behind the levels: what a change of level waits for.
//
// It begins short. A machine on which it runs empty gets more with its next song, for as long as the process
// lives.
#pragma once

#include <chrono>

namespace gstreamer {

class SoundStore final {
public:
    static std::chrono::milliseconds Length();
    /// It ran empty at this length; a later call for the same length does nothing.
    static void RanEmpty(std::chrono::milliseconds length);
    /// The least that the server asks for. It keeps twice as much out of what its device may have in store,
    /// and a server that is held up for a moment lives on that.
    static constexpr std::chrono::milliseconds kPiece{2};
};

}  // namespace gstreamer
