// A file shown in the program that the desktop has for its kind.
#pragma once

#include <functional>
#include <string>

namespace qt {

/// Asks the desktop's "xdg-open". `file` is a native path. `otherwise` is called, at once or later, where
/// nothing shows it: there is no such tool, or it finds no program for the file.
void OpenFileWithDesktop(const std::string& file, std::function<void()> otherwise);

}  // namespace qt
