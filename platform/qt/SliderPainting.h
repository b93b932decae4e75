// Sliders: bars that are filled up to the marker on them, and the markers.
#pragma once

#include <QPainter>
#include <string_view>

#include "controls/Control.h"

namespace qt {

/// Draws a "progress", "level" or "track" bar; false, and nothing drawn, for another look.
bool DrawBar(QPainter& painter, const QRect& rect, const controls::Control& bar);
/// Draws a "marker" or "fademarker"; false, and nothing drawn, for another look.
bool DrawMarker(QPainter& painter, const QRect& rect, std::string_view look);

}  // namespace qt
