// Bars, markers and splitters without a pointer: the arrow keys, and the place in percent for screen readers.
#pragma once

#include <QWidget>

#include "controls/Control.h"

namespace qt {

/// A bar with a marker, a marker that is moved by itself, or a splitter.
bool IsSlider(const controls::Control& control);
/// How far along it is, 0 to 100.
double SliderPercent(const controls::Control& slider);
void SetSliderPercent(controls::Control& slider, double percent);
/// One key: an arrow is a step, Page Up and Page Down are several, Home and End the ends. False for any
/// other. The keyboard stays where it is, whatever the control's events do with it.
bool TakeSliderKey(controls::Control& slider, int key);
/// Makes the widget of a slider one for the keyboard and for screen readers.
void MakeSlider(QWidget& widget, controls::Control& slider);

}  // namespace qt
