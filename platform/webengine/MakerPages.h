// The maker's pages, shipped inside the module under a scheme of the program's own:
// "brindlepost://start/...".
#pragma once

#include <QByteArray>
#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

namespace webengine {

/// The name of the scheme.
QByteArray MakerScheme();

/// Makes the scheme known; to be called once, before the first profile.
void RegisterMakerScheme();

/// The resource that an address of the scheme names; empty for one that is no page of it. What counts is
/// "page3" (help, updates) and "origin" (Brindlepost_BG is the backdrop); everything else on "/" and
/// "/index.php" is the start page.
QString MakerPageOf(const QUrl& address);

class MakerPages final : public QWebEngineUrlSchemeHandler {
public:
    using QWebEngineUrlSchemeHandler::QWebEngineUrlSchemeHandler;
    void requestStarted(QWebEngineUrlRequestJob* job) override;
};

}  // namespace webengine
