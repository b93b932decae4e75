#include "platform/webengine/PageServer.h"

#include <QHostAddress>
#include <QTcpSocket>
#include <stdexcept>

namespace webengine_tests {

PageServer::PageServer() {
    if (!listen(QHostAddress::LocalHost)) throw std::runtime_error("no port on 127.0.0.1");
    connect(this, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { Serve(*socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
}

std::string PageServer::Address() const {
    return "http://127.0.0.1:" + std::to_string(serverPort());
}

void PageServer::Serve(QTcpSocket& socket) {
    const QByteArray request = socket.property("request").toByteArray() + socket.readAll();
    socket.setProperty("request", request);
    if (!request.contains("\r\n\r\n")) return;
    socket.setProperty("request", QByteArray());
    last_ = request;
    const QByteArray path = request.split(' ').value(1);
    ++asked_[path];
    if (path == Silent) return;
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
                 "Connection: close\r\nContent-Length: " + QByteArray::number(answer.body.size()) +
                 "\r\n\r\n" + answer.body);
    socket.disconnectFromHost();
}

}  // namespace webengine_tests
