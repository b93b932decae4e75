// The engine's page with what a document may do: a permission is granted only by the user, and boxes and new
// windows are limited.
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <QWebEnginePage>
#include <functional>

#include "platform/webengine/PageShare.h"
#include "platform/webengine/PermissionGate.h"

namespace webengine {

class EnginePage;

/// How often a page may show the user a box, and how many windows all pages together may open, until the
/// user does something or half a minute was quiet.
inline constexpr int kMostBoxes = 3;
inline constexpr int kMostWindows = 20;

class LimitedPage final : public QWebEnginePage {
public:
    LimitedPage(const PageShare& share, EnginePage& owner);

    /// The user has sent the page somewhere: it may ask and open again.
    void RenewQuotas() {
        boxes_.Renew();
        windows_.Renew();
        gate_.Questions().Renew();
        if (OnRenewed) OnRenewed();
    }
    /// What else is limited begins again, too.
    std::function<void()> OnRenewed;

protected:
    QWebEnginePage* createWindow(WebWindowType type) override;
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool is_main_frame) override;
    void javaScriptAlert(const QUrl& origin, const QString& text) override;
    bool javaScriptConfirm(const QUrl& origin, const QString& text) override;
    bool javaScriptPrompt(const QUrl& origin, const QString& text, const QString& given,
                          QString* result) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int,
                                  const QString&) override {}
    QStringList chooseFiles(FileSelectionMode mode, const QStringList& old,
                            const QStringList& kinds) override;

private:
    void RefuseRequests();
    bool MayAsk();

    EnginePage& owner_;
    Quota boxes_{kMostBoxes};
    Quota& windows_;
    PermissionGate gate_;
};

}  // namespace webengine
