// One page of the engine.
//
// Invariants. The address reported is that of the document shown, never of one on its way. A document counts
// as arrived when the engine has put it in the place of the old one, even if pictures still come; it is
// reported once. A navigation inside a document (an anchor, a pushed state) is reported when nothing loads. A
// navigation that fails leaves what was there: with its error pages off, the engine drops it. Titles and such
// navigations are reported only a few times a second, the last one always. How often a page may bother the
// user is limited. A renderer that died is restarted once automatically, as soon as its page is seen; after
// that a notice offers to.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QWebEngineHistory>
#include <QWebEngineLoadingInfo>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "platform/webengine/ArrivingFrames.h"
#include "platform/webengine/NoticePage.h"
#include "platform/webengine/Pace.h"
#include "platform/webengine/PageBars.h"
#include "platform/webengine/PageChrome.h"
#include "platform/webengine/PageShare.h"
#include "ports/BrowserControl.h"

namespace webengine {

class LimitedPage;
class PageTools;

class EnginePage final : public QObject, public ports::BrowserControl {
public:
    EnginePage(const PageShare& share, QWidget* parent);
    ~EnginePage() override;

    void SetListener(ports::BrowserListener* listener) override { listener_ = listener; }
    void Navigate(std::string_view address) override;
    void GoBack() override;
    void GoForward() override;
    void Refresh() override;
    void Stop() override;
    void SetSeen(ports::PageSeen seen) override;
    bool TakeKey(int key_code, int shift) override;
    std::string LocationURL() const override;
    std::string LocationName() const override;
    bool Busy() const override { return view_ != nullptr && busy_; }
    ports::PageSigns Signs() const override;
    void ShowSecurity() override;
    void WorkOnDocument(std::string_view host, const std::vector<ports::ElementStep>& steps) override;

    /// Goes again to the address that was asked for, or failed, last.
    void TryAgain();
    /// Null after the screen's widget has gone.
    QWebEngineView* View() const { return view_; }

    // Notifications of the page to its owner.
    void OnFrame(const QUrl& url);
    void OnNavigation(QWebEnginePage::NavigationType type) { rest_->OnNavigation(type); }
    /// A question of the page was answered with no. It may have been whether to leave the page.
    void OnDeclined();
    QWebEnginePage* OnWindowWanted(ports::WindowPlace place);
    bool IsShown() const { return view_ != nullptr && view_->isVisible(); }
    /// The page's area. Null once the screen has taken it away.
    PageBars* Bars() const { return bars_; }
    LimitedPage& Page() const { return *page_; }
    /// What is shown around the page. Null as Bars is.
    PageChrome* Chrome() const { return chrome_.get(); }
    /// What the user can do with the page; null without.
    PageTools* Tools() const { return tools_; }
    void SetTools(PageTools* tools) { tools_ = tools; }

private:
    void MakeChrome(SiteChoices& choices);
    void GoTo(const QUrl& address);
    void Load(const QUrl& address);
    void ConnectPage(QWebEngineProfile& profile);
    void WatchUser();
    void OnWindowClosing();
    void OnLoading(const QWebEngineLoadingInfo& info);
    void Arrive();
    void Begin();
    void CheckCommit();
    void TellCommit();
    void ShowNotice();
    void ReloadDeadPage();
    void OnUrlChanged(const QUrl& url);
    void CheckInside(int glances);
    void EndInside();
    void OnTitleChanged();
    void TellTitle();
    void TellInside();
    bool IsBackAgain();
    void OnRendererGone(QWebEnginePage::RenderProcessTerminationStatus status);
    void Revive();
    void Fail(const QUrl& url, int code);
    void TellArrivals();
    bool AskWithoutEncryption(const QWebEngineLoadingInfo& info);
    void GiveUpEncryption();
    QWebEngineHistory& History() const { return *view_->page()->history(); }

    QPointer<PageBars> bars_;
    QPointer<QWebEngineView> view_;
    QPointer<Notice> notice_;
    LimitedPage* page_ = nullptr;
    PageTools* tools_ = nullptr;
    QPointer<PageRest> rest_;
    const PageSettings& settings_;
    const SiteChoices& choices_;
    std::unique_ptr<PageChrome> chrome_;
    Pace titles_{[this] { TellTitle(); }};
    Pace moves_inside_{[this] { TellInside(); }};
    ports::BrowserListener* listener_ = nullptr;
    QUrl location_;
    QUrl told_;
    QString title_;
    ArrivingFrames frames_;
    QUrl asked_;
    QUrl on_refusal_;  // asked for where asked_ is refused
    int serial_ = 0;
    bool busy_ = false;
    bool walking_history_ = false;
    bool loading_ = false;
    bool commit_told_ = false;
    bool reloaded_by_itself_ = false;
    bool is_popup_ = false;
    bool waking_ = false;
    bool died_unseen_ = false;
    QTimer patience_;  // with an answer on https
};

}  // namespace webengine
