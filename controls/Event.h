// Events of controls.
//
// An event has one listener, the room that owns the control. A room claims the events it listens to through
// an EventClaims value; the claims are given back when the room is destroyed, so a listener is never called
// after that.
#pragma once

#include <cassert>
#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

namespace controls {

template <class... Args>
class Event {
public:
    using Listener = std::function<void(Args...)>;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    /// Calls the listener, if there is one. A listener may raise the event again, and may give its own claim
    /// back.
    void Raise(Args... args) {
        if (!listener_) return;
        const Listener kept_alive = listener_;
        kept_alive(args...);
    }

    bool IsClaimed() const { return static_cast<bool>(listener_); }

private:
    friend class EventClaims;
    Listener listener_;
};

/// The events one room listens to.
class EventClaims {
public:
    EventClaims() = default;
    EventClaims(const EventClaims&) = delete;
    EventClaims& operator=(const EventClaims&) = delete;
    ~EventClaims() { Release(); }

    /// Makes `listener` the listener of `event`; it takes the event's arguments, or none of them. Claiming an
    /// event twice is a bug. The event must outlive the claims.
    template <class... Args, class F>
    void Claim(Event<Args...>& event, F listener) {
        assert(!event.IsClaimed());
        if constexpr (std::is_invocable_v<F&, Args...>) {
            event.listener_ = std::move(listener);
        } else {
            event.listener_ = [listener = std::move(listener)](Args...) mutable { listener(); };
        }
        releases_.push_back([&event] { event.listener_ = nullptr; });
    }

    /// Gives every claim back.
    void Release() {
        for (auto& release : releases_)
            release();
        releases_.clear();
    }

private:
    std::vector<std::function<void()>> releases_;
};

}  // namespace controls
