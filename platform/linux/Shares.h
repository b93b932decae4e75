// The files that the system gets from elsewhere: from another computer, or from a program that plays a disk.
//
// Each share has file processes of its own, so that one that hangs holds up neither the program nor another
// share. A share that was asked and stayed silent is taken for missing at once, until it answers what it was
// asked.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/FileMessages.h"
#include "platform/linux/FileProcess.h"
#include "platform/linux/MountedVolumes.h"
#include "ports/Files.h"

namespace linux {

class Shares {
public:
    /// A handler waits no longer than this for a share that gives no sign of life.
    static constexpr std::chrono::milliseconds kPatience{500};
    /// For what is being written, which may wait for a disk at the other end.
    static constexpr std::chrono::milliseconds kPatienceToWrite{2000};
    /// Where the user can cancel.
    static constexpr std::chrono::milliseconds kPatienceWithAWayOut{15000};

    /// `program` is the native path of brindlepost-files. Where it cannot be started, shares are asked like
    /// any disk.
    Shares(std::string program, MountedVolumes& volumes) : program_(std::move(program)), volumes_(volumes) {}

    /// The share that a native path leads to, links followed; nothing for a file of this computer's own.
    std::optional<Share> Of(const std::string& native) const;

    /// As ports::Files; the path is one of the share's.
    std::optional<int> Attributes(const Share& share, const std::string& native);
    std::optional<ports::FolderListing> List(const Share& share, const std::string& native,
                                             const ports::MayGoOn& may_go_on);
    ports::FileResult MakeFolder(const Share& share, const std::string& native);
    ports::FileResult Delete(const Share& share, const std::string& native);
    std::optional<std::string> Read(const Share& share, const std::string& native, std::size_t limit);
    ports::FileResult Write(const Share& share, const std::string& native, std::string_view bytes);

    /// It owes an answer for longer than a handler waits.
    bool IsSilent(const Share& share);

private:
    using Processes = std::vector<std::unique_ptr<FileProcess>>;
    static constexpr std::chrono::seconds kKept{1};

    /// Where a path leads: to a share, or to a folder of this computer, without links.
    struct Way {
        std::optional<Share> share;
        std::string folder;
    };
    struct LastWay {
        std::string folder;
        Way way;
        FileProcess::Clock::time_point when{};
        std::uint64_t readings = 0;
    };

    Way Walk(std::string from, const std::string& path) const;
    FileProcess& IdleProcess(const Share& share);
    void ForgetOldShares();
    struct Question {
        FileVerb verb;
        const std::string& native;
        std::string more;
        std::chrono::milliseconds patience = kPatience;
    };
    FileProcess::Outcome Ask(const Share& share, const Question& question, const ports::MayGoOn& may_go_on,
                             std::string& answer);

    std::string program_;
    MountedVolumes& volumes_;
    mutable LastWay last_;
    std::map<std::string, Processes> processes_;  // by the share's number in the mount table
};

}  // namespace linux
