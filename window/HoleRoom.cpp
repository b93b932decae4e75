#include "window/HoleRoom.h"

#include <cmath>
#include <optional>

namespace window {
namespace {

// From the window's outer corner to its controls. The hole leaves as much of picVideo's upper edge visible as
// the border is wide.
constexpr double kAboveControls = controls::kFrameTitle + controls::kFrameMenu;
constexpr double kAboveHole = kAboveControls + controls::kFrameBorder;
constexpr int kCorner = 50;

int Pixels(double twips) {
    return static_cast<int>(std::lround(twips / controls::kTwipsPerPixel));
}

// Nothing for a name that is no shape's.
std::optional<ports::Hole> HoleOf(std::string_view shape_name, const ShapeCoordinates& coordinates) {
    const auto& c = coordinates.c;
    const ports::WindowRect box{.left = c[0], .top = c[1], .right = c[2], .bottom = c[3]};
    if (shape_name == "RectAngle") return ports::Hole{.box = box};
    if (shape_name == "Elliptic")
        return ports::Hole{
            .box = box, .corner_width = box.right - box.left, .corner_height = box.bottom - box.top};
    if (shape_name == "RoundRect")
        return ports::Hole{.box = box, .corner_width = c[4], .corner_height = c[5]};
    if (shape_name == "Circle") return ports::Hole{.box = box, .corner_width = c[2], .corner_height = c[3]};
    return std::nullopt;
}

bool IsEmpty(const ports::WindowRect& box) {
    return box.left == box.right || box.top == box.bottom;
}

}  // namespace

HoleRoom::HoleRoom(controls::Form& window, controls::PictureBox& picVideo, roles::VideoPane& video,
                   ports::WindowShape& shape, ports::Dialogs& dialogs)
    : window_(window), picVideo_(picVideo), video_(video), shape_(shape), dialogs_(dialogs) {}

bool HoleRoom::ShapeWindow(std::string_view shape_name, const ShapeCoordinates& coordinates) {
    std::optional<ports::Hole> hole = HoleOf(shape_name, coordinates);
    if (!hole) {
        dialogs_.MsgBox("Unknown Shape!!");
        return false;
    }
    if (IsEmpty(hole->box)) hole.reset();
    shape_.SetHole(hole);
    window_.Refresh();
    return true;
}

void HoleRoom::MakeHole() {
    const int left = Pixels(picVideo_.Left());
    const int top = Pixels(picVideo_.Top());
    const int right = left + Pixels(picVideo_.Width());
    const int bottom = top + Pixels(picVideo_.Height());
    const int border = Pixels(controls::kFrameBorder);
    ShapeWindow("RectAngle", {{left + border, top + Pixels(kAboveHole), right + border,
                               bottom + Pixels(kAboveControls), kCorner, kCorner}});
    video_.FollowMainWindow();
}

void HoleRoom::CloseHole() {
    ShapeWindow("RectAngle", {});
}

}  // namespace window
