// From the command to the first sound in a recording, and what a playing song costs; each beside a bare
// pipeline of the same engine in the same run. Everything goes to a private sound server.
#include <gst/gst.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

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
        TimeToSound(
            "engine, open and play", [this] { Start(); }, [this] { Send("close a"); });
        TimeToSound(
            "engine, open, play and speed 1030 as the player does",
            [this] {
                Start();
                Send("set a speed 1030");
            },
            [this] { Send("close a"); });
        std::unique_ptr<BarePipeline> bare;
        TimeToSound(
            "bare pipeline", [&] { bare = std::make_unique<BarePipeline>(song_); }, [&] { bare.reset(); });
        Start();
        ProcessorWhile("engine, place and length every 50 ms", [this] {
            Ask("status a position");
            Ask("status a length");
        });
        ProcessorWhile("engine, not asked", [] {});
        Send("close a");
        bare = std::make_unique<BarePipeline>(song_);
        ProcessorWhile("bare pipeline", [] {});
    }

private:
    void Send(const std::string& command) { engine_.SendString(command); }
    void Ask(const std::string& command) { engine_.SendString(command); }
    void Start() {
        Send("open " + song_ + " type MPEGVideo Alias a parent 0 Style 1073741824");
        Send("play a from 0 to 60000");
    }

    void TimeToSound(const char* what, const std::function<void()>& start, const std::function<void()>& end) {
        std::vector<double> milliseconds;
        for (int round = 0; round < kRounds; ++round) {
            server_.WaitForSilence();
            const std::size_t begin = server_.Heard();
            start();
            milliseconds.push_back(1000 * server_.SecondsToSound(begin, kAudible));
            end();
        }
        std::printf("%-55s first sound after %5.1f ms (median of %d, slowest %.1f)\n", what,
                    Median(milliseconds), kRounds,
                    *std::max_element(milliseconds.begin(), milliseconds.end()));
    }

    void ProcessorWhile(const char* what, const std::function<void()>& poll) {
        server_.WaitForSound();
        const auto begin = Clock::now();
        const double before = ProcessorSeconds();
        while (Clock::now() - begin < kWatched) {
            poll();
            std::this_thread::sleep_for(kPoll);
        }
        const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
        // The recorder in this process is a part of every row.
        std::printf("%-55s %.2f %% of a core\n", what, 100 * (ProcessorSeconds() - before) / seconds);
    }

    sound::PrivateSound server_;
    sound::GeneratedMedia files_;
    std::string song_ = files_.Make("song.mp3", {.seconds = 90});
    gstreamer::MediaEngine engine_{[](std::string_view name) { return std::string(name); }};
};

}  // namespace

int main() {
    Bench bench;
    if (!bench.IsReady()) return EXIT_FAILURE;
    bench.Run();
    return EXIT_SUCCESS;
}
