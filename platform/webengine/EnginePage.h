// One page of the engine.
//
// Invariants. The address told is that of the document shown, never that of one on its way. A navigation that
// fails leaves what was there: the engine shows an empty error document for a moment, which is taken back.
// What a page may ask of a person is counted per document, so no page can keep anybody busy. A renderer that
// died is started once more by itself; after that a notice offers to.
#pragma once

#include <QPointer>
#include <QUrl>
#include <QWebEngineHistory>
#include <QWebEngineLoadingInfo>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "platform/webengine/AddressCompletion.h"
#include "platform/webengine/NoticePage.h"
#include "ports/BrowserControl.h"

namespace webengine {

class EnginePage;

/// The engine's page, with what a document may do.
class LimitedPage final : public QWebEnginePage {
public:
    LimitedPage(QWebEngineProfile* profile, EnginePage& owner);

    /// A new document: the counts begin again.
    void ForgetCounts();

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
    void AskForPassword(const QUrl& url, QAuthenticator* authenticator);
    bool MayAsk();

    EnginePage& owner_;
    int boxes_ = 0;
    int windows_ = 0;
};

class EnginePage final : public QObject, public ports::BrowserControl {
public:
    EnginePage(QWebEngineProfile* profile, ToNativePath to_native_path, QWidget* parent);
    ~EnginePage() override;

    void SetListener(ports::BrowserListener* listener) override { listener_ = listener; }
    void Navigate(std::string_view address) override;
    void GoBack() override;
    void GoForward() override;
    void Refresh() override;
    std::string LocationURL() const override;
    std::string LocationName() const override;
    bool Busy() const override { return view_ != nullptr && busy_; }
    void WorkOnDocument(const std::vector<ports::ElementStep>& steps) override;

    // What the page tells its owner.
    void OnFrame(const QUrl& url);
    QWebEnginePage* OnWindowWanted();
    bool IsShown() const { return view_ != nullptr && view_->isVisible(); }
    QWidget* Window() const { return view_; }

private:
    void OnLoading(const QWebEngineLoadingInfo& info);
    void Arrive();
    void OnUrlChanged(const QUrl& url);
    void OnTitleChanged();
    void OnRendererGone(QWebEnginePage::RenderProcessTerminationStatus status);
    void Fail(const QUrl& url, int code);
    void TellArrivals();
    void HideNotice();
    QWebEngineHistory& History() const { return *view_->page()->history(); }

    QPointer<QWebEngineView> view_;
    QPointer<Notice> notice_;
    LimitedPage* page_ = nullptr;
    ToNativePath to_native_path_;
    ports::BrowserListener* listener_ = nullptr;
    QUrl location_;
    QString title_;
    std::vector<QUrl> frames_;
    bool busy_ = false;
    bool reloaded_by_itself_ = false;
};

}  // namespace webengine
