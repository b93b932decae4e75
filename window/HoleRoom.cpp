#include "window/HoleRoom.h"

#include <cmath>

namespace window {
namespace {

constexpr ports::RegionHandle kNoRegion = 0;

// What lies between the window's outer corner and the place of its controls: a border of two pixels at the
// left; title and menu bar above, of which the hole leaves two pixels of picVideo's own edge to be seen.
constexpr int kLeftOfControls = 2;
constexpr int kAboveHole = 52;
constexpr int kAboveControls = 50;
constexpr int kCorner = 50;

int Pixels(double twips) {
    return static_cast<int>(std::lround(twips / controls::kTwipsPerPixel));
}

}  // namespace

HoleRoom::HoleRoom(controls::Form& window, controls::PictureBox& picVideo, ports::Regions& regions,
                   ports::Dialogs& dialogs)
    : window_(window), picVideo_(picVideo), regions_(regions), dialogs_(dialogs) {}

bool HoleRoom::ShapeWindow(std::string_view shape_name, const ShapeCoordinates& coordinates) {
    const ports::RegionHandle hole = HoleRegion(shape_name, coordinates);
    if (hole == kNoRegion) {
        dialogs_.MsgBox("Unknown Shape!!");
        return false;
    }
    const ports::RegionHandle whole =
        regions_.CreateRectRgn(0, 0, Pixels(window_.Width()), Pixels(window_.Height()));
    regions_.CombineRgn(whole, whole, hole, ports::RegionCombine::Difference);
    regions_.SetWindowRgn(whole, true);
    window_.Refresh();
    return true;
}

ports::RegionHandle HoleRoom::HoleRegion(std::string_view shape_name, const ShapeCoordinates& coordinates) {
    const auto& c = coordinates.c;
    if (shape_name == "RectAngle") return regions_.CreateRectRgn(c[0], c[1], c[2], c[3]);
    if (shape_name == "Elliptic") return regions_.CreateEllipticRgn(c[0], c[1], c[2], c[3]);
    if (shape_name == "RoundRect") return regions_.CreateRoundRectRgn(c[0], c[1], c[2], c[3], c[4], c[5]);
    if (shape_name == "Circle") return regions_.CreateRoundRectRgn(c[0], c[1], c[2], c[3], c[2], c[3]);
    return kNoRegion;
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
