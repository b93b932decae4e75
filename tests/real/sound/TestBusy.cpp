// A machine that has other work for all its cores.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

#include "platform/gstreamer/MediaEngine.h"
#include "real/sound/ControlPlayer.h"
#include "real/sound/PrivateSound.h"

namespace {

using sound::Gap;

constexpr double kSeconds = 60;
constexpr double kQuiet = 0.01;
constexpr double kGap = 0.003;  // a tone of 440 hertz passes through the quiet in a tenth of that

TEST(Gaps, ARunOfQuietSamplesIsFoundAndThoseThatTheControlHasTooAreNotOnesOwn) {
    std::vector<float> samples(sound::kRate, 1.0F);
    std::fill_n(samples.begin() + 1000, 500, 0.0F);
    std::fill_n(samples.begin() + 30000, 500, 0.0F);
    std::vector<float> control(sound::kRate, 1.0F);
    std::fill_n(control.begin() + 2000, 500, 0.0F);

    const auto gaps = sound::Gaps(samples, kQuiet, 0.01);
    const auto own = sound::OwnGaps(gaps, sound::Gaps(control, kQuiet, 0.01));

    ASSERT_EQ(gaps.size(), 2U);
    EXPECT_EQ(gaps[0].begin, 1000U);
    EXPECT_EQ(gaps[0].end, 1500U);
    ASSERT_EQ(own.size(), 1U);
    EXPECT_EQ(own[0].begin, 30000U);
}

TEST(Busy, ASongIsHeardWithoutAGapWhileEveryCoreHasOtherWork) {
    sound::PrivateSound server;
    ASSERT_TRUE(server.IsRunning());
    sound::GeneratedMedia files;
    const std::string song =
        files.Make("song.mp3", {.hertz = 440, .seconds = kSeconds + 30, .amplitude = 0.4, .right = false});
    const sound::ControlPlayer control(files, kSeconds + 30);
    const sound::OtherWork work;
    gstreamer::MediaEngine engine([](std::string_view name) { return std::string(name); });
    ASSERT_EQ(engine.SendString("open " + song + " type MPEGVideo alias a").error, 0);
    engine.SendString("play a");
    engine.SendString("set a speed 1030");
    ASSERT_TRUE(server.WaitForSound());
    std::this_thread::sleep_for(std::chrono::seconds(1));

    const sound::Samples heard = server.Record(kSeconds);

    ASSERT_GT(heard.Seconds(), kSeconds - 1);
    const auto gaps = sound::Gaps(heard.left, kQuiet, kGap);
    const auto of_control = sound::Gaps(heard.right, kQuiet, kGap);
    const auto own = sound::OwnGaps(gaps, of_control);
    std::printf("%zu gaps, %zu of the control player\n", gaps.size(), of_control.size());
    for (const Gap& gap : own)
        ADD_FAILURE() << 1000 * gap.Seconds() << " ms of silence at " << gap.begin / sound::kRate << " s";
    // A control that is not heard excuses everything.
    EXPECT_LT(of_control.size(), 20U);
    EXPECT_GT(sound::Amplitude(sound::Piece(heard.right, 0, sound::kRate), 1501), 0.2);
}

}  // namespace
