// Window services and the shape of the main window.
#pragma once

#include <QRegion>
#include <map>

#include "platform/qt/Screen.h"
#include "ports/Windows.h"

namespace qt {

/// Knows the windows of this program by their handles.
class DesktopWindows final : public ports::WindowServices {
public:
    bool GetWindowRect(std::int64_t handle, ports::WindowRect& rect) const override;
};

/// Regions of the main window, and its shape, which the screen takes at the end of the handler. A region that
/// was given to the window is used up, as is a hole's once its maker forgets it; handles count up and are
/// never used twice.
class WindowRegions final : public ports::Regions {
public:
    WindowRegions(Screen& screen, controls::Form& main_form) : screen_(screen), form_(main_form) {}

    ports::RegionHandle CreateRectRgn(int left, int top, int right, int bottom) override;
    ports::RegionHandle CreateEllipticRgn(int left, int top, int right, int bottom) override;
    ports::RegionHandle CreateRoundRectRgn(int left, int top, int right, int bottom, int corner_width,
                                           int corner_height) override;
    bool CombineRgn(ports::RegionHandle result, ports::RegionHandle first, ports::RegionHandle second,
                    ports::RegionCombine mode) override;
    bool SetWindowRgn(ports::RegionHandle region, bool redraw) override;

private:
    ports::RegionHandle Keep(QRegion region);

    Screen& screen_;
    controls::Form& form_;
    std::map<ports::RegionHandle, QRegion> regions_;
    ports::RegionHandle last_ = 0;
};

}  // namespace qt
