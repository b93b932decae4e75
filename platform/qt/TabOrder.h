// The way of the Tab key through a window: from the top to the bottom, in a row from left to right, and
// through one panel before the next.
#pragma once

#include <QWidget>
#include <vector>

#include "controls/Control.h"
#include "platform/qt/Stage.h"

namespace qt {

/// Puts the window's widgets in that order and returns those that take the keyboard.
std::vector<QWidget*> PutInTabOrder(const Stage& stage, const controls::Container& window);

}  // namespace qt
