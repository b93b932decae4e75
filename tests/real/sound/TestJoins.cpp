// Songs without a gap: one recording, cut in two files, is heard as one.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

#include "real/sound/PlayingHouse.h"

namespace {

using sound::kRate;
using sound::PlayingHouse;
using sound::Samples;

constexpr double kAmplitude = 0.4;
constexpr double kHertz = 440.37;
constexpr double kSeconds = 4.0137;  // the cut is in no particular place of the tone
constexpr double kQuiet = 0.02;

/// Both halves of a recording, in a list with the fade off for good.
class Album {
public:
    explicit Album(const std::string& kind) {
        const std::string from_the_cut =
            "sin(2*PI*" + std::to_string(kHertz) + "*(t+" + std::to_string(kSeconds) + "))";
        first = files.Make("first." + kind, {.hertz = kHertz, .seconds = kSeconds, .amplitude = kAmplitude});
        second = files.Make("second." + kind,
                            {.seconds = kSeconds, .amplitude = kAmplitude, .wave = from_the_cut});
    }

    sound::GeneratedMedia files;
    std::string first;
    std::string second;
};

class Joins : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server.IsRunning()); }

    /// Plays the first half from its beginning, and returns what was heard around the cut.
    Samples PlayOverTheCut(PlayingHouse& house, const Album& album) {
        house.state.FadeSeconds = 0;
        house.SetOrder({album.first, album.second});
        house.menu.mnuFadeOff.Click.Raise();
        house.DoubleClickTrack(0);
        house.player.RestoreBars();
        const auto is_second = [&house, &album] {
            return house.NowPlaying() == house.files.FromNative(album.second);
        };
        EXPECT_TRUE(house.RunUntil(is_second, kSeconds + 4)) << "the second half never began";
        const std::size_t cut = std::max<std::size_t>(house.media.Now(), kRate);
        house.RunUntil([] { return false; }, 1.5);
        return server.Between(cut - kRate, cut + kRate);
    }

    sound::PrivateSound server;
};

void Tell(const char* kind, const Samples& heard) {
    std::printf("%s: quiet for %.2f ms at the most, steps of %.3f (the tone's own %.3f)\n", kind,
                sound::LongestGap(heard.left, kQuiet) * 1000, sound::LargestStep(heard.left),
                kAmplitude * 2 * M_PI * kHertz / kRate);
}

TEST_F(Joins, OneRecordingInTwoFilesIsHeardAsOne) {
    const Album album("wav");
    PlayingHouse house(server);

    const Samples heard = PlayOverTheCut(house, album);

    Tell("wav", heard);
    ASSERT_GT(heard.Seconds(), 1.9);
    // A tone passes through nothing; at the cut it does so no longer than anywhere else.
    EXPECT_LT(sound::LongestGap(heard.left, kQuiet), 0.0005);
    // The speed of the program is not quite the recording's: stretched sound has seams of its own.
    EXPECT_LT(sound::LargestStep(heard.left), 2.5 * kAmplitude * 2 * M_PI * kHertz / kRate);
}

TEST_F(Joins, WhatAnEncoderPutAroundItIsLeftOut) {
    const Album album("mp3");
    PlayingHouse house(server);

    const Samples heard = PlayOverTheCut(house, album);

    Tell("mp3", heard);
    ASSERT_GT(heard.Seconds(), 1.9);
    EXPECT_LT(sound::LongestGap(heard.left, kQuiet), 0.010);
}

TEST_F(Joins, WhatIsTakenBackIsNotHeard) {
    const Album album("wav");
    PlayingHouse house(server);
    house.state.FadeSeconds = 0;
    house.SetOrder({album.first, album.second});
    house.menu.mnuFadeOff.Click.Raise();
    house.DoubleClickTrack(0);
    house.player.RestoreBars();
    house.RunUntil([] { return false; }, kSeconds - 1.2);  // by now the second half is read

    house.menu.mnuShuffle.Click.Raise();
    house.player.Stop();
    const std::size_t stopped = house.media.Now();

    house.RunUntil([] { return false; }, 2);
    const Samples after = server.Between(stopped + kRate / 4, stopped + kRate);
    EXPECT_LT(sound::Rms(after.left), 0.001);
}

}  // namespace
