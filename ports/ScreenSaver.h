// The desktop's screen saver.
//
// Why: nobody touches mouse or keyboard during a film.
#pragma once

namespace ports {

class ScreenSaver {
public:
    virtual ~ScreenSaver() = default;
    /// Keeps the screen on, or lets it go dark again. Saying the same twice changes nothing. However the
    /// program ends, the screen may go dark afterwards. Never waits; a desktop without a screen saver is none
    /// of the caller's concern.
    virtual void SetInhibited(bool inhibited) = 0;
};

}  // namespace ports
