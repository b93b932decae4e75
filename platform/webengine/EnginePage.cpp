#include "platform/webengine/EnginePage.h"

#include <QTimer>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

namespace webengine {

namespace {

constexpr int kBadAddress = -300;
constexpr int kRendererGone = -1000;

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

EnginePage::EnginePage(QWebEngineProfile* profile, ToNativePath to_native_path, QWidget* parent)
    : view_(new QWebEngineView(parent)), to_native_path_(std::move(to_native_path)) {
    page_ = new LimitedPage(profile, *this);
    page_->setParent(view_);
    Limit(*page_->settings());
    view_->setPage(page_);
    connect(page_, &QWebEnginePage::loadingChanged, this,
            [this](const QWebEngineLoadingInfo& info) { OnLoading(info); });
    connect(page_, &QWebEnginePage::urlChanged, this, [this](const QUrl& url) { OnUrlChanged(url); });
    connect(page_, &QWebEnginePage::titleChanged, this, [this] { OnTitleChanged(); });
    connect(page_, &QWebEnginePage::renderProcessTerminated, this,
            [this](QWebEnginePage::RenderProcessTerminationStatus status, int) { OnRendererGone(status); });
    view_->show();
}

// The view is a child of the screen's widget and goes with it, or here when the engine ends before the
// screen.
EnginePage::~EnginePage() {
    listener_ = nullptr;
    if (view_ == nullptr) return;
    disconnect(page_, nullptr, this, nullptr);
    delete view_.data();
}

void EnginePage::Navigate(std::string_view address) {
    if (view_ == nullptr || address.find_first_not_of(" \t\r\n") == std::string_view::npos) return;
    HideNotice();
    reloaded_by_itself_ = false;
    const QUrl whole = CompleteAddress(address, to_native_path_);
    busy_ = true;
    if (whole.isValid()) {
        page_->load(whole);
        return;
    }
    const QUrl shown(QString::fromUtf8(address.data(), static_cast<qsizetype>(address.size())));
    QTimer::singleShot(0, this, [this, shown] { Fail(shown, kBadAddress); });
}

void EnginePage::GoBack() {
    if (view_ == nullptr || !History().canGoBack()) return;
    HideNotice();
    busy_ = true;
    page_->triggerAction(QWebEnginePage::Back);
}

void EnginePage::GoForward() {
    if (view_ == nullptr || !History().canGoForward()) return;
    HideNotice();
    busy_ = true;
    page_->triggerAction(QWebEnginePage::Forward);
}

void EnginePage::Refresh() {
    if (view_ == nullptr || location_.isEmpty()) return;
    HideNotice();
    busy_ = true;
    page_->triggerAction(QWebEnginePage::Reload);
}

std::string EnginePage::LocationURL() const {
    return location_.toEncoded().toStdString();
}

std::string EnginePage::LocationName() const {
    return title_.isEmpty() ? LocationURL() : title_.toStdString();
}

void EnginePage::OnFrame(const QUrl& url) {
    if (url.scheme() != QLatin1String("about")) frames_.push_back(url);
}

QWebEnginePage* EnginePage::OnWindowWanted() {
    if (listener_ == nullptr) return nullptr;
    auto* window = dynamic_cast<EnginePage*>(listener_->OnNewWindow());
    if (window == nullptr || window == this || window->view_ == nullptr) return nullptr;
    window->busy_ = true;
    return window->page_;
}

void EnginePage::OnLoading(const QWebEngineLoadingInfo& info) {
    switch (info.status()) {
        case QWebEngineLoadingInfo::LoadStartedStatus:
            busy_ = true;
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

void EnginePage::OnTitleChanged() {
    if (busy_) return;
    const QString title = page_->title();
    title_ = IsStandInTitle(title, location_) ? QString() : title;
    if (listener_ != nullptr) listener_->OnTitleChange(LocationName());
}

void EnginePage::Arrive() {
    busy_ = false;
    location_ = page_->url();
    page_->ForgetCounts();
    OnTitleChanged();
    TellArrivals();
}

void EnginePage::TellArrivals() {
    const std::vector<QUrl> frames = std::move(frames_);
    frames_.clear();
    for (const QUrl& frame : frames) {
        if (listener_ != nullptr) listener_->OnNavigateComplete(frame.toEncoded().toStdString());
    }
    if (listener_ != nullptr) listener_->OnNavigateComplete(LocationURL());
}

void EnginePage::Fail(const QUrl& url, int code) {
    busy_ = false;
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
    if (notice_ == nullptr) {
        notice_ = new Notice(tr("This page stopped working. The rest of the program goes on."),
                             view_->parentWidget());
        notice_->Button().setText(tr("Reload"));
        notice_->Button().show();
        connect(&notice_->Button(), &QPushButton::clicked, this, [this] {
            reloaded_by_itself_ = false;
            Refresh();
        });
    }
    notice_->setGeometry(view_->geometry());
    notice_->show();
    notice_->raise();
    Fail(location_, kRendererGone);
}

void EnginePage::HideNotice() {
    if (notice_ != nullptr) notice_->hide();
}

}  // namespace webengine
