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

class QColorDialog;
class QWebEngineNewWindowRequest;

namespace webengine {

class EnginePage;

/// How often a page may show the user a box, and how many windows all pages together may open, without the
/// user doing anything: a button or a key pressed in a page renews that, as does half a minute without a try.
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
    /// The user has pressed a button or a key in the page.
    void RenewByHand() {
        boxes_.Renew();
        windows_.Renew();
        if (OnRenewed) OnRenewed();
    }
    /// Sends a colour chooser away that the page may not show now.
    void LimitChooser(QColorDialog& chooser);
    /// What else is limited begins again, too.
    std::function<void()> OnRenewed;

protected:
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
    void OpenWindow(QWebEngineNewWindowRequest& request);
    bool MayAsk();

    EnginePage& owner_;
    Quota boxes_{kMostBoxes};
    Quota& windows_;
    PermissionGate gate_;
};

}  // namespace webengine
