// A web server of a test on 127.0.0.1, in the test's own event loop. It also serves as a proxy that answers
// for every host itself, with a certificate that the test made where the connection is to be encrypted.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QTcpServer>

class QSslSocket;

namespace webengine_tests {

struct Answer {
    QByteArray body;
    QByteArray headers = "Content-Type: text/html; charset=utf-8\r\n";
    QByteArray status = "200 OK";
    /// What follows the body a moment later.
    QByteArray late = {};
};

class PageServer final : public QTcpServer {
public:
    PageServer();

    /// Without a slash at the end.
    std::string Address() const;
    /// How often a path was asked for.
    int Asked(const QByteArray& path) const { return asked_.value(path); }
    /// The last request's lines.
    QByteArray LastRequest() const { return last_; }
    /// Whole addresses, in the order in which they were asked for.
    const QList<QByteArray>& Addresses() const { return addresses_; }

    QHash<QByteArray, Answer> Pages;
    /// A path that never gets an answer.
    QByteArray Silent;
    /// A host whose encrypted port swallows what is sent to it.
    QByteArray Swallowing;
    /// A path whose answer breaks off in the middle, with the connection left open.
    QByteArray Unfinished;

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void Serve(QSslSocket& socket);
    void Encrypt(QSslSocket& socket, const QByteArray& host);
    void Reply(QSslSocket& socket, const QByteArray& path);

    QHash<QByteArray, int> asked_;
    QList<QByteArray> addresses_;
    QByteArray last_;
};

}  // namespace webengine_tests
