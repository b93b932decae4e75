// What the layout's topic files share: measures that repeat, and ways to place one control by another.
#pragma once

#include "controls/Arrange.h"

namespace window {

inline constexpr double kGap = controls::Px(8);
inline constexpr double kHeadingTop = controls::Px(6);
inline constexpr double kHeadingHeight = controls::Px(14);
inline constexpr double kListsTop = controls::Px(24);

/// Fills a container that the control is in.
inline void Fill(controls::Control& control, const controls::Control& container) {
    control.Move(0, 0, container.Width(), container.Height());
}

/// Moves a control to the middle of its container.
inline void Centre(controls::Control& control, const controls::Control& container) {
    control.Move((container.Width() - control.Width()) / 2, (container.Height() - control.Height()) / 2,
                 control.Width(), control.Height());
}

/// Moves a control to the rectangle of another one in the same container.
inline void SameRect(controls::Control& control, const controls::Control& model) {
    control.Move(model.Left(), model.Top(), model.Width(), model.Height());
}

}  // namespace window
