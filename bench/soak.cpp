// Starts songs over and over through the player's rooms on the real engine and a sound server of its own, and
// tells every tenth of the way what the process holds: soak [STARTS].
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "real/damage/LivePlayer.h"
#include "real/sound/GeneratedMedia.h"
#include "real/sound/PrivateSound.h"

namespace {

constexpr int kStarts = 10'000;
constexpr double kBetween = 0.01;
constexpr double kSettled = 3;

long EntriesOf(const char* folder) {
    return std::distance(std::filesystem::directory_iterator(folder), {});
}

long ResidentKiB() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        long kib = 0;
        if (word == "VmRSS:" && status >> kib) return kib;
    }
    return 0;
}

void Tell(int starts, double seconds) {
    std::printf("%6d starts, %4.0f s: %ld threads, %ld descriptors, %ld KiB resident\n", starts, seconds,
                EntriesOf("/proc/self/task"), EntriesOf("/proc/self/fd"), ResidentKiB());
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
    const int starts = argc > 1 ? std::atoi(argv[1]) : kStarts;
    sound::PrivateSound server;
    sound::GeneratedMedia media;
    const std::string songs[] = {media.Make("one.mp3", {.hertz = 440, .seconds = 60}),
                                 media.Make("two.wav", {.hertz = 660, .seconds = 60})};
    if (!server.IsRunning() || songs[0].empty() || songs[1].empty()) return EXIT_FAILURE;
    damage::LivePlayer player;
    const auto begin = std::chrono::steady_clock::now();
    int failures = 0;
    for (int i = 1; i <= starts; ++i) {
        player.player.PlaySong(player.files.FromNative(songs[i % 2]));
        failures += player.IsPlaying() ? 0 : 1;
        player.RunUntil([] { return false; }, kBetween);
        if (i % (starts / 10) != 0) continue;
        player.history.Rows.clear();
        player.message.Sent.clear();
        player.Stop();
        player.RunUntil([] { return false; }, kSettled);
        server.Forget();
        Tell(i, std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    }
    std::printf("%d starts did not play\n", failures);
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
