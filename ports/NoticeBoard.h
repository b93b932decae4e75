// The desktop's notifications: a few words at the edge of the screen.
//
// Why: sites that the user allowed it may notify, and how that looks belongs to the desktop.
#pragma once

#include <functional>
#include <string>

namespace ports {

struct Notice {
    /// Plain text; whatever looks like markup is shown as it is.
    std::string title;
    std::string words;
    std::function<void()> clicked;
    /// It has gone from the screen, or never came there.
    std::function<void()> closed;
};

class NoticeBoard {
public:
    virtual ~NoticeBoard() = default;
    /// A ticket for Close. The callbacks come later, `closed` at most once and nothing after it; 0 and no
    /// callback when there is nobody to show it.
    virtual int Show(Notice notice) = 0;
    /// Takes it from the screen; no callback comes any more. A ticket that is over is ignored.
    virtual void Close(int ticket) = 0;
};

}  // namespace ports
