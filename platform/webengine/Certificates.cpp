#include "platform/webengine/Certificates.h"

#include <QDateTime>
#include <QLocale>
#include <QSslCipher>
#include <QSslConfiguration>
#include <QStringList>
#include <QWebEngineProfile>
#include <algorithm>
#include <utility>

#include "platform/webengine/ShownText.h"

namespace webengine {

namespace {

constexpr int kHttpsPort = 443;
constexpr int kLimitMilliseconds = 10000;
constexpr int kMostName = 60;
constexpr int kNameInvalid = -200;
constexpr int kDateInvalid = -201;
constexpr qsizetype kMostLinks = 4;

QString HostAndPort(const QUrl& address) {
    return address.host().toLower() + QLatin1Char(':') + QString::number(address.port(kHttpsPort));
}

QByteArray KeyOf(const QUrl& address, const QSslCertificate& certificate) {
    return HostAndPort(address).toUtf8() + ' ' + certificate.digest(QCryptographicHash::Sha256);
}

QString Named(const QStringList& common, const QStringList& organisation) {
    const QString name = !common.isEmpty() ? common.first() : organisation.value(0);
    return name.isEmpty() ? QObject::tr("nobody that is named")
                          : CutInTheMiddle(VisibleText(name), kMostName);
}

QString SubjectOf(const QSslCertificate& certificate) {
    return Named(certificate.subjectInfo(QSslCertificate::CommonName),
                 certificate.subjectInfo(QSslCertificate::Organization));
}

QString IssuerOf(const QSslCertificate& certificate) {
    if (certificate.isSelfSigned()) return QObject::tr("itself");
    return Named(certificate.issuerInfo(QSslCertificate::CommonName),
                 certificate.issuerInfo(QSslCertificate::Organization));
}

QStringList NamesOf(const QSslCertificate& certificate) {
    return certificate.subjectAlternativeNames().values(QSsl::DnsEntry) +
           certificate.subjectAlternativeNames().values(QSsl::IpAddressEntry);
}

/// "*.example" is for one label before ".example".
bool IsFor(const QString& name, const QString& host) {
    if (name.compare(host, Qt::CaseInsensitive) == 0) return true;
    const qsizetype dot = host.indexOf(QLatin1Char('.'));
    return name.startsWith(QLatin1String("*.")) && dot > 0 &&
           name.mid(1).compare(host.mid(dot), Qt::CaseInsensitive) == 0;
}

QString ProtocolOf(QSsl::SslProtocol protocol) {
    if (protocol == QSsl::TlsV1_3) return QStringLiteral("TLS 1.3");
    if (protocol == QSsl::TlsV1_2) return QStringLiteral("TLS 1.2");
    return QStringLiteral("TLS");
}

}  // namespace

PassedCertificates& PassedCertificates::Of(QWebEngineProfile& profile) {
    const QString name = QStringLiteral("passedCertificates");
    for (QObject* child : profile.children()) {
        if (child->objectName() == name) return static_cast<PassedCertificates&>(*child);
    }
    auto* passed = new PassedCertificates(&profile);
    passed->setObjectName(name);
    return *passed;
}

void PassedCertificates::Pass(const QUrl& address, const QSslCertificate& certificate) {
    hosts_.insert(HostAndPort(address));
    certificates_.insert(KeyOf(address, certificate));
}

bool PassedCertificates::IsPassed(const QUrl& address, const QSslCertificate& certificate) const {
    return certificates_.contains(KeyOf(address, certificate));
}

bool PassedCertificates::IsAnyPassed(const QUrl& address) const {
    return hosts_.contains(HostAndPort(address));
}

QString WordsOfChain(const QList<QSslCertificate>& chain) {
    QStringList links;
    const QLocale english(QLocale::English);
    for (const QSslCertificate& certificate : chain.first(std::min(chain.size(), kMostLinks))) {
        links += QObject::tr("%1, certified by %2 from %3 until %4")
                     .arg(SubjectOf(certificate), IssuerOf(certificate),
                          english.toString(certificate.effectiveDate().date(), QStringLiteral("d MMMM yyyy")),
                          english.toString(certificate.expiryDate().date(), QStringLiteral("d MMMM yyyy")));
    }
    return links.join(QLatin1String("; "));
}

QString MoreReasons(const QSslCertificate& certificate, const QUrl& address, int code) {
    QStringList reasons;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QLocale english(QLocale::English);
    if (code != kDateInvalid && certificate.expiryDate() < now) {
        reasons += QObject::tr("It expired on %1.")
                       .arg(english.toString(certificate.expiryDate().date(), QStringLiteral("d MMMM yyyy")));
    }
    const QStringList names = NamesOf(certificate);
    const bool is_for_host = std::any_of(
        names.begin(), names.end(), [&address](const QString& name) { return IsFor(name, address.host()); });
    if (code != kNameInvalid && !is_for_host) {
        reasons += QObject::tr("It is for %1.")
                       .arg(CutInTheMiddle(
                           VisibleText(names.isEmpty() ? QObject::tr("no host") : names.first()), kMostName));
    }
    return reasons.join(QLatin1Char(' '));
}

CertificateQuery::CertificateQuery(const QUrl& address, std::function<void(const SecurityFacts&)> done)
    : done_(std::move(done)) {
    socket_.setPeerVerifyMode(QSslSocket::QueryPeer);
    connect(&socket_, &QSslSocket::sslErrors, this, [this] { socket_.ignoreSslErrors(); });
    connect(&socket_, &QSslSocket::encrypted, this, [this] { OnEncrypted(); });
    connect(&socket_, &QSslSocket::errorOccurred, this, [this] {
        End({.chain = {}, .protocol = {}, .trouble = tr("It could not be asked who certified it.")});
    });
    limit_.setSingleShot(true);
    connect(&limit_, &QTimer::timeout, this, [this] {
        End({.chain = {}, .protocol = {}, .trouble = tr("It did not answer when asked who certified it.")});
    });
    limit_.start(kLimitMilliseconds);
    const auto port = static_cast<quint16>(address.port(kHttpsPort));
    QTimer::singleShot(0, this,
                       [this, host = address.host(), port] { socket_.connectToHostEncrypted(host, port); });
}

void CertificateQuery::OnEncrypted() {
    End({.chain = socket_.peerCertificateChain(),
         .protocol = ProtocolOf(socket_.sessionProtocol()),
         .trouble = {}});
}

// The callback may end this query.
void CertificateQuery::End(const SecurityFacts& facts) {
    limit_.stop();
    socket_.disconnect(this);
    const std::function<void(const SecurityFacts&)> done = std::exchange(done_, nullptr);
    QTimer::singleShot(0, this, [this] { socket_.abort(); });
    if (done) done(facts);
}

}  // namespace webengine
