#include "platform/webengine/SecureServer.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QHostAddress>
#include <QProcess>
#include <QSslSocket>
#include <stdexcept>

namespace webengine_tests {

namespace {

void Run(const QStringList& arguments) {
    QProcess openssl;
    openssl.setStandardErrorFile(QProcess::nullDevice());
    openssl.start(QStringLiteral("openssl"), arguments);
    if (!openssl.waitForFinished() || openssl.exitCode() != 0) throw std::runtime_error("openssl failed");
}

void Write(const QString& path, const QByteArray& contents) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("no place for a certificate");
    file.write(contents);
}

QString Moment(const QDateTime& moment) {
    return moment.toString(QStringLiteral("yyyyMMddHHmmss")) + QLatin1Char('Z');
}

QByteArray Contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

SecureServer::SecureServer(const CertificateWishes& wishes) : wishes_(wishes) {
    Make(wishes);
    if (!listen(QHostAddress::LocalHost)) throw std::runtime_error("no port on 127.0.0.1");
}

// Only the authority's command makes a certificate of the past.
void SecureServer::Make(const CertificateWishes& wishes) {
    const QString key = folder_.filePath(QStringLiteral("key.pem"));
    const QString request = folder_.filePath(QStringLiteral("request.pem"));
    const QString certificate = folder_.filePath(QStringLiteral("certificate.pem"));
    const QString extensions = folder_.filePath(QStringLiteral("extensions"));
    const QString host = QString::fromStdString(wishes.host);
    Write(extensions, "subjectAltName=DNS:" + host.toUtf8() + "\n");
    Run({"req", "-newkey", "rsa:2048", "-nodes", "-keyout", key, "-out", request, "-subj", "/CN=" + host});
    Write(folder_.filePath(QStringLiteral("index")), {});
    Write(folder_.filePath(QStringLiteral("serial")), "01");
    const QString settings = folder_.filePath(QStringLiteral("settings"));
    Write(settings, "[ca]\ndefault_ca=own\n[own]\ndatabase=" + folder_.filePath("index").toUtf8() +
                        "\nserial=" + folder_.filePath("serial").toUtf8() +
                        "\nnew_certs_dir=" + folder_.path().toUtf8() +
                        "\ndefault_md=sha256\npolicy=any\n[any]\ncommonName=supplied\n");
    const QDateTime today = QDateTime::currentDateTimeUtc();
    const QDir home = QDir::home();
    const QStringList issuer = wishes.trusted ? QStringList{"-cert", home.filePath("authority.pem"),
                                                            "-keyfile", home.filePath("authority.key")}
                                              : QStringList{"-selfsign", "-keyfile", key};
    Run(QStringList{"ca", "-batch", "-notext", "-config", settings} + issuer +
        QStringList{"-in", request, "-out", certificate, "-extfile", extensions, "-startdate",
                    Moment(today.addDays(-30)), "-enddate", Moment(today.addDays(wishes.expired ? -3 : 30))});
    certificate_ = QSslCertificate(Contents(certificate));
    key_ = QSslKey(Contents(key), QSsl::Rsa);
    if (certificate_.isNull() || key_.isNull()) throw std::runtime_error("no certificate");
}

std::string SecureServer::Address() const {
    return "https://" + wishes_.at + ":" + std::to_string(serverPort());
}

QByteArray SecureServer::Reply() const {
    const QByteArray page = "<title>Secret words</title>secret";
    QByteArray head = "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n";
    if (wishes_.only_encrypted) head += "Strict-Transport-Security: max-age=600\r\n";
    return head + "Content-Length: " + QByteArray::number(page.size()) + "\r\n\r\n" + page;
}

void SecureServer::incomingConnection(qintptr handle) {
    auto* socket = new QSslSocket(this);
    socket->setSocketDescriptor(handle);
    socket->setLocalCertificate(certificate_);
    socket->setPrivateKey(key_);
    connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QSslSocket::readyRead, socket, [this, socket] {
        if (!socket->readAll().contains("\r\n\r\n")) return;
        ++served_;
        socket->write(Reply());
        socket->disconnectFromHost();
    });
    socket->startServerEncryption();
}

}  // namespace webengine_tests
