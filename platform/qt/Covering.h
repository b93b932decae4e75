// What lies under a page or a panel, where the user does not see it.
#pragma once

#include <functional>

#include "controls/Control.h"

namespace qt {

/// Tells each control of `container`, from the front to the back, and whether an open page or a panel before
/// it lies over all of it.
void TellCovered(const controls::Container& container,
                 const std::function<void(controls::Control& control, bool covered)>& tell);

/// Says to every page among the controls of `container` what the user sees of it.
void SayWhichPagesAreSeen(const controls::Container& container);

}  // namespace qt
