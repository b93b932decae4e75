// One open alias: what the player has asked for, and the worker thread that carries it out.
//
// The calling thread writes down what is wanted and returns at once; the worker brings the pipeline there and
// reports place and end. A wish that is overtaken by a later one is skipped, so a dragged marker costs one
// jump. Every jump carries a serial; an end or a place reported for an older one is dropped. The worker owns
// the pipeline and all that it needs, so a device can be closed, and its alias used again, while its worker
// still waits for a disk or a sound server.
//
// Levels and speeds are tenths of a percent; times are nanoseconds.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

#include "platform/gstreamer/MciCommand.h"

namespace gstreamer {

struct DeviceShare;
class Threads;

struct OpenRequest {
    std::string native_path;
    std::int64_t parent = 0;
    int likely_speed = 1000;  ///< what it is going to be told; sound is made ready for it
};

class Device final {
public:
    /// The worker is one of `threads`.
    explicit Device(std::shared_ptr<Threads> threads);
    /// Closes without waiting.
    ~Device();
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    /// Waits for the file to be ready, 5 seconds at most. 0, or the number of the error.
    int Open(const OpenRequest& request);
    /// 0, or the number of the error. Places are in the time format.
    int Play(const Command& command);
    int Seek(const Command& command);
    void Pause();
    void Resume();
    void Stop();
    int SetSpeed(std::int64_t speed);
    int SetLevel(Channel channel, std::int64_t level);
    void SetTimeFormat(TimeFormat format) { format_ = format; }
    void PutPicture(const std::array<int, 4>& place);
    /// What is to be heard after this without a gap; empty for nothing.
    void Follow(const std::string& native_path);
    /// What follows is heard now; of the device itself it seems that it has come to its end.
    bool IsFollowed() const;
    /// Becomes the device of what is heard now, stopped at its start. False when that is no longer heard, or
    /// is another file.
    bool BecomeFollower(const std::string& native_path);
    /// As BecomeFollower; what is returned is the device that it was, at its end. Null when it is not
    /// followed.
    std::unique_ptr<Device> LeftBy(const std::string& native_path);
    /// The answer to a status command.
    std::string Status(const Command& command);

private:
    std::int64_t ToNanoseconds(std::int64_t place) const;
    std::int64_t FromNanoseconds(std::int64_t time) const;
    double UnitsPerSecond() const;
    int ReadPlace(std::int64_t place, std::int64_t& time) const;
    void JumpTo(std::int64_t time);
    void StayAtEnd(const Device& followed);
    std::int64_t Position();
    int Level(Channel channel) const;

    std::shared_ptr<DeviceShare> share_;
    TimeFormat format_ = TimeFormat::Frames;
};

}  // namespace gstreamer
