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
    bool trusted = false;          ///< certified by the authority that the engine trusts, not by itself
    std::string at = "localhost";  ///< the name it is asked by, which leads to this computer
    bool only_encrypted = false;   ///< says that its host is never to be asked in another way
};

/// Serves one page, titled "Secret words", on 127.0.0.1.
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
    QByteArray Reply() const;

    QTemporaryDir folder_;
    QSslCertificate certificate_;
    QSslKey key_;
    CertificateWishes wishes_;
    int served_ = 0;
};

}  // namespace webengine_tests
