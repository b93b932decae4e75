#include "platform/gstreamer/Gain.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using gstreamer::Gain;

constexpr int kRate = 48000;
constexpr std::size_t kRampFrames = 240;  // five milliseconds
constexpr Gain::Clock::time_point kStart{std::chrono::seconds(1000)};
constexpr std::chrono::milliseconds kLead{50};
// What passes at the start is heard from here on.
constexpr auto kHeard = kStart + kLead;

std::vector<float> Ones(std::size_t frames) {
    return std::vector<float>(2 * frames, 1.0F);
}

TEST(Gain, FullLevelChangesNothing) {
    Gain gain;
    std::vector<float> samples = Ones(10);

    gain.Apply(samples.data(), 10, kRate, kHeard);

    EXPECT_EQ(samples, Ones(10));
    EXPECT_TRUE(gain.IsIdle());
}

TEST(Gain, EachChannelHasItsOwnLevel) {
    Gain gain;
    gain.SetLeft(250, kStart);
    gain.SetRight(500, kStart);
    gain.Snap();
    std::vector<float> samples = Ones(2);

    gain.Apply(samples.data(), 2, kRate, kHeard);

    EXPECT_FALSE(gain.IsIdle());
    EXPECT_EQ(samples, (std::vector<float>{0.25F, 0.5F, 0.25F, 0.5F}));
}

TEST(Gain, ANewLevelIsReachedInAnEvenRamp) {
    Gain gain;
    std::vector<float> before = Ones(1);
    gain.Apply(before.data(), 1, kRate, kHeard);
    gain.SetLeft(0, kStart);
    std::vector<float> samples = Ones(2 * kRampFrames);

    gain.Apply(samples.data(), 2 * kRampFrames, kRate, kHeard);

    float largest = 1 - samples[0];
    for (std::size_t i = 2; i < samples.size(); i += 2)
        largest = std::max(largest, samples[i - 2] - samples[i]);
    EXPECT_LT(largest, 1.5F / kRampFrames);
    EXPECT_NEAR(samples[kRampFrames], 0.5, 0.01);
    EXPECT_EQ(samples[samples.size() - 2], 0);
    EXPECT_EQ(samples.back(), 1);
}

TEST(Gain, ARampGoesOnFromBufferToBuffer) {
    Gain gain;
    std::vector<float> first = Ones(1);
    gain.Apply(first.data(), 1, kRate, kHeard);
    gain.SetLeft(0, kStart);
    gain.SetRight(0, kStart);
    std::vector<float> half = Ones(kRampFrames / 2);
    gain.Apply(half.data(), kRampFrames / 2, kRate, kHeard);
    std::vector<float> rest = Ones(kRampFrames);

    gain.Apply(rest.data(), kRampFrames, kRate, kHeard);

    EXPECT_NEAR(half.back(), 0.5, 0.01);
    EXPECT_NEAR(rest.front(), 0.5, 0.01);
    EXPECT_EQ(rest.back(), 0);
}

TEST(Gain, AChangeByItselfIsLaidOnTheNextSamplesOnBothSides) {
    Gain gain;
    gain.NoteLead(2 * kLead, kStart);
    std::vector<float> before = Ones(1);
    gain.Apply(before.data(), 1, kRate, kStart);
    gain.SetLeft(0, kStart);
    gain.SetRight(0, kStart + std::chrono::microseconds(100));
    std::vector<float> samples = Ones(2 * kRampFrames);

    gain.Apply(samples.data(), 2 * kRampFrames, kRate, kHeard);

    EXPECT_LT(samples[0], 1);
    EXPECT_EQ(samples[0], samples[1]);
    EXPECT_EQ(samples[samples.size() - 2], 0);
    EXPECT_EQ(samples.back(), 0);
}

