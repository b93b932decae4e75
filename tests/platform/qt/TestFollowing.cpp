#include <gtest/gtest.h>

#include "platform/qt/Following.h"
#include "platform/qt/QtBench.h"

namespace {

struct FollowingTest : testing::Test {
    std::optional<qt::Following::Places> Places() const {
        if (!window) return std::nullopt;
        return qt::Following::Places{.on_display = *window, .known = known};
    }

    std::optional<QPoint> window = QPoint(100, 50);
    QPoint known{100, 50};
    QPoint picture{0, 0};
    qt::Following following{[this] { return Places(); }, [this](const QPoint& by) { picture += by; }};
};

TEST_F(FollowingTest, ThePictureGoesAlongBeforeTheToolkitKnows) {
    following.Look();
    window = QPoint(130, 45);
    following.Look();
    EXPECT_EQ(picture, QPoint(30, -5));

    window = QPoint(131, 45);
    following.Look();
    EXPECT_EQ(picture, QPoint(31, -5));
}

TEST_F(FollowingTest, WhatTheToolkitLearnsAfterwardsIsNotGoneTwice) {
    following.Look();
    window = QPoint(130, 50);
    following.Look();

    following.OnMoved(QPoint(34, 0));
    following.Look();

    EXPECT_EQ(picture, QPoint(34, 0));
}

TEST_F(FollowingTest, AToolkitThatIsToldAtOnceNeedsNoLook) {
    following.OnMoved(QPoint(10, 0));
    window = QPoint(110, 50);
    following.Look();

    EXPECT_EQ(picture, QPoint(10, 0));
}

TEST_F(FollowingTest, WhereThePlaceCannotBeToldNothingMoves) {
    window.reset();
    following.Look();
    window = known = QPoint(500, 500);
    following.Look();

    EXPECT_EQ(picture, QPoint(0, 0)) << "the first place that is known is where it is at rest";
}

// A song that is opened with the program cuts the hole while the window manager still places the window.
TEST_F(FollowingTest, AWindowOnItsWayToWhereTheToolkitHasItIsNotFollowed) {
    window = QPoint(0, 0);
    following.Look();
    window = QPoint(100, 51);
    following.Look();
    EXPECT_EQ(picture, QPoint(0, 0));

    window = QPoint(110, 51);
    following.Look();
    EXPECT_EQ(picture, QPoint(10, 0));
}

TEST_F(FollowingTest, ItLooksByItselfWhileItIsOn) {
    following.SetOn(true);
    following.Look();
    window = QPoint(120, 50);

    EXPECT_TRUE(qt_tests::WaitFor([this] { return picture == QPoint(20, 0); }));
    following.SetOn(false);
}

}  // namespace
