// How soon a hand is heard: mute, the knob, and what must not be heard at all.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "real/sound/PlayingHouse.h"

namespace {

using sound::kRate;
using sound::PlayingHouse;
using sound::Samples;

constexpr double kTone = 997.3;
constexpr double kFull = 0.4;  // amplitude of the tone in the files
constexpr double kAim = 50;    // milliseconds
constexpr int kTurns = 9;

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void Tell(const char* what, const std::vector<double>& milliseconds) {
    const auto [least, most] = std::minmax_element(milliseconds.begin(), milliseconds.end());
    std::printf("%s: heard after %.1f ms, %.1f to %.1f\n", what, Median(milliseconds), *least, *most);
}

/// Milliseconds from the beginning to where the tone has gone more than half of its way from one level to
/// another, of full; negative when it never does.
double MillisecondsToTurn(const std::vector<float>& heard, double from, double to) {
    constexpr std::size_t kWindow = kRate / 250;
    const double half = (from + to) / 2;
    for (std::size_t begin = 0; begin + kWindow <= heard.size(); begin += kRate / 1000) {
        const double level = std::sqrt(2.0) * sound::Rms(sound::Piece(heard, begin, kWindow)) / kFull;
        const bool is_turned = from > to ? level < half : level > half;
        if (is_turned) return 1000.0 * (static_cast<double>(begin) + kWindow / 2.0) / kRate;
    }
    return -1;
}

class Promptness : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server_.IsRunning()); }

    std::string Song() {
        return files_.Make("song.wav", {.hertz = kTone, .seconds = 60, .amplitude = kFull});
    }
    void Rest(double seconds) {
        house_.RunUntil([] { return false; }, seconds);
    }
    void StartSong() {
        house_.Play(Song());
        ASSERT_TRUE(server_.WaitForSound());
        Rest(1.5);
    }
    void ToggleMute() { house_.menu.mnuMusicMute.Click.Raise(); }
    /// What mutes and pauses; what the sound server still holds is not heard after it.
    void ExpectSilenceAfterPause(const std::function<void()>& mute_and_pause) {
        StartSong();
        for (int i = 0; i < 5; ++i) {
            mute_and_pause();
            const std::size_t begin = server_.Heard();
            house_.mci.MciResume("a");
            Rest(0.5);
            const Samples heard = server_.Between(begin, server_.Heard());
            EXPECT_EQ(sound::FirstLouderThan(heard.left, 0), heard.left.size());

            ToggleMute();
            ASSERT_TRUE(server_.WaitForSound(2));
            Rest(0.7);
        }
    }
    double TimeTurn(const std::function<void()>& turn, double from, double to) {
        Rest(0.7);
        const std::size_t begin = house_.media.Now();
        turn();
        Rest(0.3);
        const double milliseconds =
            MillisecondsToTurn(server_.Between(begin, begin + kRate / 4).left, from, to);
        EXPECT_GE(milliseconds, 0) << "never heard";
        return milliseconds;
    }

    sound::PrivateSound server_;
    sound::GeneratedMedia files_;
    PlayingHouse house_{server_};
};

TEST_F(Promptness, MuteIsHeardWithin50Milliseconds) {
    StartSong();
    std::vector<double> off;
    std::vector<double> on;
    for (int i = 0; i < kTurns; ++i) {
        off.push_back(TimeTurn([&] { house_.menu.mnuMusicMute.Click.Raise(); }, 1, 0));
        on.push_back(TimeTurn([&] { house_.menu.mnuMusicMute.Click.Raise(); }, 0, 1));
    }

    EXPECT_LE(Median(off), kAim);
    EXPECT_LE(Median(on), kAim);
    Tell("mute", off);
    Tell("end of mute", on);
}

TEST_F(Promptness, ATurnOfTheKnobIsHeardWithin50Milliseconds) {
    StartSong();
    std::vector<double> turns;
    const auto turn_to = [&](int percent) {
        player_tests::PlayerHouse::Press(house_.controls.levels.lblVol, percent * player::kUnitsPerPercent);
    };
    for (int i = 0; i < kTurns; ++i) {
        turns.push_back(TimeTurn([&] { turn_to(30); }, 1, 0.3));
        turns.push_back(TimeTurn([&] { turn_to(100); }, 0.3, 1));
    }

    EXPECT_LE(Median(turns), kAim);
    Tell("knob", turns);
}

TEST_F(Promptness, MuteOfAPausedSongLetsNothingThrough) {
    ExpectSilenceAfterPause([this] {
        house_.mci.MciPause("a");
        ASSERT_TRUE(server_.WaitForSilence(2));
        Rest(0.2);
        ToggleMute();
    });
}

TEST_F(Promptness, MuteJustBeforeAPauseLetsNothingThroughAfterIt) {
    ExpectSilenceAfterPause([this] {
        ToggleMute();
        house_.mci.MciPause("a");
        ASSERT_TRUE(server_.WaitForSilence(2));
        Rest(0.3);
    });
}

// The level of a muted song is told after it was started; what holds up the player in between is not heard.
TEST_F(Promptness, AStartUnderMuteLetsNothingThroughHoweverLateItIsTold) {
    const std::string song = Song();
    for (const int held_up : {0, 10, 30, 60}) {
        SCOPED_TRACE(held_up);
        const std::size_t begin = server_.Heard();
        ASSERT_EQ(house_.media.SendString("open " + song + " type MPEGVideo alias a parent 77 style 1").error,
                  0);
        house_.media.SendString("play a from 0 to 60000");
        std::this_thread::sleep_for(std::chrono::milliseconds(held_up));
        house_.media.SendString("set a speed 1030");
        house_.media.SendString("setaudio a volume to 0");
        house_.media.SendString("put a window at 0 0 100 100");
        Rest(0.6);
        const Samples heard = server_.Between(begin, server_.Heard());
        EXPECT_EQ(sound::FirstLouderThan(heard.left, 0), heard.left.size());
        EXPECT_GT(house_.mci.MciPosition("a"), 100);
        house_.media.SendString("close a");
    }
}

}  // namespace
