// The script that works on the document of a page.
#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <vector>

#include "ports/BrowserControl.h"

namespace webengine {

/// Carries out the steps as soon as the document is ready, in one go and once, if the document that runs it
/// is still the one at `address`, no frame, and came from `host` or a name below it, by https
/// or from inside the program. To be run in a
/// world of its own, where a page's scripts cannot change what it calls.
QString DocumentWork(const std::string& address, std::string_view host,
                     const std::vector<ports::ElementStep>& steps);

}  // namespace webengine
