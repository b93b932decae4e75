// What is heard: the engine on a sound server of its own, recorded and measured.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include "real/sound/Engine.h"
#include "real/sound/GeneratedMedia.h"
#include "real/sound/PrivateSound.h"

namespace {

using sound::Amplitude;
using sound::Rms;
using sound::Samples;
using Clock = std::chrono::steady_clock;

constexpr double kTone = 600;
constexpr double kOtherTone = 1500;
constexpr double kFull = 0.5;  // amplitude of the tones in the files

class Sound : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server_.IsRunning()); }

    int Send(const std::string& command) { return engine_.SendString(command).error; }
    std::string Ask(const std::string& command) {
        const ports::MediaReply reply = engine_.SendString(command);
        EXPECT_EQ(reply.error, 0) << command;
        return reply.text;
    }
    int Place() { return std::stoi(Ask("status a position")); }
    void Play(const std::string& path, const std::string& alias = "a") {
        ASSERT_EQ(Send("open " + path + " type MPEGVideo Alias " + alias), 0) << path;
        ASSERT_EQ(Send("play " + alias), 0);
        ASSERT_TRUE(server_.WaitForSound());
    }
    std::string Song(double hertz = kTone, double seconds = 30) {
        return files_.Make("song" + std::to_string(static_cast<int>(hertz)) + ".wav",
                           {.hertz = hertz, .seconds = seconds, .amplitude = kFull});
    }
    // What is heard once the levels that were set last have reached the speaker.
    Samples Settled() {
        server_.Record(0.4);
        return server_.Record(0.5);
    }

    sound::PrivateSound server_;
    sound::GeneratedMedia files_;
    sound::Engine engine_{[](std::string_view name) { return std::string(name); }};
};

TEST_F(Sound, ASongIsHeardAsItIs) {
    Play(Song());

    const Samples heard = Settled();

    EXPECT_NEAR(Amplitude(heard.left, kTone), kFull, 0.01);
    EXPECT_NEAR(Amplitude(heard.right, kTone), kFull, 0.01);
    EXPECT_LT(Amplitude(heard.left, kOtherTone), 0.001);
}

TEST_F(Sound, EveryKindOfTheMediaListsIsHeard) {
    for (const std::string& kind : sound::GeneratedMedia::Kinds()) {
        const double hertz = kind == "mid" ? 880 : kTone;
        const std::string path =
            files_.Make("file." + kind, {.hertz = hertz, .seconds = 4, .amplitude = kFull});
        Play(path);

        const Samples heard = server_.Record(0.4);
        Send("close a");

        EXPECT_NEAR(sound::Pitch(heard.left, hertz - 100, hertz + 100), hertz, hertz * 0.01) << kind;
        EXPECT_GT(Amplitude(heard.left, hertz), kind == "mid" ? 0.005 : 0.3) << kind;
        EXPECT_TRUE(server_.WaitForSilence()) << kind;
    }
}

TEST_F(Sound, LevelsAreAmplitudesAndEachChannelHasItsOwn) {
    Play(Song());
    struct Case {
        const char* command;
        double left;
        double right;
    };
    for (const Case& now :
         {Case{"setaudio a volume to 500", 0.5, 0.5}, Case{"setaudio a left volume to 1000", 1, 0.5},
          Case{"setaudio a right volume to 0", 1, 0}, Case{"setaudio a left volume to 100", 0.1, 0},
          Case{"setaudio a right volume to 770", 0.1, 0.77}, Case{"setaudio a volume to 0", 0, 0}}) {
        Send(now.command);

        const Samples heard = Settled();

        EXPECT_NEAR(Amplitude(heard.left, kTone), now.left * kFull, 0.005) << now.command;
        EXPECT_NEAR(Amplitude(heard.right, kTone), now.right * kFull, 0.005) << now.command;
    }
}

