#include "platform/webengine/LoadFailure.h"

#include <QCoreApplication>

#include "platform/webengine/ShownText.h"

namespace webengine {

namespace {

constexpr int kMostHost = 60;
constexpr int kFirstCertificateCode = -200;
constexpr int kLastCertificateCode = -299;
constexpr int kPinnedKey = -150;

struct Failure {
    int code;
    const char* words;  // %1 is the host
};

constexpr Failure kFailures[] = {
    {kFailureBadAddress, "This is no address that a page can have."},
    {-301, "Pages with an address of this kind are not opened."},
    {-302, "Pages with an address of this kind are not known."},
    {-105, "%1 was not found. Is the name right?"},
    {-137, "%1 was not found, because the name service does not answer."},
    {-106, "There is no connection to the network."},
    {-21, "The network has changed while the page was loading."},
    {-109, "%1 cannot be reached from here."},
    {-102, "%1 refused the connection."},
    {-104, "A connection to %1 could not be made."},
    {-100, "%1 closed the connection."},
    {-101, "The connection to %1 was cut off."},
    {-324, "%1 sent no answer."},
    {-320, "%1 sent an answer that is none."},
    {-7, "%1 took too long to answer."},
    {-118, "%1 took too long to answer."},
    {-107, "An encrypted connection to %1 could not be made."},
    {-113, "%1 knows only kinds of encryption that are not safe any more."},
    {-310, "%1 sends the page from one address to the next without end."},
    {-130, "The proxy cannot be reached."},
    {-115, "The proxy asks for a name and a password."},
    {-6, "The file was not found."},
    {-10, "The file may not be read."},
    {-20, "The page was held back."},
    {-27, "%1 does not let the page be shown here."},
    {-312, "Pages on this port are not opened: other services use it."},
    {-200, "The certificate of %1 is for another host."},
    {-201, "The certificate of %1 is not valid today: it has expired or begins later."},
    {-202, "Nobody who is trusted here has certified %1."},
    {-206, "The certificate of %1 was revoked."},
    {-208, "The certificate of %1 is signed in a way that is not safe any more."},
    {-211, "The certificate of %1 has a key that is too weak."},
};

QString WordsOf(int code) {
    for (const Failure& failure : kFailures) {
        if (failure.code == code) return QCoreApplication::translate("LoadFailure", failure.words);
    }
    if (IsCertificateFailure(code))
        return QCoreApplication::translate("LoadFailure", "The certificate of %1 is not valid.");
    return QCoreApplication::translate("LoadFailure", "The page could not be loaded (error %n).", nullptr,
                                       -code);
}

}  // namespace

bool IsCertificateFailure(int code) {
    return (code <= kFirstCertificateCode && code >= kLastCertificateCode) || code == kPinnedKey;
}

QString WordsOfFailure(const QUrl& address, int code) {
    QString words = WordsOf(code);
    if (!words.contains(QLatin1String("%1"))) return words;
    const QString host = address.host();
    return words.arg(host.isEmpty() ? QCoreApplication::translate("LoadFailure", "The server")
                                    : CutInTheMiddle(VisibleText(host), kMostHost));
}

}  // namespace webengine
