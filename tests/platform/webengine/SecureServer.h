// A web server of a test that speaks TLS with a certificate made for the test.
#pragma once

#include <QSslCertificate>
#include <QSslKey>
#include <QTcpServer>
#include <QTemporaryDir>
#include <string>

namespace webengine_tests {

struct CertificateWishes {
    std::string host = "localhost";  ///< the name it is made for
    bool expired = false;
};

/// Serves one page, titled "Secret words", on 127.0.0.1, as "localhost".
class SecureServer final : public QTcpServer {
public:
    explicit SecureServer(const CertificateWishes& wishes);
    /// "https://localhost:12345"
    std::string Address() const;
    int Served() const { return served_; }

protected:
    void incomingConnection(qintptr handle) override;

private:
    void Make(const CertificateWishes& wishes);

    QTemporaryDir folder_;
    QSslCertificate certificate_;
    QSslKey key_;
    int served_ = 0;
};

}  // namespace webengine_tests