TEST_F(Sound, AChangeOfLevelDoesNotClick) {
    const double steepest = 2 * 3.1416 * 100 / sound::kRate * kFull;
    Play(Song(100));
    const Samples before = Settled();
    Send("setaudio a volume to 0");
    const Samples down = server_.Record(0.4);
    Send("setaudio a volume to 1000");
    const Samples up = server_.Record(0.4);

    EXPECT_LT(sound::LargestStep(before.left), steepest * 1.05);
    EXPECT_LT(sound::LargestStep(down.left), steepest * 1.6);
    EXPECT_LT(sound::LargestStep(up.left), steepest * 1.6);
    EXPECT_LT(Rms({down.left.end() - 2000, down.left.end()}), 0.001);
    EXPECT_GT(Rms({up.left.end() - 2000, up.left.end()}), 0.3);
}

TEST_F(Sound, ASongOpenedAtNoLevelIsNotHeardAtItsStart) {
    ASSERT_EQ(Send("open " + Song() + " type MPEGVideo Alias a"), 0);
    Send("setaudio a volume to 0");
    Send("play a");

    const Samples heard = server_.Record(1);

    EXPECT_EQ(sound::FirstLouderThan(heard.left, 0.0005), heard.left.size());
    EXPECT_GT(Place(), 300);
}

TEST_F(Sound, PauseIsSilentAndHoldsThePlace) {
    Play(Song());

    Send("pause a");
    EXPECT_TRUE(server_.WaitForSilence(2));
    const int place = Place();
    EXPECT_LT(Rms(server_.Record(0.5).left), 0.001);
    EXPECT_EQ(Place(), place);
    Send("resume a");

    EXPECT_TRUE(server_.WaitForSound(2));
    EXPECT_NEAR(Place(), place + 100, 250);
}

TEST_F(Sound, StopAndCloseAreSilent) {
    Play(Song());
    Send("stop a");
    const bool stopped = server_.WaitForSilence(2);
    Send("play a");
    const bool again = server_.WaitForSound(2);
    Send("close a");

    EXPECT_TRUE(stopped);
    EXPECT_TRUE(again);
    EXPECT_TRUE(server_.WaitForSilence(2));
}

TEST_F(Sound, ASeekIsHeard) {
    const std::string path = files_.Path("two.wav");
    const std::string first = Song(kTone, 3);
    const std::string second = Song(kOtherTone, 3);
    sound::Child joined({"ffmpeg", "-loglevel", "error", "-i", first, "-i", second, "-filter_complex",
                         "[0:a][1:a]concat=n=2:v=0:a=1", path});
    ASSERT_EQ(joined.Wait(20), 0);
    Play(path);

    Send("seek a to 4000");
    Send("play a");

    EXPECT_TRUE(
        server_.WaitFor([](const Samples& heard) { return Amplitude(heard.left, kOtherTone) > 0.4; }, 2));
    EXPECT_GE(Place(), 4000);
    EXPECT_LT(Place(), 5500);
}

TEST_F(Sound, BothAliasesAreHeardTogetherAtTheirOwnLevels) {
    Play(Song(kTone), "a");
    Play(Song(kOtherTone), "b");
    Send("setaudio b volume to 300");

    const Samples heard = Settled();
    Send("close a");
    const Samples alone = Settled();

    EXPECT_NEAR(Amplitude(heard.left, kTone), kFull, 0.01);
    EXPECT_NEAR(Amplitude(heard.left, kOtherTone), 0.3 * kFull, 0.01);
    EXPECT_LT(Amplitude(alone.left, kTone), 0.001);
    EXPECT_NEAR(Amplitude(alone.left, kOtherTone), 0.3 * kFull, 0.01);
}

TEST_F(Sound, ASongGoesOnInRealTimeWhenItsServerDies) {
    Play(Song());
    server_.Record(0.5);
    server_.KillServer();
    const auto begin = Clock::now();
    const int place = Place();

    while (Clock::now() - begin < std::chrono::seconds(4) && Place() < place + 3000) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();

    EXPECT_EQ(Ask("status a mode"), "playing");
    EXPECT_NEAR(seconds, 3, 0.6);
}

TEST_F(Sound, ASongIsHeardAgainAtItsPlaceOnceItsServerIsBack) {
    Play(Song());
    server_.KillServer();
    const int place = Place();
    const auto killed = Clock::now();
    while (Place() < place + 1500)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));

    ASSERT_TRUE(server_.RestartServer());
    const bool heard = server_.WaitForSound(1.5);
    const double passed = std::chrono::duration<double>(Clock::now() - killed).count();

    EXPECT_TRUE(heard);
    EXPECT_EQ(Ask("status a mode"), "playing");
    EXPECT_NEAR(Place(), place + 1000 * passed, 500);
    EXPECT_NEAR(Amplitude(Settled().left, kTone), kFull, 0.01);
}

