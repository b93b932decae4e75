// Text of a page, made fit to be shown by the program.
#pragma once

#include <QString>
#include <QUrl>

namespace webengine {

/// The text on one line: characters that are not seen, or that turn the direction of others around, are
/// written as their number ("‹202E›"); line ends and tabs become blanks.
QString VisibleText(const QString& text);
/// At most `most` characters; the middle of a longer one is left out.
QString CutInTheMiddle(const QString& text, int most);
/// An address as the user reads it: unescaped where that hides nothing, visible, at most `most` characters,
/// its host whole where it fits.
QString ShownAddress(const QUrl& address, int most = 120);

}  // namespace webengine
