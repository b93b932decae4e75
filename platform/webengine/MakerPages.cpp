#include "platform/webengine/MakerPages.h"

#include <QBuffer>
#include <QFile>
#include <QPointer>
#include <QUrlQuery>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

#include "platform/qt/SkinSheet.h"

namespace webengine {

namespace {

constexpr const char* kHost = "start";
constexpr const char* kKeysHost = "keys";

QByteArray Resource(const char* path) {
    QFile file{QLatin1String(path)};
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

QByteArray MakerScheme() {
    return QByteArrayLiteral("brindlepost");
}

bool IsOfMaker(const QUrl& address) {
    return address.scheme().toLatin1() == MakerScheme();
}

void RegisterMakerScheme() {
    if (!QWebEngineUrlScheme::schemeByName(MakerScheme()).name().isEmpty()) return;
    QWebEngineUrlScheme scheme(MakerScheme());
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    scheme.setFlags(QWebEngineUrlScheme::SecureScheme);
    QWebEngineUrlScheme::registerScheme(scheme);
}

QString MakerPageOf(const QUrl& address) {
    const QString host = address.host();
    const bool is_keys = host == QLatin1String(kKeysHost);
    if (host != QLatin1String(kHost) && host != QLatin1String(kSettingsHost) && !is_keys) return {};
    const QString path = address.path();
    if (path == QLatin1String("/style.css")) return QStringLiteral(":/pages/style.css");
    if (host == QLatin1String(kSettingsHost)) return {};
    if (is_keys) {
        const bool is_page = path.isEmpty() || path == QLatin1String("/");
        return is_page ? QStringLiteral(":/pages/keys.html") : QString();
    }
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

MakerPages::MakerPages(SiteChoices& choices, SettingsErrands errands)
    : settings_(choices, Resource(":/pages/settings.html"), Resource(":/pages/settings.js"),
                std::move(errands)) {}

// The answer may come after the page has gone, and the job with it.
void MakerPages::AnswerSettings(QWebEngineUrlRequestJob* job) {
    const PageRequest request{.address = job->requestUrl(),
                              .method = job->requestMethod(),
                              .initiator = job->initiator(),
                              .token = job->requestHeaders().value(kTokenHeader)};
    settings_.Answer(request, [asked = QPointer<QWebEngineUrlRequestJob>(job)](const PageAnswer& answer) {
        if (asked == nullptr) return;
        if (answer.kind != PageAnswer::Kind::Reply) {
            asked->fail(answer.kind == PageAnswer::Kind::Refused ? QWebEngineUrlRequestJob::RequestDenied
                                                                 : QWebEngineUrlRequestJob::UrlNotFound);
            return;
        }
        auto* body = new QBuffer(asked);
        body->setData(answer.body);
        body->open(QIODevice::ReadOnly);
        asked->reply(answer.type, body);
    });
}

void MakerPages::requestStarted(QWebEngineUrlRequestJob* job) {
    const QString resource = MakerPageOf(job->requestUrl());
    if (resource.isEmpty() && job->requestUrl().host() == QLatin1String(kSettingsHost)) {
        AnswerSettings(job);
        return;
    }
    if (resource.isEmpty()) {
        job->fail(QWebEngineUrlRequestJob::UrlNotFound);
        return;
    }
    QByteArray bytes = Resource(resource.toLatin1().constData());
    const bool is_style = resource.endsWith(QLatin1String(".css"));
    if (is_style) bytes = qt::skin::Sheet(QString::fromUtf8(bytes)).toUtf8();
    auto* body = new QBuffer(job);
    body->setData(bytes);
    body->open(QIODevice::ReadOnly);
    job->reply(is_style ? QByteArrayLiteral("text/css") : QByteArrayLiteral("text/html"), body);
}

}  // namespace webengine
