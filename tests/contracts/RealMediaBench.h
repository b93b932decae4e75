// The files and the clock of a media control interface that plays real ones.
#pragma once

#include <chrono>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>

#include "contracts/LengthlessFile.h"
#include "contracts/MediaControlContract.h"
#include "real/sound/GeneratedMedia.h"

namespace contracts {

/// Without a sound server, so that it runs everywhere: the sound goes nowhere, in real time.
template <class Engine>
class RealMediaBench final : public MediaControlBench {
public:
    RealMediaBench() { setenv("PULSE_SERVER", "unix:/nonexistent/native", 1); }
    ports::MediaControl& Media() override { return engine_; }
    std::string Song() override { return files_.Make("song.wav", {.seconds = 2}); }
    std::string Film() override { return files_.Make("film.mp4", {.seconds = 2}); }
    std::string Broken() override { return files_.Write("broken.mp3", std::string(5000, 'x')); }
    std::string Missing() override { return files_.Path("missing.mp3"); }
    std::string Lengthless() override { return MakeLengthless(files_); }
    std::string Blank() override { return files_.Make("a song.wav", {.seconds = 2}); }
    // The clock of the sound is the real one.
    void Pass(int milliseconds) override {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }

private:
    sound::GeneratedMedia files_;
    Engine engine_{[](std::string_view name) { return std::string(name); }};
};

}  // namespace contracts
