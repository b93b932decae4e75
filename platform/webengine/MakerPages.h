// The pages that are shipped inside the module, under a scheme of the program's own: the maker's pages on
// "brindlepost://start/...", "brindlepost://settings" and "brindlepost://keys".
#pragma once

#include <QByteArray>
#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

#include "platform/webengine/SettingsDesk.h"
#include "platform/webengine/SiteChoices.h"

namespace webengine {

/// The name of the scheme.
QByteArray MakerScheme();

bool IsOfMaker(const QUrl& address);

/// Makes the scheme known; to be called once, before the first profile.
void RegisterMakerScheme();

/// The resource that an address of the scheme names; empty for one that is no page of it. What counts is
/// "page3" (help, updates) and "origin" (Brindlepost_BG is the backdrop); everything else on "/" and
/// "/index.php" is the start page. The settings page is not among them.
QString MakerPageOf(const QUrl& address);

class MakerPages final : public QWebEngineUrlSchemeHandler {
public:
    MakerPages(SiteChoices& choices, SettingsErrands errands);
    void requestStarted(QWebEngineUrlRequestJob* job) override;

private:
    void AnswerSettings(QWebEngineUrlRequestJob* job);

    SettingsDesk settings_;
};

}  // namespace webengine