TEST_F(Sound, APausedSongIsHeardAgainWhenItGoesOnAfterARestart) {
    Play(Song());
    Send("setaudio a left volume to 500");
    Send("pause a");
    const int place = Place();
    server_.KillServer();

    ASSERT_TRUE(server_.RestartServer());
    Send("resume a");

    EXPECT_TRUE(server_.WaitForSound(1.5));
    EXPECT_NEAR(Place(), place + 750, 750);
    const Samples heard = Settled();
    EXPECT_GT(Amplitude(heard.right, kTone), 0.8 * kFull);
    EXPECT_NEAR(Amplitude(heard.left, kTone), Amplitude(heard.right, kTone) / 2, 0.01);
}

TEST_F(Sound, ASongThatStartedWithoutAServerIsHeardOnceThereIsOne) {
    server_.KillServer();
    ASSERT_EQ(Send("open " + Song() + " type MPEGVideo Alias a"), 0);
    ASSERT_EQ(Send("play a"), 0);

    ASSERT_TRUE(server_.RestartServer());

    EXPECT_TRUE(server_.WaitForSound(1.5));
}

// Each restart ends what the songs before it had with the server.
TEST_F(Sound, TheNextSongIsHeardAfterEachRestartOfTheServer) {
    for (int restart = 0; restart < 2; ++restart) {
        Play(Song());
        ASSERT_EQ(Send("close a"), 0);
        server_.KillServer();
        ASSERT_TRUE(server_.RestartServer());
    }

    Play(Song());

    EXPECT_NEAR(Amplitude(Settled().left, kTone), kFull, 0.01);
}

TEST_F(Sound, AFrozenServerHoldsUpNoCommand) {
    const std::string song = Song();
    Play(song);
    server_.FreezeServer();
    double slowest = 0;

    for (const char* command : {"status a position", "pause a", "resume a", "seek a to 5000", "play a",
                                "setaudio a volume to 500", "set a speed 500", "stop a", "close a"}) {
        const auto begin = Clock::now();
        EXPECT_EQ(Send(command), 0) << command;
        slowest = std::max(slowest, std::chrono::duration<double>(Clock::now() - begin).count());
    }
    const auto begin = Clock::now();
    const int opened = Send("open " + song + " type MPEGVideo Alias a");
    const double opening = std::chrono::duration<double>(Clock::now() - begin).count();
    server_.ThawServer();

    EXPECT_LT(slowest, 0.1);
    EXPECT_TRUE(opened == 0 || opened == 276) << opened;
    EXPECT_LT(opening, 5.5);
}

// A machine that stands still for a moment, as one whose processors others share: its server then takes in
// one piece what it has missed, and the player cannot hand over more before that.
TEST_F(Sound, AServerThatStandsStillForAMomentIsNotHeardToDoSo) {
    constexpr std::chrono::milliseconds kMoment{20};
    constexpr std::chrono::milliseconds kLongest{22};  // what comes later is the machine's own standing still
    constexpr std::chrono::milliseconds kBetween{93};
    constexpr int kMoments = 20;
    Play(Song());
    const double steady = sound::LargestStep(Settled().left);
    int judged = 0;

    for (int i = 0; i < kMoments; ++i) {
        const std::size_t begin = server_.Heard();
        const auto frozen_at = Clock::now();
        server_.FreezeServer();
        std::this_thread::sleep_for(kMoment);
        server_.ThawServer();
        const auto frozen = Clock::now() - frozen_at;
        std::this_thread::sleep_for(kBetween);
        if (frozen > kLongest) continue;
        const Samples heard = server_.Between(begin, server_.Heard());
        EXPECT_LE(sound::LargestStep(heard.left), 1.01 * steady);
        EXPECT_LT(sound::LongestGap(heard.left, 0.02 * kFull), 0.001);
        ++judged;
    }

    EXPECT_GE(judged, kMoments / 2);
}

}  // namespace
