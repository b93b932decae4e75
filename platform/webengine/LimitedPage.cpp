#include "platform/webengine/LimitedPage.h"

#include <QAuthenticator>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QWebEngineCertificateError>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineProfile>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>

#include "platform/webengine/EnginePage.h"

namespace webengine {

namespace {

/// Longest text a page may show in a box.
constexpr int kLongestBoxText = 600;

}  // namespace

LimitedPage::LimitedPage(QWebEngineProfile* profile, EnginePage& owner, Quota& windows, SiteChoices& choices)
    : QWebEnginePage(profile),
      owner_(owner),
      windows_(windows),
      gate_(*this, choices, [this] { return owner_.IsShown() ? owner_.Bars() : nullptr; }) {
    RefuseRequests();
}

void LimitedPage::RefuseRequests() {
    connect(this, &QWebEnginePage::fullScreenRequested, this,
            [](QWebEngineFullScreenRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::quotaRequested, this,
            [](QWebEngineQuotaRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
            [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::certificateError, this,
            [](QWebEngineCertificateError error) { error.rejectCertificate(); });
    connect(this, &QWebEnginePage::authenticationRequired, this, &LimitedPage::AskForPassword);
}

// A page behind has nobody to ask.
bool LimitedPage::MayAsk() {
    return owner_.IsShown() && boxes_.Take();
}

QWebEnginePage* LimitedPage::createWindow(WebWindowType /*type*/) {
    return windows_.Take() ? owner_.OnWindowWanted() : nullptr;
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

void LimitedPage::AskForPassword(const QUrl& url, QAuthenticator* authenticator) {
    if (!MayAsk()) return;
    QDialog box(owner_.Window());
    box.setWindowTitle(tr("Password"));
    auto* form = new QFormLayout(&box);
    auto* words = new QLabel(tr("%1 asks for a name and a password.").arg(url.host()), &box);
    words->setTextFormat(Qt::PlainText);
    auto* name = new QLineEdit(&box);
    auto* password = new QLineEdit(&box);
    password->setEchoMode(QLineEdit::Password);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &box);
    form->addRow(words);
    form->addRow(tr("Name"), name);
    form->addRow(tr("Password"), password);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
    if (box.exec() != QDialog::Accepted) return;
    authenticator->setUser(name->text());
    authenticator->setPassword(password->text());
}

}  // namespace webengine
