// Where a download ends: always inside the download folder, whatever name a server gives.
#pragma once

#include <QString>

namespace webengine {

/// Longest name of a download, in characters.
inline constexpr int kLongestDownloadName = 120;

/// A bare, visible file name: no folders, no control characters, none that other systems forbid, no dots or
/// blanks at its ends. "download" when nothing is left. The extension survives shortening.
QString CleanDownloadName(const QString& suggested);

/// A name that no file in the folder has: "a.zip", then "a (1).zip", "a (2).zip" ...
QString FreeDownloadName(const QString& folder, const QString& clean_name);

/// True when a file of that name would lie directly in the folder, links resolved.
bool EndsInside(const QString& folder, const QString& name);

}  // namespace webengine
