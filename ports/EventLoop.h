// The event loop of the one user-interface thread.
#pragma once

#include <functional>

namespace ports {

class EventLoop {
public:
    virtual ~EventLoop() = default;
    /// Runs the events that are pending, then returns. Costs next to nothing when called again within a few
    /// milliseconds, so it may be called once per row. The work of AtHandlerEnd runs first.
    virtual void Yield() = 0;
    /// The handler that runs now will take longer than a fifth of a second without a yield: shows the user
    /// so until it ends. A handler that yields need not say so. Nothing where there is no pointer.
    virtual void ShowHourglass() {}
    /// `work` runs before every yield and after every handler, for as long as the loop lives: the place to
    /// write what the handler changed. It must not raise events.
    virtual void AtHandlerEnd(std::function<void()> work) = 0;
    /// True once the program was asked to end; a long loop that yields stops then.
    virtual bool IsEnding() const = 0;
};

}  // namespace ports
