// From the controls' units to pixels and back.
//
// Edges are rounded, never sizes, so that neighbours in twips are neighbours in pixels.
#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QString>
#include <string_view>

#include "controls/Form.h"

namespace qt {

inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

int ToPixels(double twips);

/// Place of a control in its container's widget.
QRect PixelRect(const controls::Control& control);

/// A point in a control's widget, in the control's own scale.
QPointF InScaleOf(const controls::Control& control, const QPointF& pixels);

/// Place on the screen of a window's content and menu bar.
QRect ClientRect(const controls::Form& form);
/// Moves the window to where its content and menu bar are on the screen. False when it was there already.
bool TakeClientRect(controls::Form& form, const QRect& client);

}  // namespace qt
