// A certificate for hosts that only tests know, made when the test program starts, and trusted by nobody but
// the engine of this program: the store that it reads lies in the program's own made-up home folder.
#pragma once

#include <QSslCertificate>
#include <QSslKey>

namespace webengine_tests {

/// Makes the certificate in the home folder, which must be the test's own, and lets the engine trust it. To
/// be called before the engine is loaded. False when the system lacks what it takes (openssl, NSS).
bool MakeTrustedCertificate();

QSslCertificate TestCertificate();
QSslKey KeyOfTestCertificate();

}  // namespace webengine_tests
