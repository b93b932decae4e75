// Helpers for the constructors of control groups, and for layouts: places in pixels, hidden controls, names,
// and twins. A twin is the bright picture exactly over a plain one; it shows while the pointer is over the
// plain one, and takes the click.
#pragma once

#include <string_view>

#include "controls/Control.h"

namespace controls {

/// Twips of a number of pixels.
constexpr double Px(double pixels) {
    return pixels * kTwipsPerPixel;
}

/// Moves a control to a place that is given in pixels.
inline void Place(Control& control, double left, double top, double width, double height) {
    control.Move(Px(left), Px(top), Px(width), Px(height));
}

/// Moves a picture and its twins to one place, in twips.
template <class... Twins>
void MoveTwins(double left, double top, double width, double height, Twins&... twins) {
    (twins.Move(left, top, width, height), ...);
}

/// Moves a picture and its twins to one place that is given in pixels.
template <class... Twins>
void PlaceTwins(double left, double top, double width, double height, Twins&... twins) {
    (Place(twins, left, top, width, height), ...);
}

template <class... Hidden>
void Hide(Hidden&... controls) {
    (controls.SetVisible(false), ...);
}

/// Gives a control its name for screen readers, and its tool tip: the same text if there is no other.
inline void Name(Control& control, std::string_view accessible, std::string_view tool_tip = {}) {
    control.SetAccessibleName(accessible);
    control.SetToolTipText(tool_tip.empty() ? accessible : tool_tip);
}

/// Names a picture and its twin alike, and hides the twin.
inline void NameTwins(Control& plain, Control& bright, std::string_view accessible,
                      std::string_view tool_tip = {}) {
    Name(plain, accessible, tool_tip);
    Name(bright, accessible, tool_tip);
    Hide(bright);
}

/// Shows the twin when the pointer moves over the plain picture.
inline void ClaimTwin(EventClaims& claims, Control& plain, Control& bright) {
    claims.Claim(plain.MouseMove, [&bright] { bright.SetVisible(true); });
}

}  // namespace controls
