// What every event loop keeps to. A bench lets a handler run as an event does.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>

#include "controls/Form.h"
#include "controls/Timer.h"
#include "ports/EventLoop.h"

namespace contracts {

/// Every test has a bench of its own.
class EventLoopBench {
public:
    virtual ~EventLoopBench() = default;
    virtual ports::EventLoop& Loop() = 0;
    /// Watches the window's timers, now and later.
    virtual void Adopt(controls::Form& form) = 0;
    /// Runs `handler` as the loop runs the handler of an event.
    virtual void Run(std::function<void()> handler) = 0;
    /// Puts an event after those that are pending.
    virtual void Post(std::function<void()> handler) = 0;
    /// Yields until `done`, letting the time of timers go by; false when that never comes.
    virtual bool YieldUntil(const std::function<bool()>& done) = 0;
    virtual void AskToEnd() = 0;
};

template <class Bench>
class EventLoopContract : public testing::Test {
protected:
    // Declared before the bench: a screen must not outlive the windows it shows.
    controls::Timer timer_{"tmrA", 10};
    controls::Form form_{"frmA", "A"};
    controls::EventClaims claims_;
    Bench bench_;
};

TYPED_TEST_SUITE_P(EventLoopContract);

TYPED_TEST_P(EventLoopContract, AYieldRunsWhatIsPending) {
    bool ran = false;
    this->bench_.Post([&ran] { ran = true; });

    EXPECT_TRUE(this->bench_.YieldUntil([&ran] { return ran; }));
}

TYPED_TEST_P(EventLoopContract, PendingEventsRunInTheirOrder) {
    std::string order;
    this->bench_.Post([&order] { order += "1"; });
    this->bench_.Post([&order] { order += "2"; });
    this->bench_.Post([&order] { order += "3"; });

    EXPECT_TRUE(this->bench_.YieldUntil([&order] { return order.size() == 3; }));
    EXPECT_EQ(order, "123");
}

TYPED_TEST_P(EventLoopContract, WorkAtTheEndRunsAfterTheHandler) {
    // The loop keeps the work for as long as it lives.
    const auto order = std::make_shared<std::string>();
    this->bench_.Loop().AtHandlerEnd([order] { *order += "end;"; });

    this->bench_.Run([order] { *order += "handler;"; });

    EXPECT_EQ(order->substr(0, 12), "handler;end;");
}

TYPED_TEST_P(EventLoopContract, WorkAtTheEndRunsBeforeWhatAYieldRuns) {
    // The loop keeps the work for as long as it lives.
    const auto order = std::make_shared<std::string>();
    this->bench_.Loop().AtHandlerEnd([order] { *order += "end;"; });

    this->bench_.Run([this, order] {
        bool ran = false;
        this->bench_.Post([order, &ran] {
            *order += "event;";
            ran = true;
        });
        *order += "handler;";
        this->bench_.YieldUntil([&ran] { return ran; });
    });

    EXPECT_EQ(order->substr(0, 12), "handler;end;");
    EXPECT_NE(order->find("event;end;"), std::string::npos);
}

TYPED_TEST_P(EventLoopContract, SeveralPiecesOfWorkRunInTheOrderTheyWereGiven) {
    // The loop keeps the work for as long as it lives.
    const auto order = std::make_shared<std::string>();
    this->bench_.Loop().AtHandlerEnd([order] { *order += "1"; });
    this->bench_.Loop().AtHandlerEnd([order] { *order += "2"; });

    this->bench_.Run([] {});

    EXPECT_EQ(order->substr(0, 2), "12");
}

TYPED_TEST_P(EventLoopContract, ATimerTicksWhileItIsEnabled) {
    int ticks = 0;
    this->form_.Add(this->timer_);
    this->claims_.Claim(this->timer_.Tick, [&ticks, this] {
        if (++ticks == 3) this->timer_.SetEnabled(false);
    });
    this->bench_.Adopt(this->form_);
    this->timer_.SetEnabled(true);

    EXPECT_TRUE(this->bench_.YieldUntil([&ticks] { return ticks == 3; }));
    bool later = false;
    this->bench_.Post([&later] { later = true; });
    this->bench_.YieldUntil([&later] { return later; });
    EXPECT_EQ(ticks, 3);
}

TYPED_TEST_P(EventLoopContract, ATimersHandlerThatYieldsIsNotEnteredAgain) {
    int depth = 0;
    int deepest = 0;
    int ticks = 0;
    this->form_.Add(this->timer_);
    this->claims_.Claim(this->timer_.Tick, [&, this] {
        deepest = std::max(deepest, ++depth);
        if (ticks < 2) {
            bool ran = false;
            this->bench_.Post([&ran] { ran = true; });
            this->bench_.YieldUntil([&ran] { return ran; });
        }
        --depth;
        ++ticks;
    });
    this->bench_.Adopt(this->form_);
    this->timer_.SetEnabled(true);

    EXPECT_TRUE(this->bench_.YieldUntil([&ticks] { return ticks >= 3; }));
    this->timer_.SetEnabled(false);
    EXPECT_EQ(deepest, 1);
}

TYPED_TEST_P(EventLoopContract, ItSaysThatItWasAskedToEnd) {
    EXPECT_FALSE(this->bench_.Loop().IsEnding());

    this->bench_.AskToEnd();

    EXPECT_TRUE(this->bench_.Loop().IsEnding());
}

REGISTER_TYPED_TEST_SUITE_P(EventLoopContract, AYieldRunsWhatIsPending, PendingEventsRunInTheirOrder,
                            WorkAtTheEndRunsAfterTheHandler, WorkAtTheEndRunsBeforeWhatAYieldRuns,
                            SeveralPiecesOfWorkRunInTheOrderTheyWereGiven, ATimerTicksWhileItIsEnabled,
                            ATimersHandlerThatYieldsIsNotEnteredAgain, ItSaysThatItWasAskedToEnd);

}  // namespace contracts
