// Certificates of sites: which were passed in spite of an error, what they say, and asking a host for its
// own.
#pragma once

#include <QList>
#include <QObject>
#include <QSet>
#include <QSslCertificate>
#include <QSslSocket>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <functional>

class QWebEngineProfile;

namespace webengine {

/// Certificates with an error that the user let pass, by host and certificate. They hold as long as the
/// profile lives, and are kept nowhere.
class PassedCertificates final : public QObject {
public:
    /// The one of that profile; made when it is first asked for.
    static PassedCertificates& Of(QWebEngineProfile& profile);

    void Pass(const QUrl& address, const QSslCertificate& certificate);
    bool IsPassed(const QUrl& address, const QSslCertificate& certificate) const;
    /// Some certificate of that host was let pass.
    bool IsAnyPassed(const QUrl& address) const;

private:
    explicit PassedCertificates(QObject* parent) : QObject(parent) {}

    QSet<QString> hosts_;
    QSet<QByteArray> certificates_;
};

/// "one.example, certified by Owl Trust until 3 May 2027"; then whoever certified that, up to the root.
QString WordsOfChain(const QList<QSslCertificate>& chain);

/// What else is wrong with a certificate for that host, besides the engine's own reason: the engine names
/// one. Sentences; empty when nothing is.
QString MoreReasons(const QSslCertificate& certificate, const QUrl& address, int code);

struct SecurityFacts {
    QList<QSslCertificate> chain;
    QString protocol;  ///< "TLS 1.3"
    QString trouble;   ///< why there are no facts; empty when there are
};

/// Asks a host for its certificates over a connection of its own. The page engine does not say what it was
/// shown; a host with several servers may show another certificate here.
class CertificateQuery final : public QObject {
public:
    CertificateQuery(const QUrl& address, std::function<void(const SecurityFacts&)> done);

private:
    void OnEncrypted();
    void End(const SecurityFacts& facts);

    QSslSocket socket_;
    QTimer limit_;
    std::function<void(const SecurityFacts&)> done_;
};

}  // namespace webengine
