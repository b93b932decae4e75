#include "platform/webengine/LimitedPage.h"

#include <QAuthenticator>
#include <QColorDialog>
#include <QTimer>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QtGlobal>

#include "platform/webengine/EnginePage.h"
#include "platform/webengine/MakerPages.h"
#include "platform/webengine/PasswordBox.h"

namespace webengine {

namespace {

/// Longest text a page may show in a box.
constexpr int kLongestBoxText = 600;

}  // namespace

LimitedPage::LimitedPage(const PageShare& share, EnginePage& owner)
    : QWebEnginePage(share.profile),
      owner_(owner),
      windows_(share.windows),
      gate_(*this, share.choices, [this] { return owner_.IsShown() ? owner_.Bars() : nullptr; }) {
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [this](QWebEngineNewWindowRequest& request) { OpenWindow(request); });
    RefuseRequests();
}

void LimitedPage::RefuseRequests() {
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    // From there on no page can ask for it.
    connect(this, &QWebEnginePage::quotaRequested, this,
            [](QWebEngineQuotaRequest request) { request.reject(); });
#endif
    connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
            [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::authenticationRequired, this,
            [this](const QUrl& url, QAuthenticator* authenticator) {
                if (MayAsk()) AskForPassword(owner_.View(), url, *authenticator);
            });
}

// A page behind has nobody to ask.
bool LimitedPage::MayAsk() {
    return owner_.IsShown() && boxes_.Take();
}

// What the user clicks for is not counted: the engine uses up a click with the first window.
void LimitedPage::OpenWindow(QWebEngineNewWindowRequest& request) {
    const bool may = request.isUserInitiated() || gate_.Questions().MayOpenWindows() || windows_.Take();
    if (!may) {
        gate_.Questions().OnWindowRefused();
        return;
    }
    const bool behind = request.destination() == QWebEngineNewWindowRequest::InNewBackgroundTab;
    QWebEnginePage* page =
        owner_.OnWindowWanted(behind ? ports::WindowPlace::Behind : ports::WindowPlace::InFront);
    if (page != nullptr) request.openIn(page);
}

bool LimitedPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool is_main_frame) {
    if (is_main_frame) {
        // Sites rely on it where they choose no colour.
        if (!IsOfMaker(url)) setBackgroundColor(Qt::white);
        owner_.OnNavigation(type);
    } else {
        owner_.OnFrame(url);
    }
    return true;
}

void LimitedPage::javaScriptAlert(const QUrl& origin, const QString& text) {
    if (MayAsk()) QWebEnginePage::javaScriptAlert(origin, text.left(kLongestBoxText));
}

bool LimitedPage::javaScriptConfirm(const QUrl& origin, const QString& text) {
    const bool yes = MayAsk() && QWebEnginePage::javaScriptConfirm(origin, text.left(kLongestBoxText));
    if (!yes) owner_.OnDeclined();
    return yes;
}

bool LimitedPage::javaScriptPrompt(const QUrl& origin, const QString& text, const QString& given,
                                   QString* result) {
    return MayAsk() && QWebEnginePage::javaScriptPrompt(origin, text.left(kLongestBoxText), given, result);
}

QStringList LimitedPage::chooseFiles(FileSelectionMode mode, const QStringList& old,
                                     const QStringList& kinds) {
    // The engine shows none without a click of the user, so it is not counted.
    return owner_.IsShown() ? QWebEnginePage::chooseFiles(mode, old, kinds) : QStringList();
}

void LimitedPage::LimitChooser(QColorDialog& chooser) {
    if (MayAsk()) return;
    chooser.setAttribute(Qt::WA_DontShowOnScreen);
    // A modal one that nobody sees would take every click and key of its window as long as it is there.
    chooser.setWindowModality(Qt::NonModal);
    QTimer::singleShot(0, &chooser, &QDialog::reject);
}

}  // namespace webengine