TEST(Gain, ALevelOfARowIsHeardTheLongestLeadAfterItWasSet) {
    Gain gain;
    gain.NoteLead(kLead / 2, kStart);
    gain.NoteLead(kLead, kStart);
    gain.NoteLead(kLead / 2, kStart);
    std::vector<float> before = Ones(1);
    gain.Apply(before.data(), 1, kRate, kStart);
    gain.SetRight(500, kStart - std::chrono::milliseconds(100));
    gain.SetLeft(0, kStart);
    std::vector<float> samples = Ones(4 * kRampFrames);

    gain.Apply(samples.data(), 4 * kRampFrames, kRate, kHeard - std::chrono::milliseconds(10));

    EXPECT_EQ(samples[2 * (2 * kRampFrames - 1)], 1);
    EXPECT_NEAR(samples[2 * (2 * kRampFrames + kRampFrames / 2)], 0.5, 0.01);
    EXPECT_EQ(samples[2 * (3 * kRampFrames + 1)], 0);
}

TEST(Gain, AnOldLeadIsForgotten) {
    Gain gain;
    gain.NoteLead(4 * kLead, kStart);
    for (int i = 1; i <= 3; ++i)
        gain.NoteLead(kLead, kStart + i * std::chrono::milliseconds(600));

    EXPECT_EQ(gain.Delay(), kLead);
}

TEST(Gain, ALeadThatGrowsOrShrinksDoesNotTurnARowRound) {
    Gain gain;
    gain.NoteLead(kLead, kStart);
    gain.SetLeft(100, kStart);
    gain.SetLeft(200, kStart + std::chrono::milliseconds(20));
    for (int i = 1; i <= 3; ++i)
        gain.NoteLead(kLead / 10, kStart + i * std::chrono::milliseconds(600));
    gain.SetLeft(300, kStart + std::chrono::milliseconds(40));
    std::vector<float> samples = Ones(40 * kRampFrames);

    gain.Apply(samples.data(), 40 * kRampFrames, kRate, kStart);

    EXPECT_NEAR(samples[2 * static_cast<std::size_t>(0.085 * kRate)], 0.2, 0.01);
    EXPECT_NEAR(samples[samples.size() - 2], 0.3, 0.01);
}

TEST(Gain, ARowThatItsDelayBecameTooShortForGoesOnWithALongerOne) {
    Gain gain;
    gain.NoteLead(kLead / 2, kStart);
    gain.SetLeft(900, kStart);
    gain.SetLeft(800, kStart + std::chrono::milliseconds(20));
    gain.NoteLead(kLead, kStart);

    gain.SetLeft(700, kStart + std::chrono::milliseconds(40));

    EXPECT_EQ(gain.Delay(), kLead);
    std::vector<float> samples = Ones(40 * kRampFrames);
    gain.Apply(samples.data(), 40 * kRampFrames, kRate, kStart);
    EXPECT_NEAR(samples[2 * static_cast<std::size_t>(0.088 * kRate)], 0.8, 0.001);
    EXPECT_NEAR(samples[2 * static_cast<std::size_t>(0.097 * kRate)], 0.7, 0.001);
}

TEST(Gain, LevelsKeepTheirRhythmInOnePieceOfSamples) {
    Gain gain;
    gain.NoteLead(kLead, kStart);
    std::vector<float> before = Ones(1);
    gain.Apply(before.data(), 1, kRate, kStart);
    gain.SetRight(900, kStart);
    for (int step = 1; step <= 4; ++step)
        gain.SetRight(900 - 100 * step, kStart + step * std::chrono::milliseconds(10));
    std::vector<float> samples = Ones(10 * kRampFrames);

    gain.Apply(samples.data(), 10 * kRampFrames, kRate, kHeard);

    for (std::size_t step = 1; step <= 4; ++step) {
        const std::size_t settled = 2 * kRampFrames * step + kRampFrames + 2;
        EXPECT_NEAR(samples[2 * settled + 1], 0.9 - 0.1 * static_cast<double>(step), 1e-4) << step;
        EXPECT_EQ(samples[2 * settled], 1);
    }
}

