#include "platform/webengine/MakerPages.h"

#include <QFile>
#include <QUrlQuery>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace webengine {

namespace {

constexpr const char* kHost = "start";

}  // namespace

QByteArray MakerScheme() {
    return QByteArrayLiteral("brindlepost");
}

void RegisterMakerScheme() {
    if (!QWebEngineUrlScheme::schemeByName(MakerScheme()).name().isEmpty()) return;
    QWebEngineUrlScheme scheme(MakerScheme());
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    scheme.setFlags(QWebEngineUrlScheme::SecureScheme);
    QWebEngineUrlScheme::registerScheme(scheme);
}

QString MakerPageOf(const QUrl& address) {
    if (address.host() != QLatin1String(kHost)) return {};
    const QString path = address.path();
    if (path == QLatin1String("/style.css")) return QStringLiteral(":/pages/style.css");
    if (!path.isEmpty() && path != QLatin1String("/") && path != QLatin1String("/index.php")) return {};
    const QUrlQuery query(address);
    const QString page = query.queryItemValue(QStringLiteral("page3"));
    if (page == QLatin1String("help")) return QStringLiteral(":/pages/help.html");
    if (page == QLatin1String("updates")) return QStringLiteral(":/pages/updates.html");
    if (query.queryItemValue(QStringLiteral("origin")) == QLatin1String("Brindlepost_BG")) {
        return QStringLiteral(":/pages/backdrop.html");
    }
    return QStringLiteral(":/pages/start.html");
}

void MakerPages::requestStarted(QWebEngineUrlRequestJob* job) {
    const QString resource = MakerPageOf(job->requestUrl());
    if (resource.isEmpty()) {
        job->fail(QWebEngineUrlRequestJob::UrlNotFound);
        return;
    }
    auto* file = new QFile(resource, job);
    if (!file->open(QIODevice::ReadOnly)) {
        job->fail(QWebEngineUrlRequestJob::RequestFailed);
        return;
    }
    job->reply(resource.endsWith(QLatin1String(".css")) ? QByteArrayLiteral("text/css")
                                                        : QByteArrayLiteral("text/html"),
               file);
}

}  // namespace webengine
