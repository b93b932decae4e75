// The state that the calling thread and the worker of a device share. All of it is guarded by `mutex`, except
// the levels, which have their own lock.
#pragma once

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "platform/gstreamer/Device.h"
#include "platform/gstreamer/Gain.h"
#include "platform/gstreamer/Pipeline.h"

namespace gstreamer {

enum class Mode { Stopped, Playing, Paused };

/// What the player wants; the worker takes the whole of it each time.
struct Wish {
    std::int64_t jump = 0;  ///< serial of the last jump
    std::int64_t jump_to = 0;
    std::int64_t stop = -1;  ///< where playing ends; negative is the end of the file
    int speed = 1000;
    bool speed_told = false;
    bool playing = false;
    std::int64_t put = 0;  ///< serial of the last place of the picture
    std::array<int, 4> place{};
    std::int64_t next = 0;  ///< serial of what was last told to follow
    std::string next_path;
};

/// What is heard in place of a song that has ended. From then on the device is at its end, until it becomes
/// the device of what follows.
struct Follower {
    std::string path;  ///< empty while nothing is
    MediaFacts facts;
    bool refused = false;  ///< it is not wanted
    bool taken = false;    ///< the device is that of the follower
};

/// Where the sound was, and when.
struct Anchor {
    using Clock = std::chrono::steady_clock;
    std::int64_t position = 0;
    Clock::time_point at;
    bool running = false;
};

struct DeviceShare {
    std::mutex mutex;
    std::condition_variable changed;  ///< for the worker
    std::condition_variable opened;   ///< for the one who opens
    std::shared_ptr<Gain> gain = std::make_shared<Gain>();

    std::shared_ptr<Threads> threads;  ///< of the engine
    OpenRequest request;
    std::optional<int> open_result;
    MediaFacts facts;

    Wish wish;
    Follower follower;
    bool levels_open = false;  ///< the levels are those of the song before; none has been told yet
    Mode mode = Mode::Stopped;
    bool closing = false;
    bool event = false;         ///< the pipeline has an event
    bool place_wanted = false;  ///< the anchor is old
    bool looking = false;       ///< a thread asks for a sound server
    bool server_found = false;  ///< it got an answer

    std::int64_t jump_done = 0;  ///< serial of the last jump that the pipeline has made
    Anchor anchor;
    std::int64_t last_told = 0;  ///< the last place reported; the next is not before it
};

}  // namespace gstreamer
