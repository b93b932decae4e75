// What a file is by its name, as far as a download has to know it.
#pragma once

#include <QString>

namespace webengine {

/// A kind that a desktop or an office program may run when it is opened: programs, scripts, starters,
/// packages, documents with macros. The whole name counts, so "song.mp3.desktop" is one.
bool IsDangerousKind(const QString& name);

/// A kind that the player plays.
bool IsMediaKind(const QString& name);

}  // namespace webengine
