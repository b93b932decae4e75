// A web server of a test on 127.0.0.1, in the test's own event loop.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QTcpServer>

namespace webengine_tests {

struct Answer {
    QByteArray body;
    QByteArray headers = "Content-Type: text/html; charset=utf-8\r\n";
    QByteArray status = "200 OK";
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

    QHash<QByteArray, Answer> Pages;
    /// A path that never gets an answer.
    QByteArray Silent;
    /// A path whose answer breaks off in the middle, with the connection left open.
    QByteArray Unfinished;

private:
    void Serve(QTcpSocket& socket);

    QHash<QByteArray, int> asked_;
    QByteArray last_;
};

}  // namespace webengine_tests
