#include "window/HoleRoom.h"

#include <cmath>
#include <optional>

namespace window {
namespace {

// What lies between the window's outer corner and the place of its controls: a border of two pixels at the
// left; title and menu bar above, of which the hole leaves two pixels of picVideo's own edge to be seen.
constexpr int kLeftOfControls = 2;
constexpr int kAboveHole = 52;
constexpr int kAboveControls = 50;
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

HoleRoom::HoleRoom(controls::Form& window, controls::PictureBox& picVideo, ports::WindowShape& shape,
                   ports::Dialogs& dialogs)
    : window_(window), picVideo_(picVideo), shape_(shape), dialogs_(dialogs) {}

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
    ShapeWindow("RectAngle", {{left + kLeftOfControls, top + kAboveHole, right + kLeftOfControls,
                               bottom + kAboveControls, kCorner, kCorner}});
}

void HoleRoom::CloseHole() {
    ShapeWindow("RectAngle", {});
}

}  // namespace window
