#include "platform/webengine/EnginePage.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTimer>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineSettings>

#include "platform/webengine/LimitedPage.h"
#include "platform/webengine/PageKeys.h"

namespace webengine {

namespace {

constexpr int kBadAddress = -300;
constexpr int kRendererGone = -1000;

constexpr const char* kWorkOnDocument = R"((address, steps) => {
    const wanted = new URL(address);
    if (window.top !== window || location.origin !== wanted.origin || location.pathname !== wanted.pathname) return;
    const first = (found) => found instanceof Element ? found : found && found.length ? found[0] : null;
    for (const [kind, name, value] of steps) {
        const element = first(kind === 2 ? document.forms.namedItem(name) : document.all.namedItem(name));
        if (!element) continue;
        if (kind === 0) element.value = value;
        if (kind === 1) element.click();
        if (kind === 2) HTMLFormElement.prototype.submit.call(element);
    }
})";

void Limit(QWebEngineSettings& settings) {
    using Settings = QWebEngineSettings;
    settings.setAttribute(Settings::LocalContentCanAccessFileUrls, false);
    settings.setAttribute(Settings::LocalContentCanAccessRemoteUrls, false);
    settings.setAttribute(Settings::ErrorPageEnabled, false);
    settings.setAttribute(Settings::FocusOnNavigationEnabled, false);
    settings.setAttribute(Settings::JavascriptCanOpenWindows, true);
    settings.setAttribute(Settings::JavascriptCanAccessClipboard, false);
    settings.setAttribute(Settings::ScreenCaptureEnabled, false);
    settings.setAttribute(Settings::FullScreenSupportEnabled, false);
    settings.setAttribute(Settings::HyperlinkAuditingEnabled, false);
    settings.setAttribute(Settings::DnsPrefetchEnabled, false);
    settings.setAttribute(Settings::WebRTCPublicInterfacesOnly, true);
    settings.setUnknownUrlSchemePolicy(Settings::DisallowUnknownUrlSchemes);
}

/// The engine's stand-in title of a document without one is its address without the scheme.
bool IsStandInTitle(const QString& title, const QUrl& location) {
    const QString whole = location.toString();
    return title.isEmpty() || whole == title || whole.endsWith(QStringLiteral("://") + title) ||
           whole.endsWith(QStringLiteral("://") + title + QLatin1Char('/')) || title == location.fileName();
}

/// A server that answers "not found" with a page of its own: the engine calls that a failure, but the page is
/// there.
bool IsServersErrorPage(const QWebEngineLoadingInfo& info, const QUrl& shown) {
    return info.errorDomain() == QWebEngineLoadingInfo::HttpStatusCodeDomain && info.url() == shown;
}

}  // namespace

EnginePage::EnginePage(QWebEngineProfile* profile, ToNativePath to_native_path, Quota& windows,
                       SiteChoices& choices, QWidget* parent)
    : bars_(new PageBars(parent)),
      view_(new QWebEngineView(bars_)),
      to_native_path_(std::move(to_native_path)) {
    page_ = new LimitedPage(profile, *this, windows, choices);
    page_->setParent(view_);
    Limit(*page_->settings());
    view_->setPage(page_);
    bars_->SetPage(view_);
    connect(page_, &QWebEnginePage::loadingChanged, this,
            [this](const QWebEngineLoadingInfo& info) { OnLoading(info); });
    connect(page_, &QWebEnginePage::urlChanged, this, [this](const QUrl& url) { OnUrlChanged(url); });
    connect(page_, &QWebEnginePage::loadProgress, this, [this] { CheckCommit(); });
    connect(page_, &QWebEnginePage::titleChanged, this, [this] { OnTitleChanged(); });
    connect(page_, &QWebEnginePage::renderProcessTerminated, this,
            [this](QWebEnginePage::RenderProcessTerminationStatus status, int) { OnRendererGone(status); });
    bars_->show();
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
    asked_ = CompleteAddress(address, to_native_path_);
    if (asked_.isValid()) {
        page_->load(asked_);
        return;
    }
    const QUrl shown(QString::fromUtf8(address.data(), static_cast<qsizetype>(address.size())));
    QTimer::singleShot(0, this, [this, shown, serial = serial_] {
        if (serial == serial_) Fail(shown, kBadAddress);
    });
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
    if (view_ == nullptr || location_.isEmpty()) return;
    Begin();
    page_->triggerAction(QWebEnginePage::Reload);
}

void EnginePage::Stop() {
    if (view_ != nullptr) page_->triggerAction(QWebEnginePage::Stop);
}

bool EnginePage::TakeKey(int key_code, int shift) {
    return view_ != nullptr && TakePageKey(*this, key_code, shift);
}

// A person, or the program for one, sends the page somewhere.
void EnginePage::Begin() {
    if (notice_ != nullptr) notice_->hide();
    page_->RenewQuotas();
    ++serial_;
    busy_ = true;
    walking_history_ = false;
}

