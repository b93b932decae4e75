// How safe the connection of a page is: the lock beside its address, the words on that, and certificates that
// are not valid.
//
// Such a certificate is refused. The bar that says why offers to go on only where the site allows it, after a
// warning, for that host and that certificate, as long as the user's pages live.
#pragma once

#include <QObject>
#include <QSslCertificate>
#include <QUrl>
#include <QWebEngineCertificateError>
#include <QWebEnginePage>
#include <functional>
#include <memory>
#include <vector>

#include "platform/webengine/Certificates.h"
#include "platform/webengine/PageBars.h"
#include "ports/BrowserControl.h"

namespace webengine {

class PageSecurity final : public QObject {
public:
    /// `load` goes to an address again.
    PageSecurity(QWebEnginePage& page, PageBars& bars, std::function<void(const QUrl&)> load);

    ports::PageSigns::Security Of(const QUrl& location) const;
    /// Opens the bar that says how safe the connection is.
    void Show(const QUrl& location);
    /// Another document, or on the way to one: what was said holds no more.
    void Forget();
    /// What the user can do about a refused certificate of that address, for the bar that says so; empty when
    /// there was none.
    std::vector<BarButton> WaysOn(const QUrl& address);
    /// What else is wrong with that certificate; empty when nothing is.
    QString MoreReasons(const QUrl& address, int code) const;

private:
    struct Refused {
        QUrl address;
        QList<QSslCertificate> chain;
        bool may_pass = false;
    };
    void OnError(QWebEngineCertificateError error);
    void ShowChain(const Refused& refused);
    void Warn(const Refused& refused);
    void Pass(const Refused& refused);
    void ShowFacts(const QUrl& location, const SecurityFacts& facts);
    void Say(const QString& words);

    QWebEnginePage& page_;
    PageBars& bars_;
    std::function<void(const QUrl&)> load_;
    PassedCertificates& passed_;
    Refused refused_;
    std::unique_ptr<CertificateQuery> query_;
};

}  // namespace webengine
