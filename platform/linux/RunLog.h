// The log of this run, beside those of the last ones.
//
// A folder of the user's alone, $XDG_STATE_HOME/brindlepost, has a file for each of the last runs. A file is
// held by its run, so one that nobody holds and that has no last line is of a run that did not end in order.
// Files hold what the program did and what its engines said, without names (LogWords).
#pragma once

#include <string>
#include <string_view>

#include "platform/linux/Descriptor.h"

namespace linux {

class RunLog final {
public:
    /// What is known of the run before, of the same stores.
    struct LastRun {
        enum class End {
            None,     ///< there was none, or its file is gone
            InOrder,  ///< it ended by itself, or was asked to
            Crashed,
            Unknown,  ///< killed, or the power went
        };
        End end = End::None;
        std::string file{};  ///< native path of its log
    };

    static constexpr int kFilesKept = 10;
    /// Of messages in one file; what the program itself writes, and a crash, come on top.
    static constexpr std::size_t kMostBytes = 131'072;

    /// Begins a log. `state_home` is a native path; where it is empty or nothing can be written nothing is
    /// kept. One object a program.
    RunLog(const std::string& state_home, std::string_view stores_folder);
    ~RunLog();
    RunLog(const RunLog&) = delete;
    RunLog& operator=(const RunLog&) = delete;

    const LastRun& Last() const { return last_; }
    /// To write to at a crash; -1 when nothing is kept.
    int Number() const { return file_.Number(); }
    /// The last line: the run ended in order. Gives the code back.
    int End(int exit_code);

    // From any thread; without a log they do nothing.
    /// What the program did. The caller leaves names out.
    static void Note(std::string_view line);
    /// What an engine or the toolkit said; names are cut out. What is too much is left out, which is told
    /// once.
    static void TakeMessage(std::string_view line);
    /// On the standard error and as a note.
    static void Tell(const std::string& line);

    /// A line that begins so tells a crash; all other lines begin with a time.
    static constexpr std::string_view kCrash = "CRASH ";

private:
    LastRun FindLast(const std::string& folder, std::string_view mark) const;

    Descriptor file_;
    LastRun last_;
};

}  // namespace linux