TEST(Gain, SmallStepsOfARowHaveNoStairs) {
    Gain gain;
    gain.NoteLead(kLead, kStart);
    std::vector<float> before = Ones(1);
    gain.Apply(before.data(), 1, kRate, kStart);
    constexpr int kSteps = 5;
    constexpr std::chrono::milliseconds kApart{60};
    for (int step = 0; step <= kSteps; ++step)
        gain.SetLeft(1000 - 20 * step, kStart + step * kApart);
    constexpr std::size_t kFrames = std::size_t{kRate} * 60 / 1000 * (kSteps + 1);
    std::vector<float> samples = Ones(kFrames);

    gain.Apply(samples.data(), kFrames, kRate, kHeard);

    float largest = 0;
    for (std::size_t i = 2 * kRate * 130 / 1000; i < samples.size(); i += 2)
        largest = std::max(largest, samples[i - 2] - samples[i]);
    EXPECT_LT(largest, 1.1 * 0.02 / (0.06 * kRate)) << "an even slope from step to step";
    EXPECT_NEAR(samples[samples.size() - 2], 0.9, 1e-3);
}

TEST(Gain, AStepTakesAsLongAsItsRowAllows) {
    using std::chrono::milliseconds;
    EXPECT_EQ(Gain::RampOf(20, milliseconds(60)), 0.06);
    EXPECT_EQ(Gain::RampOf(-20, milliseconds(500)), Gain::kLongestRampSeconds);
    EXPECT_EQ(Gain::RampOf(10, milliseconds(1)), Gain::kRampSeconds);
    EXPECT_EQ(Gain::RampOf(10, milliseconds(700)), Gain::kRampSeconds);
    EXPECT_EQ(Gain::RampOf(-1000, milliseconds(60)), Gain::kRampSeconds);
}

TEST(Gain, WhatWasSetIsHeardOnceItsSamplesAre) {
    Gain gain;
    EXPECT_TRUE(gain.IsHeard(kStart));
    gain.NoteLead(kLead, kStart);
    gain.SetLeft(500, kStart);

    EXPECT_FALSE(gain.IsHeard(kStart + kLead));
    EXPECT_TRUE(gain.IsHeard(kStart + kLead + std::chrono::milliseconds(101)));
}

TEST(Gain, ALevelThatIsNotDueYetChangesNothing) {
    Gain gain;
    gain.NoteLead(2 * kLead, kStart);
    gain.SetLeft(1000, kStart - std::chrono::milliseconds(100));
    std::vector<float> before = Ones(1);
    gain.Apply(before.data(), 1, kRate, kStart);
    gain.SetLeft(300, kStart);
    std::vector<float> samples = Ones(10);

    gain.Apply(samples.data(), 10, kRate, kHeard - std::chrono::milliseconds(50));

    EXPECT_EQ(samples, Ones(10));
    EXPECT_FALSE(gain.IsIdle());
}

TEST(Gain, AfterAJumpTheNewestLevelsHoldAtOnce) {
    Gain gain;
    std::vector<float> before = Ones(1);
    gain.Apply(before.data(), 1, kRate, kStart);
    gain.SetLeft(100, kStart);
    gain.SetLeft(250, kStart);
    gain.Snap();
    std::vector<float> samples = Ones(2);

    gain.Apply(samples.data(), 2, kRate, kStart);

    EXPECT_EQ(samples, (std::vector<float>{0.25F, 1, 0.25F, 1}));
}

TEST(Gain, LevelsSetAfterAJumpKeepTheirTime) {
    Gain gain;
    gain.NoteLead(kLead, kStart);
    gain.SetLeft(0, kStart - std::chrono::milliseconds(100));
    gain.Snap();
    gain.SetLeft(1000, kStart);
    std::vector<float> samples = Ones(2);

    gain.Apply(samples.data(), 2, kRate, kStart);

    EXPECT_EQ(samples, (std::vector<float>{0, 1, 0, 1}));
}

TEST(Gain, BackAtFullItIsIdleAgain) {
    Gain gain;
    gain.SetLeft(100, kStart);
    gain.Snap();
    std::vector<float> samples = Ones(2 * kRampFrames);
    gain.Apply(samples.data(), 2 * kRampFrames, kRate, kHeard);
    gain.SetLeft(1000, kStart);

    gain.Apply(samples.data(), 2 * kRampFrames, kRate, kHeard);

    EXPECT_TRUE(gain.IsIdle());
}

}  // namespace
