#include "platform/webengine/PageServer.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <QSslSocket>
#include <QTimer>
#include <QUrl>
#include <stdexcept>

#include "platform/webengine/TestCertificate.h"

namespace webengine_tests {

namespace {

constexpr int kLateMilliseconds = 200;

}  // namespace

PageServer::PageServer() {
    setProxy(QNetworkProxy::NoProxy);
    if (!listen(QHostAddress::LocalHost)) throw std::runtime_error("no port on 127.0.0.1");
}

std::string PageServer::Address() const {
    return "http://127.0.0.1:" + std::to_string(serverPort());
}

void PageServer::incomingConnection(qintptr descriptor) {
    auto* socket = new QSslSocket(this);
    socket->setProxy(QNetworkProxy::NoProxy);
    socket->setSocketDescriptor(descriptor);
    connect(socket, &QSslSocket::readyRead, socket, [this, socket] { Serve(*socket); });
    connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
}

void PageServer::Serve(QSslSocket& socket) {
    const QByteArray request = socket.property("request").toByteArray() + socket.readAll();
    socket.setProperty("request", request);
    if (!request.contains("\r\n\r\n")) return;
    socket.setProperty("request", QByteArray());
    const QList<QByteArray> words = request.left(request.indexOf("\r\n")).split(' ');
    if (words.value(0) == "CONNECT" && words.value(1) == Swallowing + ":443") return;
    if (words.value(0) == "CONNECT") {
        Encrypt(socket, words.value(1).split(':').value(0));
        return;
    }
    last_ = request;
    const QUrl whole = QUrl::fromEncoded(words.value(1));
    const QByteArray path = whole.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority);
    const QByteArray site = whole.host().isEmpty() ? socket.property("site").toByteArray()
                                                   : whole.toEncoded(QUrl::RemovePath | QUrl::RemoveQuery);
    addresses_.push_back(site + path);
    ++asked_[path];
    if (path != Silent) Reply(socket, path);
}

void PageServer::Encrypt(QSslSocket& socket, const QByteArray& host) {
    socket.setProperty("site", "https://" + host);
    socket.write("HTTP/1.1 200 Connection established\r\n\r\n");
    socket.setLocalCertificate(TestCertificate());
    socket.setPrivateKey(KeyOfTestCertificate());
    socket.startServerEncryption();
}

void PageServer::Reply(QSslSocket& socket, const QByteArray& path) {
    const Answer answer =
        Pages.value(path, Answer{"<title>Not found</title>", "Content-Type: text/html\r\n", "404 Not Found"});
    if (path == Unfinished) {
        socket.write("HTTP/1.1 " + answer.status + "\r\n" + answer.headers + "Content-Length: " +
                     QByteArray::number(answer.body.size()) + "\r\n\r\n" + answer.body.chopped(1));
        return;
    }
    if (answer.headers.contains("Content-Length")) {
        socket.write("HTTP/1.1 " + answer.status + "\r\n" + answer.headers + "Connection: close\r\n\r\n" +
                     answer.body);
        socket.disconnectFromHost();
        return;
    }
    socket.write("HTTP/1.1 " + answer.status + "\r\n" + answer.headers +
                 "Connection: close\r\nContent-Length: " +
                 QByteArray::number(answer.body.size() + answer.late.size()) + "\r\n\r\n" + answer.body);
    if (answer.late.isEmpty()) {
        socket.disconnectFromHost();
        return;
    }
    QTimer::singleShot(kLateMilliseconds, &socket, [&socket, late = answer.late] {
        socket.write(late);
        socket.disconnectFromHost();
    });
}

}  // namespace webengine_tests
