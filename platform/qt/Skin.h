// The skin: colours, fonts and the looks that a control may ask for by name.
//
// A control's Look() is one of these names; an unknown or empty name is the plain look of its kind.
//
// Surfaces (frames, picture boxes, images, labels, windows):
//   "ground"           the window's own ground
//   "page"             the same, for a frame that fills a window
//   "panel"            a rounded panel
//   "raised"           a lighter rounded panel
//   "well"             a dark rounded well
//   "strip"            the dark strip under menu and tabs
//   "row"              the shaded address row
//   "tool"             a raised ground for a picture
//   "round"            a round amber ground for a picture
//   "bare"             nothing at all
// Picture boxes:
//   "video"            a window of its own, for video
// Labels:
//   "heading"          small, upper case, wide, muted
//   "title"            large
//   "muted"            secondary text
//   "status"           small secondary text
//   "display"          amber text, cut by its box and not shortened
//   "display off"      the same, muted
//   "readout"          figures in a well
//   "readout off"      the same, muted
//   "accent"           amber text
//   "link"             amber text, underlined under the pointer
//   "warning"          light red text
//   "tab"              text on a tab
//   "tab front"        the same on the pale face of the tab in front
//   "tab close"        a drawn cross on a tab
//   "tab close front"  the same on the pale face
//   "button"           a raised button
//   "caption"          a window's own title
//   "splitter"         a drawn grip
// Buttons (the captions "<", ">", "^", "v" and "X" are drawn, as arrows and a cross):
//   "accent"           filled amber, dark ink
//   "ambertext"        raised, amber text
//   "flat"             nothing until the pointer is on it
// Text boxes:
//   "inset"            no frame: it lies in a well already
//   "address"          a text that was not typed is selected, so that typing replaces it
// Bars (picture boxes, labels, images), filled up to the first child, or else sibling, with the look
// "marker":
//   "progress"         amber
//   "level"            teal
//   "track"            an empty groove
// Markers (labels, images):
//   "marker"           a cream slider knob
//   "fademarker"       a teal bar
// Lines:
//   "pale"             two pixels in the pale tab's colour
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRect>
#include <string_view>

#include "platform/qt/SkinColours.h"

namespace qt::skin {

inline constexpr int kRowHeight = 24;
inline constexpr int kCorner = 5;
inline constexpr int kPanelCorner = 7;
inline constexpr int kTextSize = 13;
inline constexpr int kSmallSize = 11;

/// The skin's font; the size is its pixel size.
QFont TextFont(int pixels = kTextSize);
/// Small and wide-set, for headings; the text itself has to be in upper case.
QFont HeadingFont();

enum class Arrow { Left, Right, Up, Down };

/// A filled rectangle with round corners and a thin line around it, sharp on any scale.
void RoundBox(QPainter& painter, const QRectF& rect, const QBrush& fill, QRgb line, double corner);
/// The surface of that look; false, and nothing drawn, when the look is not a surface.
bool Surface(QPainter& painter, const QRect& rect, std::string_view look);
/// A ring for the control that has the keyboard: amber, or dark inside an amber control.
void FocusRing(QPainter& painter, const QRect& rect, double corner = kCorner);
void DarkFocusRing(QPainter& painter, const QRect& rect, double corner = kCorner);
void Chevron(QPainter& painter, const QPointF& centre, Arrow arrow, QColor colour, double reach = 4);
void Cross(QPainter& painter, const QPointF& centre, QColor colour, double reach = 3.5);
void Tick(QPainter& painter, const QRectF& box, QColor colour);
/// A groove filled up to `filled` pixels from its left.
void Groove(QPainter& painter, const QRect& rect, double filled, QRgb from, QRgb to);
void Knob(QPainter& painter, const QRect& rect);

}  // namespace qt::skin
