// A process that asks the system about the files of one share, for a program that must not wait for them.
//
// A call on a share whose other end is gone may never return, and nothing can end it, not even the end of its
// process. So it is made in a process that the program can leave alone: it holds nothing of the program's.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/linux/Descriptor.h"
#include "ports/Files.h"

namespace linux {

class FileProcess {
public:
    using Clock = std::chrono::steady_clock;
    static constexpr int kSocket = 3;  ///< the process's end of the socket

    /// `program` is the native path of brindlepost-files; it is started with the first question.
    explicit FileProcess(std::string program) : program_(std::move(program)) {}
    ~FileProcess() { End(); }
    FileProcess(const FileProcess&) = delete;
    FileProcess& operator=(const FileProcess&) = delete;

    enum class Outcome {
        Answered,
        Silent,     ///< no answer and no sign of life for as long as the patience lasts
        Cancelled,  ///< by `may_go_on`
        NoProcess,  ///< it cannot be started, or it ended
    };
    /// Asks and waits; the answer is in `answer`. `may_go_on` is asked every few milliseconds. A question
    /// that was not answered in time stays: until its answer comes, the next ones wait for that, and no
    /// longer than their patience, counted from the last sign of life.
    Outcome Ask(std::string_view question, std::chrono::milliseconds patience,
                const ports::MayGoOn& may_go_on, std::string& answer);
    /// Ask is running, further up.
    bool IsAsking() const { return is_asking_; }
    /// How long an answer has been owed without a sign of life.
    std::chrono::milliseconds Silence();
    /// Whatever it does; the next question starts another one.
    void End();
    /// -1 while there is no process.
    pid_t Id() const { return id_; }

private:
    bool Start();
    Outcome AskOnce(std::string_view question, std::chrono::milliseconds patience,
                    const ports::MayGoOn& may_go_on, std::string& answer);
    Outcome WaitForAnswer(std::chrono::milliseconds patience, const ports::MayGoOn& may_go_on);
    bool Send(std::string_view message);
    bool Receive();
    void TakeMessages();

    std::string program_;
    pid_t id_ = -1;
    Descriptor socket_;
    std::string received_;
    std::string answer_;
    Clock::time_point last_sign_{};
    int steps_ = 0;  // signs of life that nobody was asked for yet
    bool is_owed_ = false;
    bool is_asking_ = false;
};

}  // namespace linux
