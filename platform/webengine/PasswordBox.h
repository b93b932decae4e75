// The box in which the user gives a site a name and a password.
#pragma once

#include <QUrl>
#include <QWidget>

class QAuthenticator;

namespace webengine {

/// Fills in what the user enters; leaves `authenticator` as it is when the user does not.
void AskForPassword(QWidget* window, const QUrl& url, QAuthenticator& authenticator);

}  // namespace webengine
