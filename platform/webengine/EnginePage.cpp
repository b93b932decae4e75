#include "platform/webengine/EnginePage.h"

#include <QTimer>
#include <QWebEngineDownloadRequest>
#include <QWebEngineScript>
#include <chrono>
#include <utility>

#include "base/Text.h"
#include "platform/qt/SkinColours.h"
#include "platform/webengine/AddressCompletion.h"
#include "platform/webengine/ClipboardGate.h"
#include "platform/webengine/DocumentWork.h"
#include "platform/webengine/LimitedPage.h"
#include "platform/webengine/MakerPages.h"
#include "platform/webengine/PageKeys.h"
#include "platform/webengine/PageLimits.h"
#include "platform/webengine/SearchEngines.h"
#include "platform/webengine/UserInput.h"

namespace webengine {

namespace {

constexpr int kBadAddress = -300;
constexpr int kRendererGone = -1000;
/// A title that is longer than any place shows is a page's attack on the places.
constexpr qsizetype kLongestTitle = 200;
/// How often a document is asked whether it was sent to a place of its own, and how long between.
constexpr int kGlancesInside = 20;
constexpr std::chrono::milliseconds kGlanceInside{50};

/// The engine's stand-in title of a document without one is its address without the scheme.
bool IsStandInTitle(const QString& title, const QUrl& location) {
    const QString whole = location.toString();
    return title.isEmpty() || whole == title || whole.endsWith(QStringLiteral("://") + title) ||
           whole.endsWith(QStringLiteral("://") + title + QLatin1Char('/')) || title == location.fileName();
}

QString ShortTitle(const QString& title) {
    if (title.size() <= kLongestTitle) return title;
    return title.left(kLongestTitle - (title[kLongestTitle - 1].isHighSurrogate() ? 1 : 0));
}

/// A server that answers "not found" with a page of its own: the engine calls that a failure, but the page is
/// there.
bool IsServersErrorPage(const QWebEngineLoadingInfo& info, const QUrl& shown) {
    return info.errorDomain() == QWebEngineLoadingInfo::HttpStatusCodeDomain && info.url() == shown;
}

/// The rules with what the user chose.
AddressRules RulesOf(const PageSettings& settings, const GeneralChoices& chosen) {
    AddressRules rules{.to_native_path = settings.to_native_path, .https_first = chosen.https_first};
    if (settings.search_form.empty()) return rules;
    rules.search_address = [&settings, &chosen](std::string_view words) {
        const std::string built_in = base::Replace(settings.search_form, kSearchWords, words);
        return AtSearchEngine(chosen.search_engine, settings.search_form, built_in);
    };
    return rules;
}

}  // namespace

EnginePage::EnginePage(const PageShare& share, QWidget* parent)
    : bars_(new PageBars(parent)),
      view_(new QWebEngineView(bars_)),
      settings_(share.settings),
      choices_(share.choices) {
    page_ = new LimitedPage(share, *this);
    page_->setParent(view_);
    LimitSettings(*page_->settings());
    rest_ = new PageRest(*page_, share.rest);
    WatchUser();
    view_->setPage(page_);
    new ClipboardGate(*view_, *page_->settings());
    bars_->SetPage(view_);
    patience_.setSingleShot(true);
    connect(&patience_, &QTimer::timeout, this, [this] { GiveUpEncryption(); });
    MakeChrome(share.choices);
    ConnectPage(*share.profile);
    bars_->show();
}

void EnginePage::ConnectPage(QWebEngineProfile& profile) {
    connect(page_, &QWebEnginePage::loadingChanged, this,
            [this](const QWebEngineLoadingInfo& info) { OnLoading(info); });
    connect(page_, &QWebEnginePage::urlChanged, this, [this](const QUrl& url) { OnUrlChanged(url); });
    connect(page_, &QWebEnginePage::loadProgress, this, [this] { CheckCommit(); });
    connect(page_, &QWebEnginePage::titleChanged, this, [this] { OnTitleChanged(); });
    connect(page_, &QWebEnginePage::renderProcessTerminated, this,
            [this](QWebEnginePage::RenderProcessTerminationStatus status, int) { OnRendererGone(status); });
    connect(page_, &QWebEnginePage::windowCloseRequested, this, [this] { OnWindowClosing(); });
    connect(&profile, &QWebEngineProfile::downloadRequested, this,
            [this](const QWebEngineDownloadRequest* download) {
                // A window that became nothing but a download.
                if (view_ != nullptr && download->page() == page_ && location_.isEmpty()) OnWindowClosing();
            });
}

void EnginePage::WatchUser() {
    rest_->is_busy = [this] { return busy_; };
    rest_->is_flooding = [this] { return titles_.IsFlooded() || moves_inside_.IsFlooded(); };
    rest_->is_dead = [this] { return died_unseen_; };
    rest_->waking = [this] { waking_ = true; };
    auto* input = new UserInput(*view_);
    input->pressed = [this] { page_->RenewByHand(); };
    input->wrote = [this] { rest_->OnWritten(); };
    input->chooser_coming = [this](QColorDialog& chooser) { page_->LimitChooser(chooser); };
}

void EnginePage::MakeChrome(SiteChoices& choices) {
    chrome_ =
        std::make_unique<PageChrome>(ChromeParts{.view = *view_,
                                                 .bars = *bars_,
                                                 .choices = choices,
                                                 .signs_changed =
                                                     [this] {
                                                         if (listener_ != nullptr) listener_->OnSignsChange();
                                                     },
                                                 .load = [this](const QUrl& address) { GoTo(address); }});
    bars_->ends = [this] { chrome_.reset(); };
}

// The area is a child of the screen's widget and goes with it, or here when the engine ends before the
// screen.
EnginePage::~EnginePage() {
    listener_ = nullptr;
    if (view_ == nullptr) return;
    disconnect(page_, nullptr, this, nullptr);
    delete bars_.data();
}

void EnginePage::Navigate(std::string_view address) {
    if (view_ == nullptr || address.find_first_not_of(" \t\r\n") == std::string_view::npos) return;
    Begin();
    reloaded_by_itself_ = false;
    const GeneralChoices& chosen = choices_.General();
    const Completed completed = CompleteAddress(
        AtSearchEngine(chosen.search_engine, settings_.search_form, address), RulesOf(settings_, chosen));
    asked_ = completed.address;
    on_refusal_ = completed.on_refusal;
    if (!on_refusal_.isEmpty()) patience_.start(settings_.patience_with_https);
    if (asked_.isValid()) {
        Load(asked_);
        return;
    }
    const QUrl shown(QString::fromUtf8(address.data(), static_cast<qsizetype>(address.size())));
    QTimer::singleShot(0, this, [this, shown, serial = serial_] {
        if (serial == serial_) Fail(shown, kBadAddress);
    });
}

void EnginePage::GoTo(const QUrl& address) {
    asked_ = address;
    TryAgain();
}

void EnginePage::GoBack() {
    if (view_ == nullptr || !History().canGoBack()) return;
    Begin();
    walking_history_ = true;
    page_->triggerAction(QWebEnginePage::Back);
}

void EnginePage::GoForward() {
    if (view_ == nullptr || !History().canGoForward()) return;
    Begin();
    walking_history_ = true;
    page_->triggerAction(QWebEnginePage::Forward);
}

void EnginePage::Refresh() {
    if (location_.isEmpty()) TryAgain();
    if (view_ == nullptr || location_.isEmpty()) return;
    Begin();
    page_->triggerAction(QWebEnginePage::Reload);
}

void EnginePage::Stop() {
    if (view_ != nullptr) page_->triggerAction(QWebEnginePage::Stop);
}

// What is hidden may rest, and what rests no longer may be seen.
void EnginePage::SetSeen(ports::PageSeen seen) {
    if (view_ == nullptr) return;
    if (seen != ports::PageSeen::InFront) bars_->hide();
    rest_->SetSeen(seen);
    if (seen != ports::PageSeen::InFront) return;
    bars_->show();
    if (died_unseen_) Revive();
}

bool EnginePage::TakeKey(int key_code, int shift) {
    return view_ != nullptr && TakePageKey(*this, key_code, shift);
}

void EnginePage::TryAgain() {
    if (view_ == nullptr || !asked_.isValid()) return;
    Begin();
    Load(asked_);
}

// What is empty is white until the first document is painted, and the maker's pages are not.
void EnginePage::Load(const QUrl& address) {
    if (location_.isEmpty() && IsOfMaker(address))
        page_->setBackgroundColor(QColor(qt::skin::Colours().ground));
    page_->load(address);
}

// The user, or the program for one, sends the page somewhere.
void EnginePage::Begin() {
    on_refusal_.clear();
    patience_.stop();
    if (notice_ != nullptr) notice_->hide();
    chrome_->OnBegin();
    page_->RenewQuotas();
    rest_->Wake();
    ++serial_;
    busy_ = true;
    walking_history_ = false;
    waking_ = false;
    died_unseen_ = false;
}

std::string EnginePage::LocationURL() const {
    return location_.toEncoded().toStdString();
}

std::string EnginePage::LocationName() const {
    return title_.isEmpty() ? LocationURL().substr(0, kLongestTitle) : title_.toStdString();
}

ports::PageSigns EnginePage::Signs() const {
    return chrome_ != nullptr ? chrome_->Signs(location_) : ports::PageSigns();
}

void EnginePage::ShowSecurity() {
    if (chrome_ != nullptr && !location_.isEmpty()) chrome_->Security().Show(location_);
}

void EnginePage::WorkOnDocument(std::string_view host, const std::vector<ports::ElementStep>& steps) {
    if (view_ == nullptr || location_.isEmpty()) return;
    page_->runJavaScript(DocumentWork(LocationURL(), host, steps), QWebEngineScript::ApplicationWorld);
}

void EnginePage::OnFrame(const QUrl& url) {
    // The engine shows a PDF in frames of its own.
    const QString scheme = url.scheme();
    if (scheme != QLatin1String("about") && scheme != QLatin1String("chrome-extension")) frames_.Add(url);
}

// The engine says nothing of a navigation that the page was not left for.
void EnginePage::OnDeclined() {
    QTimer::singleShot(0, this, [this, serial = serial_] {
        if (serial == serial_ && !loading_ && !location_.isEmpty()) busy_ = walking_history_ = false;
    });
}

// A page that the user has closed while it loaded still arrives, and would open its windows then.
QWebEnginePage* EnginePage::OnWindowWanted(ports::WindowPlace place) {
    if (listener_ == nullptr || rest_->Seen() == ports::PageSeen::Closed) return nullptr;
    auto* window = dynamic_cast<EnginePage*>(listener_->OnNewWindow(place));
    if (window == nullptr || window == this || window->view_ == nullptr) return nullptr;
    window->is_popup_ = true;
    window->rest_->OnTies();
    rest_->OnTies();
    return window->page_;
}

// The engine is inside a notification of the page that closes.
void EnginePage::OnWindowClosing() {
    if (!is_popup_) return;
    QTimer::singleShot(0, this, [this] {
        if (listener_ != nullptr) listener_->OnWindowClosing();
    });
}

void EnginePage::OnLoading(const QWebEngineLoadingInfo& info) {
    if (rest_->IsDiscarded()) {
        busy_ = false;
        return;
    }
    loading_ = info.status() == QWebEngineLoadingInfo::LoadStartedStatus;
    if (!loading_) rest_->OnLoadEnd();
    switch (info.status()) {
        case QWebEngineLoadingInfo::LoadStartedStatus:
            busy_ = true;
            commit_told_ = false;
            frames_.Begin();
            break;
        case QWebEngineLoadingInfo::LoadStoppedStatus:
            // Replaced by another one, or it became a download.
            busy_ = false;
            frames_.Drop();
            break;
        case QWebEngineLoadingInfo::LoadSucceededStatus:
            Arrive();
            break;
        case QWebEngineLoadingInfo::LoadFailedStatus:
            if (IsServersErrorPage(info, page_->url())) {
                Arrive();
            } else if (!AskWithoutEncryption(info)) {
                Fail(info.url(), info.errorCode());
            }
            break;
    }
}

// Only for a host that was typed without a scheme, and once.
bool EnginePage::AskWithoutEncryption(const QWebEngineLoadingInfo& info) {
    const QUrl plain = std::exchange(on_refusal_, QUrl());
    if (plain.isEmpty() || !IsRefusal(info.errorCode()) || info.url().host() != plain.host()) return false;
    asked_ = plain;
    // The engine is still ending the load that failed.
    QTimer::singleShot(0, this, [this, plain, serial = serial_] {
        if (serial == serial_ && view_ != nullptr) page_->load(plain);
    });
    return true;
}

// A host that swallows what is sent to its port of https refuses nothing; the engine would wait for minutes.
void EnginePage::GiveUpEncryption() {
    const QUrl plain = std::exchange(on_refusal_, QUrl());
    if (plain.isEmpty() || view_ == nullptr || !busy_) return;
    asked_ = plain;
    page_->load(plain);
}

void EnginePage::OnUrlChanged(const QUrl& url) {
    if (busy_ && !loading_ && !location_.isEmpty()) CheckInside(kGlancesInside);
    // Inside a document (an anchor, a pushed state) there is no load: the new address is that of the
    // document.
    if (busy_ || location_.isEmpty() || url.isEmpty() || url == location_ || rest_->IsDiscarded()) return;
    location_ = url;
    moves_inside_.Want();
}

// The page was sent to a place in its own document, by an address or back: nothing loads then. The engine may
// show an address before the document has it, so the document is asked.
void EnginePage::CheckInside(int glances) {
    const auto is_done = [self = QPointer<EnginePage>(this), serial = serial_,
                          glances](const QVariant& shown) {
        if (!shown.isValid() || self == nullptr || self->view_ == nullptr || serial != self->serial_) return;
        if (!self->busy_ || self->loading_) return;
        if (QUrl(shown.toString()) == self->page_->url()) {
            self->EndInside();
        } else if (glances > 1) {
            QTimer::singleShot(kGlanceInside, self, [self, glances] { self->CheckInside(glances - 1); });
        }
    };
    page_->runJavaScript(QStringLiteral("location.href"), QWebEngineScript::ApplicationWorld, is_done);
}

void EnginePage::EndInside() {
    busy_ = walking_history_ = false;
    if (page_->url() == location_) return;
    location_ = page_->url();
    moves_inside_.Want();
}

// While a new document loads, the engine shows its address ahead of it; the history has it from the moment on
// when it is there. On a walk through the history this cannot be told, so that waits for the end.
void EnginePage::CheckCommit() {
    if (!busy_ || commit_told_ || walking_history_ || page_->url() == location_) return;
    const QUrl committed = History().currentItem().url();
    if (committed.isEmpty() || committed != page_->url()) return;
    location_ = committed;
    title_.clear();
    titles_.Forget();
    TellCommit();
}

void EnginePage::TellCommit() {
    // The way on https was open; what fails later is another matter.
    on_refusal_.clear();
    commit_told_ = true;
    chrome_->OnDocument();
    told_ = location_;
    moves_inside_.Forget();
    rest_->OnDocument();
    if (listener_ != nullptr) listener_->OnNavigateComplete(LocationURL());
}

void EnginePage::OnTitleChanged() {
    CheckCommit();
    if (location_.isEmpty() || rest_->IsDiscarded() || (busy_ && !commit_told_)) return;
    titles_.Want();
}

// One that waited may come after the screen has taken the page away, or after it was discarded.
void EnginePage::TellTitle() {
    if (view_ == nullptr || rest_->IsDiscarded()) return;
    const QString title = page_->title();
    title_ = IsStandInTitle(title, location_) ? QString() : ShortTitle(title);
    if (listener_ != nullptr) listener_->OnTitleChange(LocationName());
}

void EnginePage::TellInside() {
    told_ = location_;
    if (listener_ == nullptr) return;
    listener_->OnTitleChange(LocationName());
    listener_->OnNavigateComplete(LocationURL());
}

// A page that was discarded is loaded again to be seen: it never was away, so no visit is told.
bool EnginePage::IsBackAgain() {
    if (!std::exchange(waking_, false) || page_->url() != location_) return false;
    frames_.Drop();
    commit_told_ = true;
    if (!IsStandInTitle(page_->title(), location_) && ShortTitle(page_->title()) != title_) titles_.Act();
    return true;
}

void EnginePage::Arrive() {
    busy_ = false;
    walking_history_ = false;
    if (IsBackAgain()) return;
    location_ = page_->url();
    chrome_->Zoom().Confirm();
    titles_.Act();
    TellArrivals();
}

void EnginePage::TellArrivals() {
    const std::vector<QUrl> frames = frames_.Take();
    for (const QUrl& frame : frames) {
        if (listener_ != nullptr) listener_->OnNavigateComplete(frame.toEncoded().toStdString());
    }
    if (!commit_told_) {
        TellCommit();
    } else if (told_ != location_) {
        TellInside();
    }
}

void EnginePage::Fail(const QUrl& url, int code) {
    busy_ = false;
    walking_history_ = false;
    waking_ = false;
    frames_.Drop();
    if (code != kRendererGone) chrome_->OnFailed(url, code, !location_.isEmpty());
    if (code != kBadAddress && code != kRendererGone) asked_ = url;
    if (listener_ != nullptr) listener_->OnNavigateError(url.toEncoded().toStdString(), code);
}

void EnginePage::OnRendererGone(QWebEnginePage::RenderProcessTerminationStatus status) {
    if (status == QWebEnginePage::NormalTerminationStatus || view_ == nullptr) return;
    if (rest_->Seen() == ports::PageSeen::InFront || location_.isEmpty()) {
        // The engine is still taking the dead page apart inside this signal.
        QTimer::singleShot(0, this, [this, serial = serial_] {
            if (serial == serial_ && view_ != nullptr) Revive();
        });
        return;
    }
    // Nobody sees it, so there is no hurry to start a process for it.
    busy_ = walking_history_ = false;
    died_unseen_ = true;
}

void EnginePage::Revive() {
    died_unseen_ = false;
    if (!reloaded_by_itself_ && !location_.isEmpty()) {
        reloaded_by_itself_ = true;
        Refresh();
        return;
    }
    ShowNotice();
    Fail(location_.isEmpty() ? asked_ : location_, kRendererGone);
}

void EnginePage::ShowNotice() {
    if (notice_ == nullptr) {
        notice_ = new Notice(tr("This page stopped working. The rest of the program goes on."), bars_);
        bars_->LayOver(notice_);
        notice_->Button().setText(tr("Reload"));
        notice_->Button().show();
        connect(&notice_->Button(), &QPushButton::clicked, this, [this] { ReloadDeadPage(); });
    }
    notice_->show();
    notice_->raise();
}

void EnginePage::ReloadDeadPage() {
    reloaded_by_itself_ = false;
    if (!location_.isEmpty()) {
        Refresh();
    } else {
        TryAgain();
    }
}

}  // namespace webengine
