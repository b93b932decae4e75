// From the command to the first sound in a recording, and what a playing song costs: the engine by itself,
// the engine in the processes of the program, and a bare pipeline, in turn in the same run. Everything goes
// to a private sound server.
#include <gst/gst.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "platform/decoder/MediaProcesses.h"
#include "platform/gstreamer/MediaEngine.h"
#include "platform/gstreamer/Pipeline.h"
#include "real/sound/GeneratedMedia.h"
#include "real/sound/PrivateSound.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRounds = 25;
constexpr double kAudible = 0.02;
constexpr std::chrono::seconds kWatched{10};
constexpr std::chrono::milliseconds kPoll{50};

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double ProcessorSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// Of another process, by the fourteenth and fifteenth word of its line.
double ProcessorSecondsOf(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string word;
    double ticks = 0;
    constexpr int kUser = 14;
    constexpr int kSystem = 15;
    for (int i = 1; i <= kSystem && file >> word; ++i)
        ticks += i >= kUser ? std::strtod(word.c_str(), nullptr) : 0;
    return ticks / static_cast<double>(sysconf(_SC_CLK_TCK));
}

double MebibytesOf(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/smaps_rollup");
    constexpr double kKibibytes = 1024;
    for (std::string word; file >> word;) {
        if (word == "Pss:" && file >> word) return std::strtod(word.c_str(), nullptr) / kKibibytes;
    }
    return 0;
}

// A pipeline that does nothing but play one file.
class BarePipeline {
public:
    explicit BarePipeline(const std::string& path) {
        const std::string text =
            "filesrc location=" + path + " ! decodebin ! audioconvert ! audioresample ! pulsesink";
        pipeline_ = gst_parse_launch(text.c_str(), nullptr);
        gst_element_set_state(pipeline_, GST_STATE_PLAYING);
    }
    ~BarePipeline() {
        gst_element_set_state(pipeline_, GST_STATE_NULL);
        gst_object_unref(pipeline_);
    }
    BarePipeline(const BarePipeline&) = delete;
    BarePipeline& operator=(const BarePipeline&) = delete;

private:
    GstElement* pipeline_;
};

class Bench {
public:
    bool IsReady() const { return server_.IsRunning() && !song_.empty(); }

    void Run() {
        gstreamer::LoadElements();
        processes_.WarmUp();
        std::unique_ptr<BarePipeline> bare;
        TimeToSound({{"engine, open, play and speed 1030 as the player does",
                      [this] { Start(engine_); },
                      [this] { engine_.SendString("close a"); },
                      {}},
                     {"the same in a process",
                      [this] { Start(processes_); },
                      [this] { processes_.SendString("close a"); },
                      {}},
                     {"bare pipeline",
                      [&] { bare = std::make_unique<BarePipeline>(song_); },
                      [&] { bare.reset(); },
                      {}}});
        Start(engine_);
        ProcessorWhile("engine, place and length every 50 ms", [this] { AskTwice(engine_); });
        engine_.SendString("close a");
        Start(processes_);
        ProcessorWhile("the same in a process", [this] { AskTwice(processes_); });
        std::printf("%-55s %.1f and %.1f MiB (proportional)\n", "the processes, one playing",
                    MebibytesOf(processes_.ProcessOf("a")), MebibytesOf(processes_.ProcessOf("b")));
        processes_.SendString("close a");
        bare = std::make_unique<BarePipeline>(song_);
        ProcessorWhile("bare pipeline", [] {});
    }

private:
    struct Way {
        const char* what;
        std::function<void()> start;
        std::function<void()> end;
        std::vector<double> milliseconds;
    };

    static void AskTwice(ports::MediaControl& media) {
        media.SendString("status a position");
        media.SendString("status a length");
    }
    void Start(ports::MediaControl& media) {
        media.SendString("open " + song_ + " type MPEGVideo Alias a parent 0 Style 1073741824");
        media.SendString("play a from 0 to 60000");
        media.SendString("set a speed 1030");
    }

    void TimeToSound(std::vector<Way> ways) {
        for (int round = 0; round < kRounds; ++round) {
            for (Way& way : ways) {
                server_.WaitForSilence();
                const std::size_t begin = server_.Heard();
                way.start();
                way.milliseconds.push_back(1000 * server_.SecondsToSound(begin, kAudible));
                way.end();
            }
        }
        for (const Way& way : ways)
            std::printf("%-55s first sound after %5.1f ms (median of %d, slowest %.1f)\n", way.what,
                        Median(way.milliseconds), kRounds,
                        *std::max_element(way.milliseconds.begin(), way.milliseconds.end()));
    }

    double ProcessorOfAll() {
        return ProcessorSeconds() + ProcessorSecondsOf(processes_.ProcessOf("a")) +
               ProcessorSecondsOf(processes_.ProcessOf("b"));
    }

    void ProcessorWhile(const char* what, const std::function<void()>& poll) {
        server_.WaitForSound();
        const auto begin = Clock::now();
        const double before = ProcessorOfAll();
        while (Clock::now() - begin < kWatched) {
            poll();
            std::this_thread::sleep_for(kPoll);
        }
        const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
        // The recorder in this process is a part of every row.
        std::printf("%-55s %.2f %% of a core\n", what, 100 * (ProcessorOfAll() - before) / seconds);
    }

    sound::PrivateSound server_;
    sound::GeneratedMedia files_;
    std::string song_ = files_.Make("song.mp3", {.seconds = 90});
    gstreamer::MediaEngine engine_{[](std::string_view name) { return std::string(name); }};
    decoder::MediaProcesses processes_{DECODER_PROGRAM,
                                       [](std::string_view name) { return std::string(name); }};
};

}  // namespace

int main() {
    Bench bench;
    if (!bench.IsReady()) return EXIT_FAILURE;
    bench.Run();
    return EXIT_SUCCESS;
}
