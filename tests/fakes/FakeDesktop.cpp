#include "fakes/FakeDesktop.h"

#include <algorithm>

namespace fakes {

void FakeDesktop::Adopt(controls::Form& form) {
    form.SetObserver(this);
    AdoptChildren(form);
}

void FakeDesktop::AdoptChildren(controls::Container& container) {
    for (controls::Control* child : container.Children()) {
        if (auto* timer = dynamic_cast<controls::Timer*>(child)) {
            AdoptTimer(*timer);
        } else if (auto* inner = dynamic_cast<controls::Container*>(child)) {
            inner->SetObserver(this);
            AdoptChildren(*inner);
        }
    }
}

void FakeDesktop::AdoptTimer(controls::Timer& timer) {
    timer.SetObserver(this);
    timers_.push_back({&timer, 0, false});
    Restart(timers_.back());
}

void FakeDesktop::OnPropertyChanged(controls::Control& control, controls::Property property) {
    if (property == controls::Property::Parent) {
        if (auto* timer = dynamic_cast<controls::Timer*>(&control)) AdoptTimer(*timer);
        return;
    }
    if (property != controls::Property::Timer) return;
    for (Watched& watched : timers_) {
        if (watched.timer == &control) Restart(watched);
    }
}

void FakeDesktop::Restart(Watched& watched) {
    watched.due = now_ + watched.timer->Interval();
}

bool FakeDesktop::RunNextDue(std::int64_t until) {
    std::size_t next = timers_.size();
    for (std::size_t i = 0; i < timers_.size(); ++i) {
        const Watched& watched = timers_[i];
        if (!watched.timer->Enabled() || watched.timer->Interval() <= 0 || watched.running) continue;
        if (watched.due > until) continue;
        if (next == timers_.size() || watched.due < timers_[next].due) next = i;
    }
    if (next == timers_.size()) return false;
    now_ = std::max(now_, timers_[next].due);
    timers_[next].due = now_ + timers_[next].timer->Interval();
    timers_[next].running = true;
    timers_[next].timer->Tick.Raise();
    timers_[next].running = false;
    EndHandler();
    return true;
}

void FakeDesktop::Advance(int milliseconds) {
    const std::int64_t until = now_ + milliseconds;
    while (RunNextDue(until)) {
    }
    now_ = std::max(now_, until);
}

void FakeDesktop::EndHandler() {
    const auto work = at_handler_end_;
    for (const auto& one : work)
        one();
}

void FakeDesktop::Yield() {
    ++Yields;
    Pass(YieldTakes);
    EndHandler();
    const auto events = std::move(pending_);
    pending_.clear();
    for (const auto& event : events)
        event();
    // What falls due meanwhile has its turn at the next one.
    const std::int64_t until = now_;
    while (RunNextDue(until)) {
    }
}

}  // namespace fakes
