// Why a page could not be loaded, in words for the user.
#pragma once

#include <QString>
#include <QUrl>

namespace webengine {

/// The navigation was stopped, by the user or by another one: nothing to say.
inline constexpr int kFailureStopped = -3;
/// The address cannot be one.
inline constexpr int kFailureBadAddress = -300;

/// `code` is the engine's. Never empty.
QString WordsOfFailure(const QUrl& address, int code);

/// The code says that the site's certificate is not accepted.
bool IsCertificateFailure(int code);

}  // namespace webengine
