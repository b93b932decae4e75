// A desktop without a screen: timers run on a clock that the test moves, yields run what is due.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "controls/Form.h"
#include "controls/Timer.h"
#include "ports/Clock.h"
#include "ports/EventLoop.h"

namespace fakes {

/// Timers tick in the order of their due times, ties in the order of adoption. A timer whose handler is
/// running does not tick again inside it.
class FakeDesktop final : public ports::EventLoop, public ports::Clock, private controls::ControlObserver {
public:
    /// Watches every timer in the window, also those added later.
    void Adopt(controls::Form& form);
    /// Watches one timer that is in no window.
    void AdoptTimer(controls::Timer& timer);

    /// Moves the clock on, running what falls due on the way.
    void Advance(int milliseconds);
    /// Time goes by inside a handler, as while a file opens: what falls due waits for the next yield, or for
    /// the handler's end.
    void Pass(int milliseconds) { now_ += milliseconds; }
    /// Ends the handler that a test plays: runs the work of AtHandlerEnd.
    void EndHandler();
    /// Work for the next yield, as an event that is pending.
    void Post(std::function<void()> event) { pending_.push_back(std::move(event)); }

    // ports::EventLoop
    void Yield() override;
    void AtHandlerEnd(std::function<void()> work) override { at_handler_end_.push_back(std::move(work)); }
    bool IsEnding() const override { return Ending; }

    // ports::Clock
    ports::Date Today() const override { return Date; }
    std::int64_t Milliseconds() const override { return now_; }

    ports::Date Date{2026, 3, 9};
    bool Ending = false;
    int Yields = 0;
    /// How long what runs up to a yield takes. Nothing unless a test says so.
    int YieldTakes = 0;

private:
    struct Watched {
        controls::Timer* timer;
        std::int64_t due;
        bool running;
    };

    void OnPropertyChanged(controls::Control& control, controls::Property property) override;
    void AdoptChildren(controls::Container& container);
    void Restart(Watched& watched);
    bool RunNextDue(std::int64_t until);

    std::vector<Watched> timers_;
    std::vector<std::function<void()>> at_handler_end_;
    std::vector<std::function<void()>> pending_;
    std::int64_t now_ = 0;
};

}  // namespace fakes
