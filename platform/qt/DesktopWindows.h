// Places of windows on the screen, and the shape of the main window.
#pragma once

#include <optional>

#include "controls/Form.h"
#include "platform/qt/Screen.h"
#include "ports/Windows.h"

namespace qt {

/// Knows the windows of this program by their handles.
class DesktopWindows final : public ports::WindowServices {
public:
    bool GetWindowRect(std::int64_t handle, ports::WindowRect& rect) const override;
};

/// The main window's shape, which the screen takes at the end of the handler.
class MainWindowShape final : public ports::WindowShape {
public:
    /// Both must outlive the shape.
    MainWindowShape(Screen& screen, controls::Form& main_form) : screen_(screen), form_(main_form) {}

    void SetHole(const std::optional<ports::Hole>& hole) override;

private:
    Screen& screen_;
    controls::Form& form_;
};

}  // namespace qt
