// Sliders: bars that are filled up to the marker on them, and the markers.
#pragma once

#include <QPainter>
#include <string_view>
#include <vector>

#include "controls/Control.h"

namespace qt {

/// The visible one of the look "marker" among controls; null when there is none.
const controls::Control* MarkerAmong(const std::vector<controls::Control*>& controls);
/// Draws a "progress", "level" or "track" bar; false, and nothing drawn, for another look.
bool DrawBar(QPainter& painter, const QRect& rect, const controls::Control& bar);
/// Draws a "marker" or "fademarker"; false, and nothing drawn, for another look.
bool DrawMarker(QPainter& painter, const QRect& rect, std::string_view look);

}  // namespace qt
