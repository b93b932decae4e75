// A sound server of the test's own, without a sound card, whose output is recorded and measured.
//
// It lives in a folder of its own and is reached only through PULSE_SERVER, which is set for this process and
// its children while the object lives. Everything it starts, it ends. Its threads have the priority that a
// desktop gives them, where the process may give it. It is PulseAudio, or what BRINDLEPOST_SOUND_SERVER
// names: a program that listens on "native" in the folder that it is given, and has a sink "test".
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "real/sound/Child.h"
#include "real/sound/Samples.h"

namespace sound {

/// Gives a program the real-time class that a desktop gives to what makes sound, where the test may.
void PutInTime(const Child& child);

class PrivateSound final {
public:
    PrivateSound();
    ~PrivateSound();
    PrivateSound(const PrivateSound&) = delete;
    PrivateSound& operator=(const PrivateSound&) = delete;

    /// False when the server or the recorder did not start.
    bool IsRunning() const { return running_; }
    /// The next `seconds` of what is heard from now on; less when the server is gone.
    Samples Record(double seconds);
    /// Records in pieces of `piece` seconds until `heard` says yes, for at most `seconds`.
    bool WaitFor(const std::function<bool(const Samples&)>& heard, double seconds = 10, double piece = 0.1);
    /// Loud enough to be no silence.
    bool WaitForSound(double seconds = 10);
    bool WaitForSilence(double seconds = 10);
    /// How many samples have been heard so far.
    std::size_t Heard();
    /// Gives the room of what was heard back and counts from nothing again.
    void Forget();
    /// What was heard from one sample to another, waiting for it if need be; less when the server is gone.
    Samples Between(std::size_t begin, std::size_t end);
    /// Seconds from sample `from` to the first one louder than `level`; negative when there is none for 5 s.
    double SecondsToSound(std::size_t from, double level);

    /// The server ends at once, as in a crash.
    void KillServer();
    /// Starts it again; what is heard from then on follows what was heard before. False when it does not
    /// start.
    bool RestartServer();
    /// The server stops answering, and goes on again.
    void FreezeServer();
    void ThawServer();

private:
    bool StartServer();
    bool StartRecorder();
    void EndRecorder();
    void ReadOn();
    Samples Cut(std::size_t begin, std::size_t end) const;
    bool WaitUntilHeard(std::unique_lock<std::mutex>& lock, std::size_t count, double seconds);

    std::string folder_;
    Child server_;
    Child recorder_;
    int pipe_ = -1;
    bool running_ = false;
    std::thread reader_;
    std::mutex mutex_;
    std::condition_variable more_;
    std::vector<short> heard_;  // left and right in turn
    bool ended_ = false;
};

}  // namespace sound
