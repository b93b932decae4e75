// What the tests of sound play on: the engine by itself, or the processes that the program has it in.
#pragma once

#ifdef DECODER_PROGRAM

#include <utility>

#include "platform/decoder/MediaProcesses.h"

namespace sound {

class Engine final : public decoder::MediaProcesses {
public:
    explicit Engine(Resolver resolve) : MediaProcesses(DECODER_PROGRAM, std::move(resolve)) {}
};

}  // namespace sound

#else

#include "platform/gstreamer/MediaEngine.h"

namespace sound {

using Engine = gstreamer::MediaEngine;

}  // namespace sound

#endif
