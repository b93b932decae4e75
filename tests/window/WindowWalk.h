// Walks every control of every window, and tells which events of a control are listened to.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "controls/Form.h"
#include "window/Windows.h"

namespace window_tests {

/// Every control of a window with the window itself: what stands in it, at any depth, and its menu entries.
std::vector<const controls::Control*> ControlsOf(const controls::Form& window);

/// The events of a control that somebody claimed, by their names, in the order of the headers.
std::vector<std::string> ClaimedEvents(const controls::Control& control);

}  // namespace window_tests