std::string EnginePage::LocationURL() const {
    return location_.toEncoded().toStdString();
}

std::string EnginePage::LocationName() const {
    return title_.isEmpty() ? LocationURL() : title_.toStdString();
}

// The script runs in a world of its own, where a page's scripts cannot change what it calls, and decides
// itself whether it is still in the document that was meant.
void EnginePage::WorkOnDocument(const std::vector<ports::ElementStep>& steps) {
    if (view_ == nullptr || location_.isEmpty()) return;
    QJsonArray list;
    for (const ports::ElementStep& step : steps) {
        list.append(QJsonArray{static_cast<int>(step.kind), QString::fromStdString(step.name),
                               QString::fromStdString(step.value)});
    }
    const QJsonArray arguments{QString::fromStdString(LocationURL()), list};
    const QString values = QString::fromUtf8(QJsonDocument(arguments).toJson(QJsonDocument::Compact));
    page_->runJavaScript(QStringLiteral("(%1)(...%2)").arg(QLatin1String(kWorkOnDocument), values),
                         QWebEngineScript::ApplicationWorld);
}

void EnginePage::OnFrame(const QUrl& url) {
    if (url.scheme() != QLatin1String("about")) frames_.push_back(url);
}

QWebEnginePage* EnginePage::OnWindowWanted() {
    if (listener_ == nullptr) return nullptr;
    auto* window = dynamic_cast<EnginePage*>(listener_->OnNewWindow());
    if (window == nullptr || window == this || window->view_ == nullptr) return nullptr;
    return window->page_;
}

void EnginePage::OnLoading(const QWebEngineLoadingInfo& info) {
    switch (info.status()) {
        case QWebEngineLoadingInfo::LoadStartedStatus:
            busy_ = true;
            commit_told_ = false;
            frames_.clear();
            break;
        case QWebEngineLoadingInfo::LoadStoppedStatus:
            // Replaced by another one, or it became a download.
            busy_ = false;
            break;
        case QWebEngineLoadingInfo::LoadSucceededStatus:
            Arrive();
            break;
        case QWebEngineLoadingInfo::LoadFailedStatus:
            if (IsServersErrorPage(info, page_->url())) {
                Arrive();
            } else {
                Fail(info.url(), info.errorCode());
            }
            break;
    }
}

void EnginePage::OnUrlChanged(const QUrl& url) {
    // Inside a document (an anchor, a pushed state) there is no load: the new address is that of the
    // document.
    if (!busy_ && !location_.isEmpty()) location_ = url;
}

// While a new document loads, the engine shows its address ahead of it; the history has it from the moment on
// when it is there. On a walk through the history this cannot be told, so that waits for the end.
void EnginePage::CheckCommit() {
    if (!busy_ || commit_told_ || walking_history_ || page_->url() == location_) return;
    const QUrl committed = History().currentItem().url();
    if (committed.isEmpty() || committed != page_->url()) return;
    location_ = committed;
    title_.clear();
    TellCommit();
}

void EnginePage::TellCommit() {
    commit_told_ = true;
    if (listener_ != nullptr) listener_->OnNavigateComplete(LocationURL());
}

void EnginePage::OnTitleChanged() {
    CheckCommit();
    if (location_.isEmpty() || (busy_ && !commit_told_)) return;
    TellTitle();
}

void EnginePage::TellTitle() {
    const QString title = page_->title();
    title_ = IsStandInTitle(title, location_) ? QString() : title;
    if (listener_ != nullptr) listener_->OnTitleChange(LocationName());
}

void EnginePage::Arrive() {
    busy_ = false;
    location_ = page_->url();
    walking_history_ = false;
    TellTitle();
    TellArrivals();
}

void EnginePage::TellArrivals() {
    const std::vector<QUrl> frames = std::move(frames_);
    frames_.clear();
    for (const QUrl& frame : frames) {
        if (listener_ != nullptr) listener_->OnNavigateComplete(frame.toEncoded().toStdString());
    }
    if (!commit_told_) TellCommit();
}

void EnginePage::Fail(const QUrl& url, int code) {
    busy_ = false;
    walking_history_ = false;
    frames_.clear();
    if (listener_ != nullptr) listener_->OnNavigateError(url.toEncoded().toStdString(), code);
}

void EnginePage::OnRendererGone(QWebEnginePage::RenderProcessTerminationStatus status) {
    if (status == QWebEnginePage::NormalTerminationStatus || view_ == nullptr) return;
    if (!reloaded_by_itself_ && !location_.isEmpty()) {
        reloaded_by_itself_ = true;
        // The engine is still taking the dead page apart inside this signal.
        QTimer::singleShot(0, this, [this] { Refresh(); });
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
    } else if (view_ != nullptr && asked_.isValid()) {
        Begin();
        page_->load(asked_);
    }
}

}  // namespace webengine
