// Where the time goes from the command to the first sound: the stages of a start, each with its median,
// beside a bare pipeline of the same engine. Everything goes to a private sound server.
//
//     chrt -r 1 first_sound     on a machine that has other work
#include <gst/gst.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/gstreamer/Gain.h"
#include "platform/gstreamer/MediaEngine.h"
#include "platform/gstreamer/Pipeline.h"
#include "real/sound/GeneratedMedia.h"
#include "real/sound/PrivateSound.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRounds = 11;
constexpr double kAudible = 0.02;

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

class Stages {
public:
    explicit Stages(std::vector<const char*> names) : names_(std::move(names)), times_(names_.size()) {}

    void Begin() {
        last_ = Clock::now();
        next_ = 0;
    }
    void End() {
        const auto now = Clock::now();
        Add(std::chrono::duration<double, std::milli>(now - std::exchange(last_, now)).count());
    }
    void Add(double milliseconds) { times_[next_++].push_back(milliseconds); }
    void Print(const char* what) const {
        std::printf("%s\n", what);
        double sum = 0;
        for (std::size_t i = 0; i < names_.size(); ++i) {
            sum += Median(times_[i]);
            std::printf("    %-44s %5.1f ms\n", names_[i], Median(times_[i]));
        }
        std::printf("    %-44s %5.1f ms\n", "all", sum);
    }

private:
    std::vector<const char*> names_;
    std::vector<std::vector<double>> times_;
    Clock::time_point last_;
    std::size_t next_ = 0;
};

class Bench {
public:
    bool IsReady() const { return server_.IsRunning(); }

    std::string Make(const std::string& kind) { return files_.Make("song." + kind, {.seconds = 30}); }
    void Run(const std::string& song, const std::string& kind) {
        TimeEngine(song, kind);
        TimePipeline(song, kind);
        TimeBare(song, kind);
    }

private:
    // From a place in the recording, less what the stages before took.
    double ToSound(std::size_t from, double before) {
        return 1000 * server_.SecondsToSound(from, kAudible) - before;
    }

    void TimeEngine(const std::string& song, const std::string& kind) {
        Stages stages({"open", "play, speed and place", "from there to the first sound"});
        gstreamer::MediaEngine engine([](std::string_view name) { return std::string(name); });
        for (int round = 0; round < kRounds; ++round) {
            server_.WaitForSilence();
            const std::size_t from = server_.Heard();
            const auto begin = Clock::now();
            stages.Begin();
            engine.SendString("open " + song + " type MPEGVideo alias a parent 77 style 1073741824");
            stages.End();
            engine.SendString("play a from 0 to 20000");
            engine.SendString("set a speed 1030");
            engine.SendString("put a window at 0 0 10 10");
            stages.End();
            stages.Add(
                ToSound(from, std::chrono::duration<double, std::milli>(Clock::now() - begin).count()));
            engine.SendString("close a");
        }
        stages.Print(("engine, " + kind).c_str());
    }

    void TimePipeline(const std::string& song, const std::string& kind) {
        Stages stages({"pipeline made ready", "told to play", "from there to the first sound"});
        for (int round = 0; round < kRounds; ++round) {
            server_.WaitForSilence();
            gstreamer::Pipeline pipeline(std::make_shared<gstreamer::Gain>(), [] {});
            const std::size_t from = server_.Heard();
            const auto begin = Clock::now();
            stages.Begin();
            pipeline.Open(song, 0, false, 1.03);
            stages.End();
            pipeline.Play();
            stages.End();
            stages.Add(
                ToSound(from, std::chrono::duration<double, std::milli>(Clock::now() - begin).count()));
        }
        stages.Print(("its pipeline alone, " + kind).c_str());
    }

    void TimeBare(const std::string& song, const std::string& kind) {
        Stages stages({"made and told to play", "from there to the first sound"});
        for (int round = 0; round < kRounds; ++round) {
            server_.WaitForSilence();
            const std::size_t from = server_.Heard();
            const auto begin = Clock::now();
            stages.Begin();
            GstElement* const bare = gst_parse_launch(
                ("filesrc location=" + song + " ! decodebin ! audioconvert ! audioresample ! pulsesink")
                    .c_str(),
                nullptr);
            gst_element_set_state(bare, GST_STATE_PLAYING);
            stages.End();
            stages.Add(
                ToSound(from, std::chrono::duration<double, std::milli>(Clock::now() - begin).count()));
            gst_element_set_state(bare, GST_STATE_NULL);
            gst_object_unref(bare);
        }
        stages.Print(("bare pipeline, " + kind).c_str());
    }

    sound::PrivateSound server_;
    sound::GeneratedMedia files_;
};

}  // namespace

int main() {
    Bench bench;
    if (!bench.IsReady()) return EXIT_FAILURE;
    // Before the engine sets the guard of real-time threads, which a busy encoder would meet.
    const std::string songs[] = {bench.Make("wav"), bench.Make("mp3")};
    gstreamer::LoadElements();
    bench.Run(songs[0], "wav");
    bench.Run(songs[1], "mp3");
    return EXIT_SUCCESS;
}
