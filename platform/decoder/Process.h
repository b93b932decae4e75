// One decoder's process: started, asked, and ended when it does not answer.
//
// All calls are made on the program's first thread, with which the process ends as well.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/decoder/Gatekeeper.h"
#include "platform/gstreamer/Threads.h"
#include "platform/linux/Descriptor.h"
#include "ports/MediaControl.h"

namespace decoder {

inline constexpr int kCommandSocket = 3;
inline constexpr int kGateSocket = 4;

class Process final {
public:
    using Clock = std::chrono::steady_clock;

    /// A command that is not answered within this time ends the process.
    static constexpr std::chrono::milliseconds kPatience{2000};
    /// How long the first command waits for a process that has just been started.
    static constexpr std::chrono::milliseconds kStartPatience{5000};

    /// `program` is what is run; `channel` is told to it, for lists of processes. `errors` is the descriptor
    /// of its standard error.
    Process(std::string program, std::string channel, Raiser raise, int errors);
    /// As Leave, then Wait.
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// Starts it unless it runs. After several starts in a row that came to nothing there is a pause.
    void Start();
    /// False when it has ended; what it was is reported once on the standard error.
    bool IsRunning();
    /// True when it takes commands; waits for a start that is under way.
    bool WaitUntilReady();
    bool IsReady() { return gate_ != nullptr && gate_->IsReady(); }
    /// Nothing when the process ended over it, or was ended because no answer came.
    std::optional<ports::MediaReply> Ask(std::string text, std::string path);
    /// The last question was not answered in time.
    bool HasHung() const { return has_hung_; }

    /// Of a process that is ready.
    Gatekeeper& Gate() { return *gate_; }
    /// Its number in the system; 0 when none runs.
    pid_t Number() const { return process_; }

    /// Asks it to end: what is heard fades out.
    void Leave();
    /// Waits until it has ended; after a while it is made to.
    void Wait(Clock::time_point until);

private:
    bool Spawn(int commands, int gate);
    void Kill(const char* why);
    std::optional<int> MakeEnd();
    void Bury();

    const std::string program_;
    const std::string channel_;
    const Raiser raise_;
    const int errors_;
    pid_t process_ = 0;
    linux::Descriptor commands_;
    linux::Descriptor gate_socket_;
    std::shared_ptr<Gatekeeper> gate_;
    std::unique_ptr<gstreamer::Threads> threads_;
    std::uint32_t serial_ = 0;
    Clock::time_point started_;
    Clock::time_point not_before_;
    bool has_hung_ = false;
    bool has_answered_ = false;
    int vain_starts_ = 0;         // in a row, of processes that never became ready
    std::vector<pid_t> leaving_;  // were made to end, and have not yet
};

}  // namespace decoder
