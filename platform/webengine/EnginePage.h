// One page of the engine.
//
// Invariants. The address told is that of the document shown, never that of one on its way. A document counts
// as arrived when the engine has put it in the place of the old one, even if pictures still come; it is told
// once. A navigation that fails leaves what was there: with its error pages off, the engine drops it. How
// often a page may bother a person is limited. A renderer that died is started once more by itself; after
// that a notice offers to.
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
#include "platform/webengine/Quota.h"
#include "ports/BrowserControl.h"

namespace webengine {

class EnginePage;

/// How often a page may put a box before the person, and how many windows all pages together may open, until
/// the person does something or half a minute was quiet.
inline constexpr int kMostBoxes = 3;
inline constexpr int kMostWindows = 20;

/// The engine's page, with what a document may do.
class LimitedPage final : public QWebEnginePage {
public:
    LimitedPage(QWebEngineProfile* profile, EnginePage& owner, Quota& windows);

    /// The person has sent the page somewhere: it may ask and open again.
    void RenewQuotas() {
        boxes_.Renew();
        windows_.Renew();
    }

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
    Quota boxes_{kMostBoxes};
    Quota& windows_;
};

class EnginePage final : public QObject, public ports::BrowserControl {
public:
    EnginePage(QWebEngineProfile* profile, ToNativePath to_native_path, Quota& windows, QWidget* parent);
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
    void Begin();
    void CheckCommit();
    void TellCommit();
    void ShowNotice();
    void ReloadDeadPage();
    void OnUrlChanged(const QUrl& url);
    void OnTitleChanged();
    void TellTitle();
    void OnRendererGone(QWebEnginePage::RenderProcessTerminationStatus status);
    void Fail(const QUrl& url, int code);
    void TellArrivals();
    QWebEngineHistory& History() const { return *view_->page()->history(); }

    QPointer<QWebEngineView> view_;
    QPointer<Notice> notice_;
    LimitedPage* page_ = nullptr;
    ToNativePath to_native_path_;
    ports::BrowserListener* listener_ = nullptr;
    QUrl location_;
    QString title_;
    std::vector<QUrl> frames_;
    QUrl asked_;
    int serial_ = 0;
    bool busy_ = false;
    bool walking_history_ = false;
    bool commit_told_ = false;
    bool reloaded_by_itself_ = false;
};

}  // namespace webengine
