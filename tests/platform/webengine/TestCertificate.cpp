#include "platform/webengine/TestCertificate.h"

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSsl>
#include <QStringList>
#include <cstdlib>

namespace webengine_tests {

namespace {

constexpr const char* kHosts =
    "subjectAltName=DNS:pal.example,DNS:*.pal.example,DNS:notpal.example,DNS:otherpal.example,"
    "DNS:other.example,DNS:pal.example.other.example,DNS:one.example,DNS:login.live.example\n";

QString Home() {
    return QDir::homePath();
}

QByteArray Contents(const QString& name) {
    QFile file(Home() + QLatin1Char('/') + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool Run(const QStringList& arguments) {
    QProcess openssl;
    openssl.setWorkingDirectory(Home());
    openssl.start(QStringLiteral("openssl"), arguments);
    return openssl.waitForFinished() && openssl.exitStatus() == QProcess::NormalExit &&
           openssl.exitCode() == 0;
}

bool MakeCertificate() {
    QFile hosts(Home() + QStringLiteral("/hosts.txt"));
    if (!hosts.open(QIODevice::WriteOnly) || hosts.write(kHosts) < 0) return false;
    hosts.close();
    return Run({"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj",
                "/CN=Authority of a test", "-keyout", "authority.key", "-out", "authority.pem"}) &&
           Run({"req", "-newkey", "rsa:2048", "-nodes", "-subj", "/CN=pal.example", "-keyout", "site.key",
                "-out", "site.csr"}) &&
           Run({"x509", "-req", "-in", "site.csr", "-CA", "authority.pem", "-CAkey", "authority.key",
                "-CAcreateserial", "-days", "2", "-extfile", "hosts.txt", "-out", "site.pem"});
}

template <class Function>
Function Find(void* library, const char* name) {
    return reinterpret_cast<Function>(dlsym(library, name));
}

/// The engine reads its authorities from a store of this library; the calls are its documented ones.
bool TrustAuthority(const QByteArray& folder, QByteArray certificate) {
    struct Trust {
        unsigned ssl, email, signing;
    } trust{};
    void* nss = dlopen("libnss3.so", RTLD_NOW);
    void* smime = dlopen("libsmime3.so", RTLD_NOW);
    if (nss == nullptr || smime == nullptr) return false;
    const auto begin = Find<int (*)(const char*)>(nss, "NSS_InitReadWrite");
    const auto slot_of = Find<void* (*)()>(nss, "PK11_GetInternalKeySlot");
    const auto needs_init = Find<int (*)(void*)>(nss, "PK11_NeedUserInit");
    const auto init_pin = Find<int (*)(void*, const char*, const char*)>(nss, "PK11_InitPin");
    const auto decode = Find<void* (*)(char*, int)>(smime, "CERT_DecodeCertFromPackage");
    const auto import = Find<int (*)(void*, void*, unsigned long, const char*, int)>(nss, "PK11_ImportCert");
    const auto store = Find<void* (*)()>(nss, "CERT_GetDefaultCertDB");
    const auto to_trust = Find<int (*)(Trust*, const char*)>(nss, "CERT_DecodeTrustString");
    const auto change = Find<int (*)(void*, void*, Trust*)>(nss, "CERT_ChangeCertTrust");
    const auto end = Find<int (*)()>(nss, "NSS_Shutdown");
    if (begin(folder.constData()) != 0) return false;
    void* slot = slot_of();
    if (needs_init(slot) != 0) init_pin(slot, nullptr, "");
    void* authority = decode(certificate.data(), static_cast<int>(certificate.size()));
    const bool done = authority != nullptr && import(slot, authority, 0, "Authority of a test", 0) == 0 &&
                      to_trust(&trust, "C,,") == 0 && change(store(), authority, &trust) == 0;
    end();
    return done;
}

}  // namespace

// In a process of its own, for the engine begins the same library in another way.
bool MakeTrustedCertificate() {
    if (!MakeCertificate() || !QDir().mkpath(Home() + QStringLiteral("/.pki/nssdb"))) return false;
    const pid_t child = fork();
    if (child == 0) {
        const QByteArray folder = "sql:" + QFile::encodeName(Home() + QStringLiteral("/.pki/nssdb"));
        _exit(TrustAuthority(folder, Contents(QStringLiteral("authority.pem"))) ? 0 : 1);
    }
    int status = 1;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

QSslCertificate TestCertificate() {
    return QSslCertificate(Contents(QStringLiteral("site.pem")));
}

QSslKey KeyOfTestCertificate() {
    return QSslKey(Contents(QStringLiteral("site.key")), QSsl::Rsa);
}

}  // namespace webengine_tests
