#include <gtest/gtest.h>

#include <vector>

#include "controls/RecordingObserver.h"
#include "controls/Timer.h"
#include "fakes/FakeDesktop.h"

namespace controls {
namespace {

class TimerTest : public testing::Test {
protected:
    TimerTest() {
        claims_.Claim(timer_.Tick, [this] { ++ticks_; });
        desktop_.AdoptTimer(timer_);
    }

    fakes::FakeDesktop desktop_;
    Timer timer_{"tmrPlay", 50};
    EventClaims claims_;
    int ticks_ = 0;
};

TEST_F(TimerTest, StandsStillUntilItIsEnabled) {
    desktop_.Advance(500);

    EXPECT_EQ(ticks_, 0);
    EXPECT_FALSE(timer_.Enabled());
}

TEST_F(TimerTest, TicksEveryIntervalWhileEnabled) {
    timer_.SetEnabled(true);
    desktop_.Advance(49);
    EXPECT_EQ(ticks_, 0);
    desktop_.Advance(101);
    EXPECT_EQ(ticks_, 3);

    timer_.SetEnabled(false);
    desktop_.Advance(500);
    EXPECT_EQ(ticks_, 3);
}

TEST_F(TimerTest, EnablingAgainStartsTheIntervalAgain) {
    timer_.SetEnabled(true);
    desktop_.Advance(40);

    timer_.SetEnabled(true);
    desktop_.Advance(49);
    EXPECT_EQ(ticks_, 0);
    desktop_.Advance(1);

    EXPECT_EQ(ticks_, 1);
}

TEST_F(TimerTest, AnotherIntervalStartsAgain) {
    timer_.SetEnabled(true);
    desktop_.Advance(40);

    timer_.SetInterval(30);
    desktop_.Advance(29);
    EXPECT_EQ(ticks_, 0);
    desktop_.Advance(1);

    EXPECT_EQ(ticks_, 1);
}

TEST_F(TimerTest, TheSameIntervalDoesNotStartAgain) {
    timer_.SetEnabled(true);
    desktop_.Advance(40);

    timer_.SetInterval(50);
    desktop_.Advance(10);

    EXPECT_EQ(ticks_, 1);
}

TEST_F(TimerTest, AnIntervalOfNothingNeverTicks) {
    timer_.SetInterval(0);
    timer_.SetEnabled(true);

    desktop_.Advance(1000);

    EXPECT_EQ(ticks_, 0);
}

TEST_F(TimerTest, AHandlerMayStopItsOwnTimer) {
    claims_.Release();
    claims_.Claim(timer_.Tick, [this] {
        ++ticks_;
        timer_.SetEnabled(false);
    });
    timer_.SetEnabled(true);

    desktop_.Advance(500);

    EXPECT_EQ(ticks_, 1);
}

TEST(Timer, EveryStartIsToldAndOnlyTheFirstStop) {
    Timer timer("tmrPlay", 50);
    RecordingObserver screen;
    timer.SetObserver(&screen);

    timer.SetEnabled(false);
    EXPECT_EQ(screen.Told.size(), 0U);
    timer.SetEnabled(true);
    timer.SetEnabled(true);
    EXPECT_EQ(screen.Told.size(), 2U);
    timer.SetEnabled(false);
    timer.SetEnabled(false);

    EXPECT_EQ(screen.Told, std::vector<Property>(3, Property::Timer));
}

TEST(Timer, MayBeEnabledFromTheStart) {
    EXPECT_TRUE(Timer("tmrPlay", 50, true).Enabled());
}

}  // namespace
}  // namespace controls
