// The hole in the main window through which the video window behind it shows.
//
// Coordinates are pixels counted from the window's outer corner, border, title and menu bar included.
#pragma once

#include <array>
#include <string_view>

#include "controls/Form.h"
#include "controls/PictureBox.h"
#include "ports/Dialogs.h"
#include "ports/Windows.h"
#include "roles/Hole.h"
#include "roles/VideoPane.h"

namespace window {

/// c1 to c6 of a shape: the box (left, top, right, bottom), then the corner sizes.
struct ShapeCoordinates {
    std::array<int, 6> c{};
};

class HoleRoom final : public roles::Hole {
public:
    HoleRoom(controls::Form& window, controls::PictureBox& picVideo, roles::VideoPane& video,
             ports::WindowShape& shape, ports::Dialogs& dialogs);

    /// Cuts a hole out of the window, in place of the last one; an empty one makes the window whole.
    /// `shape_name` is "Elliptic", "RectAngle", "RoundRect" (corner
    /// sizes c5, c6) or "Circle" (a rounded box with the corner sizes c3, c4). Any other name shows a box,
    /// changes nothing and gives false.
    bool ShapeWindow(std::string_view shape_name, const ShapeCoordinates& coordinates);
    /// The video window goes to the hole at once.
    void MakeHole() override;
    void CloseHole() override;

private:
    controls::Form& window_;
    controls::PictureBox& picVideo_;
    roles::VideoPane& video_;
    ports::WindowShape& shape_;
    ports::Dialogs& dialogs_;
};

}  // namespace window
