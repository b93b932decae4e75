// The desktop's screen saver.
//
// Why: the user touches neither mouse nor keyboard during a film.
#pragma once

namespace ports {

class ScreenSaver {
public:
    virtual ~ScreenSaver() = default;
    /// Keeps the screen on, or lets it go dark again. Saying the same twice changes nothing. However the
    /// program ends, the screen may go dark afterwards. Never waits; on a desktop without a screen saver
    /// nothing happens.
    virtual void SetInhibited(bool inhibited) = 0;
};

}  // namespace ports
