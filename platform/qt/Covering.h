// Which pages the user sees.
#pragma once

#include "controls/Control.h"

namespace qt {

/// Says to every page among the controls of `container` what the user sees of it: a page is covered when an
/// open page or a panel before it lies over all of it.
void SayWhichPagesAreSeen(const controls::Container& container);

}  // namespace qt
