// The order of windows on the screen, where the toolkit has no word for it.
#pragma once

#include <QWidget>

namespace qt {

/// Asks the window manager to put `lower` right below `upper`, with nothing between; neither is raised above
/// other programs' windows and the keyboard stays where it is. Nothing happens on a display that knows no
/// such request.
void PutBelow(QWidget& lower, QWidget& upper);

/// Asks the window manager to keep `upper` over `lower`, whichever is worked in, until PutBelow asks for the
/// opposite.
void KeepAbove(QWidget& upper, QWidget& lower);

}  // namespace qt
