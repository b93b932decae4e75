#include "platform/gstreamer/Gain.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int kRate = 48000;
constexpr std::size_t kRampFrames = 240;  // five milliseconds

std::vector<float> Ones(std::size_t frames) {
    return std::vector<float>(2 * frames, 1.0F);
}

TEST(Gain, FullLevelChangesNothing) {
    gstreamer::Gain gain;
    std::vector<float> samples = Ones(10);

    gain.Apply(samples.data(), 10, kRate);

    EXPECT_EQ(samples, Ones(10));
    EXPECT_TRUE(gain.IsIdle());
}

TEST(Gain, EachChannelHasItsOwnLevel) {
    gstreamer::Gain gain;
    gain.SetLeft(250);
    gain.SetRight(500);
    gain.Snap();
    std::vector<float> samples = Ones(2);

    gain.Apply(samples.data(), 2, kRate);

    EXPECT_FALSE(gain.IsIdle());
    EXPECT_EQ(samples, (std::vector<float>{0.25F, 0.5F, 0.25F, 0.5F}));
}

TEST(Gain, ANewLevelIsReachedInAnEvenRamp) {
    gstreamer::Gain gain;
    std::vector<float> before = Ones(1);
    gain.Apply(before.data(), 1, kRate);
    gain.SetLeft(0);
    std::vector<float> samples = Ones(2 * kRampFrames);

    gain.Apply(samples.data(), 2 * kRampFrames, kRate);

    float largest = 1 - samples[0];
    for (std::size_t i = 2; i < samples.size(); i += 2)
        largest = std::max(largest, samples[i - 2] - samples[i]);
    EXPECT_LT(largest, 1.5F / kRampFrames);
    EXPECT_NEAR(samples[kRampFrames], 0.5, 0.01);
    EXPECT_EQ(samples[samples.size() - 2], 0);
    EXPECT_EQ(samples.back(), 1);
}

TEST(Gain, ARampGoesOnFromBufferToBuffer) {
    gstreamer::Gain gain;
    std::vector<float> first = Ones(1);
    gain.Apply(first.data(), 1, kRate);
    gain.SetLeft(0);
    gain.SetRight(0);
    std::vector<float> half = Ones(kRampFrames / 2);
    gain.Apply(half.data(), kRampFrames / 2, kRate);
    std::vector<float> rest = Ones(kRampFrames);

    gain.Apply(rest.data(), kRampFrames, kRate);

    EXPECT_NEAR(half.back(), 0.5, 0.01);
    EXPECT_NEAR(rest.front(), 0.5, 0.01);
    EXPECT_EQ(rest.back(), 0);
}

TEST(Gain, BackAtFullItIsIdleAgain) {
    gstreamer::Gain gain;
    gain.SetLeft(100);
    gain.Snap();
    std::vector<float> samples = Ones(2 * kRampFrames);
    gain.Apply(samples.data(), 2 * kRampFrames, kRate);
    gain.SetLeft(1000);

    gain.Apply(samples.data(), 2 * kRampFrames, kRate);

    EXPECT_TRUE(gain.IsIdle());
}

}  // namespace
