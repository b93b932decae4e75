// Plays damaged files of one kind, each followed by a good song, and tells what came of each:
//
//     damage_player KIND NUMBER...
//
// The kind "kept" has files of its own, kept because they once ended the process: the number counts them
// round and round. A line "begin" stands before each damage, so that one that ends the process is known by
// name. "ok" is a damage after which the next song started; how it got there is behind it.
#include <execinfo.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "real/damage/Damages.h"
#include "real/damage/LivePlayer.h"
#include "real/damage/Originals.h"
#include "real/sound/GeneratedMedia.h"
#include "real/sound/PrivateSound.h"

namespace {

using Clock = std::chrono::steady_clock;
using damage::ContentOf;
using damage::LivePlayer;
using damage::MakeMedia;

constexpr const char* kKept = "kept";
/// Nothing may take longer: neither a command nor the way to the next song.
constexpr double kBound = 6;
/// A damaged file that still plays after this long has become a long one; the person goes on to the next.
constexpr double kPatience = 3;

/// The files that are kept, by name.
std::vector<std::filesystem::path> KeptFiles() {
    const std::filesystem::directory_iterator files(KEPT_MEDIA);
    std::vector<std::filesystem::path> kept(begin(files), end(files));
    std::sort(kept.begin(), kept.end());
    return kept;
}

const std::filesystem::path& KeptFile(int number) {
    static const std::vector<std::filesystem::path> kept = KeptFiles();
    return kept.at(static_cast<std::size_t>(number) % kept.size());
}

std::string NameOf(const std::string& kind, int number) {
    if (kind == kKept) return KeptFile(number).filename();
    return number < 0 ? "no damage" : std::string(damage::NameOf(number));
}

class Bench {
public:
    explicit Bench(std::string kind)
        : kind_(std::move(kind)),
          original_(kind_ == kKept ? "none" : ContentOf(MakeMedia(files_, "good." + kind_))),
          other_(kind_ == kKept ? "none"
                                : ContentOf(MakeMedia(files_, kind_ == "avi" ? "other.mp3" : "other.avi"))),
          next_(MakeMedia(files_, "next.wav")) {}

    bool IsReady() const {
        return server_.IsRunning() && !original_.empty() && !other_.empty() && !next_.empty();
    }

    /// True when the next song started.
    bool Try(int number) {
        const std::string path = MakeDamaged(number);
        LivePlayer player;
        player.AddTrack(path);
        player.AddTrack(next_);
        const auto begin = Clock::now();
        player.DoubleClickTrack(0);
        const double start = SecondsSince(begin);
        if (start > kBound) return Tell("FAILED", start, "starting took too long");
        const auto next_plays = [&] {
            return player.NativePath() == next_ && player.IsPlaying() && player.Place() > 0;
        };
        if (player.RunUntil(next_plays, kPatience)) return Tell("ok", SecondsSince(begin), "by itself");
        const bool plays = player.NativePath() == path && player.IsPlaying();
        if (!plays) return Tell("FAILED", SecondsSince(begin), "stands still" + StateOf(player));
        const std::string state = StateOf(player);
        player.Next();
        if (!player.RunUntil(next_plays, kBound))
            return Tell("FAILED", SecondsSince(begin), "next did not start");
        return Tell("ok", SecondsSince(begin), "by hand" + state);
    }

private:
    std::string MakeDamaged(int number) {
        if (kind_ == kKept) return KeptFile(number);
        return files_.Write("damaged" + std::to_string(number) + "." + kind_,
                            number < 0 ? original_ : damage::Damaged(original_, other_, number));
    }
    static double SecondsSince(Clock::time_point then) {
        return std::chrono::duration<double>(Clock::now() - then).count();
    }
    static std::string StateOf(LivePlayer& player) {
        return ", mode " + player.mci.MciStatusMode(player::TextOf(player.state.CurrentAlias)) + ", place " +
               std::to_string(player.mci.MciPosition(player::TextOf(player.state.CurrentAlias))) +
               ", length " +
               std::to_string(player.mci.MciLengthFrames(player::TextOf(player.state.CurrentAlias))) + ", " +
               std::to_string(player.state.FramesPerSecond) + " frames a second";
    }
    static bool Tell(const char* outcome, double seconds, const std::string& how) {
        std::printf("%s %.2f %s\n", outcome, seconds, how.c_str());
        std::fflush(stdout);
        return outcome[0] == 'o';
    }

    sound::PrivateSound server_;
    sound::GeneratedMedia files_;
    std::string kind_;
    std::string original_;
    std::string other_;
    std::string next_;
};

// Where it was when a damage ended it, on the standard error; the signal then takes its course.
void TellWhere(int /*signal*/) {
    std::array<void*, 64> frames{};
    const int count = backtrace(frames.data(), static_cast<int>(frames.size()));
    backtrace_symbols_fd(frames.data(), count, STDERR_FILENO);
}

void TellWhereAtTheEnd() {
    std::array<void*, 1> first{};
    backtrace(first.data(), 1);  // what it needs is loaded now, not in the handler
    struct sigaction action{};
    action.sa_handler = TellWhere;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int end : {SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP})
        sigaction(end, &action, nullptr);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) return EXIT_FAILURE;
    TellWhereAtTheEnd();
    Bench bench(argv[1]);
    if (!bench.IsReady()) return EXIT_FAILURE;
    bool all_well = true;
    for (int i = 2; i < argc; ++i) {
        const int number = std::atoi(argv[i]);
        std::printf("begin %s %d %s\n", argv[1], number, NameOf(argv[1], number).c_str());
        std::fflush(stdout);
        all_well = bench.Try(number) && all_well;
    }
    return all_well ? EXIT_SUCCESS : 3;
}
