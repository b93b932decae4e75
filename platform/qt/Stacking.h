// The order of windows on the screen, where the toolkit has no call for it.
#pragma once

#include <QPoint>
#include <QWidget>
#include <optional>

namespace qt {

/// Asks the window manager to put `lower` right below `upper`. While the user works in another program
/// nothing is raised over that: `lower` goes below everything, and the next call puts it right.
void PutBelow(QWidget& lower, QWidget& upper);

/// Asks the window manager to keep `upper` over `lower`, whichever is worked in, until PutBelow asks for the
/// opposite.
void KeepAbove(QWidget& upper, QWidget& lower);

/// Where the display has a window, in the toolkit's pixels; nothing where that cannot be asked. It may be
/// ahead of what the toolkit knows.
std::optional<QPoint> PlaceOnDisplay(const QWidget& window);

}  // namespace qt
