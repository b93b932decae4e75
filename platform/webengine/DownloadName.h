// Where a download ends: always inside the download folder, whatever name a server gives.
#pragma once

#include <QSet>
#include <QString>

namespace webengine {

/// Longest name of a download, in characters, and in bytes on the disk: with what is appended while it is
/// under way it must stay below the 255 of the usual file systems.
inline constexpr int kLongestDownloadName = 120;
inline constexpr int kLongestDownloadBytes = 200;

/// What the engine appends to the name while a download is under way, and what the program appends as long as
/// the user has not said whether to keep it.
inline constexpr QLatin1String kUnderWay(".download");
inline constexpr QLatin1String kUnconfirmed(".unconfirmed");

/// A bare, visible file name: no folders, no control characters, none that other systems forbid, no dots or
/// blanks at its ends. "download" when nothing is left. The extension survives shortening.
QString CleanDownloadName(const QString& suggested);

/// A name that no file in the folder has and that is promised to no other download: "a.zip", then "a
/// (1).zip", "a (2).zip" ... `promised` has whole paths in lower case. A name is free only if what is
/// appended to it on the way is free, too.
QString FreeDownloadName(const QString& folder, const QString& clean_name,
                         const QSet<QString>& promised = {});

/// True when a file of that name would lie directly in the folder, links resolved.
bool EndsInside(const QString& folder, const QString& name);

}  // namespace webengine
