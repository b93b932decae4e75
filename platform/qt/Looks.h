// Looks that depend on other controls: bars filled up to their markers, text on tabs.
#pragma once

#include <QPainter>
#include <string_view>

#include "controls/Control.h"

namespace qt {

/// Draws a "progress", "level" or "track" bar; false, and nothing drawn, for another look.
bool DrawBar(QPainter& painter, const QRect& rect, const controls::Control& bar);
/// Draws a "marker" or "fademarker"; false, and nothing drawn, for another look.
bool DrawMarker(QPainter& painter, const QRect& rect, std::string_view look);
/// True when the label stands on the face of a tab that is in front.
bool StandsOnPaleFace(const controls::Control& label);

}  // namespace qt
