// Where the controls of the add dialog stand, for every size of its window.
#pragma once

#include "controls/Form.h"
#include "library/AddMediaForm.h"

namespace library {

/// The size that the dialog has at first, and the least it can have, as content in pixels.
inline constexpr double kAddMediaWidth = 760;
inline constexpr double kAddMediaHeight = 520;
inline constexpr double kLeastAddMediaWidth = 640;
inline constexpr double kLeastAddMediaHeight = 440;

/// Gives a window below the least size that size, which raises its Resize again; true when it did.
bool KeepLeastSize(controls::Form& frmAddMedia);
/// Puts every control in its place for the size that the window has.
void PlaceControls(AddMediaForm& form);

}  // namespace library
