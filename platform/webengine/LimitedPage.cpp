#include "platform/webengine/LimitedPage.h"

#include <QAuthenticator>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>

#include "platform/webengine/EnginePage.h"
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
    RefuseRequests();
}

void LimitedPage::RefuseRequests() {
    connect(this, &QWebEnginePage::quotaRequested, this,
            [](QWebEngineQuotaRequest request) { request.reject(); });
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

QWebEnginePage* LimitedPage::createWindow(WebWindowType type) {
    const auto place =
        type == WebBrowserBackgroundTab ? ports::WindowPlace::Behind : ports::WindowPlace::InFront;
    if (gate_.Questions().MayOpenWindows() || windows_.Take()) return owner_.OnWindowWanted(place);
    gate_.Questions().OnWindowRefused();
    return nullptr;
}

bool LimitedPage::acceptNavigationRequest(const QUrl& url, NavigationType /*type*/, bool is_main_frame) {
    if (!is_main_frame) owner_.OnFrame(url);
    return true;
}

void LimitedPage::javaScriptAlert(const QUrl& origin, const QString& text) {
    if (MayAsk()) QWebEnginePage::javaScriptAlert(origin, text.left(kLongestBoxText));
}

bool LimitedPage::javaScriptConfirm(const QUrl& origin, const QString& text) {
    return MayAsk() && QWebEnginePage::javaScriptConfirm(origin, text.left(kLongestBoxText));
}

bool LimitedPage::javaScriptPrompt(const QUrl& origin, const QString& text, const QString& given,
                                   QString* result) {
    return MayAsk() && QWebEnginePage::javaScriptPrompt(origin, text.left(kLongestBoxText), given, result);
}

QStringList LimitedPage::chooseFiles(FileSelectionMode mode, const QStringList& old,
                                     const QStringList& kinds) {
    return MayAsk() ? QWebEnginePage::chooseFiles(mode, old, kinds) : QStringList();
}

}  // namespace webengine
