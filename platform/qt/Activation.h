// Bringing a window to the front that the user asked for in another program: a launcher, a file manager.
//
// Why: window managers refuse the focus to a program that the user did not just use. What the launcher gave
// the start, its start-up id, holds the time of the user's act; the window shows it.
#pragma once

#include <QWidget>
#include <string>

namespace qt {

/// What a launcher gave this process, from the environment; empty when there is none. To be called before the
/// application object is made, which takes it.
std::string StartupIdOfProcess();

/// Raises the window and gives it the keyboard. The launcher learns that the start with this id, which may be
/// empty, is over.
void ActivateForUser(QWidget& window, const std::string& startup_id);

}  // namespace qt
