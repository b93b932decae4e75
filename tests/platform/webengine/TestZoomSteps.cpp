#include "platform/webengine/ZoomSteps.h"

#include <gtest/gtest.h>

namespace {

using webengine::NextZoom;

TEST(ZoomSteps, AStepGoesToTheNextOfTheUsualFactors) {
    EXPECT_DOUBLE_EQ(NextZoom(1.0, 1), 1.1);
    EXPECT_DOUBLE_EQ(NextZoom(1.0, -1), 0.9);
    EXPECT_DOUBLE_EQ(NextZoom(1.0, 3), 1.5);
}

TEST(ZoomSteps, AFactorBetweenStepsGoesToItsNeighbour) {
    EXPECT_DOUBLE_EQ(NextZoom(1.2, 1), 1.25);
    EXPECT_DOUBLE_EQ(NextZoom(1.2, -1), 1.1);
}

TEST(ZoomSteps, TheEnginesBoundsHold) {
    EXPECT_DOUBLE_EQ(NextZoom(5.0, 1), 5.0);
    EXPECT_DOUBLE_EQ(NextZoom(0.25, -1), 0.25);
    EXPECT_DOUBLE_EQ(NextZoom(1.0, 1000), 5.0);
    EXPECT_DOUBLE_EQ(NextZoom(1.0, -1000), 0.25);
}

}  // namespace
