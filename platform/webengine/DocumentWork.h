// The script that works on the document of a page.
#pragma once

#include <QString>
#include <string>
#include <vector>

#include "ports/BrowserControl.h"

namespace webengine {

/// Carries out the steps, in one go, if the document that runs it is still the one at `address` and no frame.
/// To be run in a world of its own, where a page's scripts cannot change what it calls.
QString DocumentWork(const std::string& address, const std::vector<ports::ElementStep>& steps);

}  // namespace webengine
