#include "platform/webengine/PageChrome.h"

#include <QBuffer>
#include <QWebEngineLoadingInfo>

#include "platform/webengine/LoadFailure.h"
#include "platform/webengine/ShownText.h"

namespace webengine {

namespace {

constexpr int kIconSide = 32;  // twice what is seen, for fine screens
constexpr int kMostLinkCharacters = 110;
constexpr int kSignsMilliseconds = 100;
const QString kFailureBar = QStringLiteral("failure");

std::string PngOf(const QIcon& icon) {
    if (icon.isNull()) return {};
    const QPixmap picture = icon.pixmap(QSize(kIconSide, kIconSide));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (picture.isNull() || !picture.save(&buffer, "PNG")) return {};
    return bytes.toStdString();
}

}  // namespace

PageChrome::PageChrome(ChromeParts parts)
    : parts_(std::move(parts)),
      find_(*parts_.view.page(), parts_.bars),
      zoom_(parts_.view, parts_.bars, parts_.choices),
      security_(*parts_.view.page(), parts_.bars, parts_.load) {
    Connect();
    tell_signs_.setSingleShot(true);
    tell_signs_.setInterval(kSignsMilliseconds);
    connect(&tell_signs_, &QTimer::timeout, this, [this] { parts_.signs_changed(); });
}

void PageChrome::Connect() {
    const QWebEnginePage* page = parts_.view.page();
    connect(page, &QWebEnginePage::loadStarted, this, [this] { ShowProgress(0); });
    connect(page, &QWebEnginePage::loadProgress, this, [this](int percent) {
        if (signs_.progress >= 0) ShowProgress(percent);
    });
    connect(page, &QWebEnginePage::loadFinished, this, [this] { ShowProgress(-1); });
    connect(page, &QWebEnginePage::loadingChanged, this, [this](const QWebEngineLoadingInfo& info) {
        if (info.status() != QWebEngineLoadingInfo::LoadStartedStatus) ShowProgress(-1);
    });
    connect(page, &QWebEnginePage::linkHovered, this, [this](const QString& address) { ShowLink(address); });
    connect(page, &QWebEnginePage::iconChanged, this, [this](const QIcon& icon) {
        icon_ = icon;
        icons_.Want();
    });
}

ports::PageSigns PageChrome::Signs(const QUrl& location) const {
    ports::PageSigns signs = signs_;
    signs.security = security_.Of(location);
    return signs;
}

void PageChrome::ShowProgress(int percent) {
    if (signs_.progress == percent) return;
    signs_.progress = percent;
    parts_.bars.SetProgress(percent);
    SignsChanged();
}

void PageChrome::ShowLink(const QString& address) {
    parts_.bars.SetLine(address.isEmpty() ? QString() : ShownAddress(QUrl(address), kMostLinkCharacters));
}

void PageChrome::TakeIcon() {
    std::string bytes = PngOf(icon_);
    if (bytes == signs_.icon) return;
    signs_.icon = std::move(bytes);
    SignsChanged();
}

void PageChrome::SignsChanged() {
    if (!tell_signs_.isActive()) tell_signs_.start();
}

void PageChrome::OnBegin() {
    ForgetFailure();
    security_.Forget();
    parts_.bars.SetLine({});
}

void PageChrome::OnDocument() {
    ForgetFailure();
    security_.Forget();
    find_.OnDocument();
    zoom_.Apply();
    SignsChanged();
}

void PageChrome::ForgetFailure() {
    if (notice_ != nullptr) notice_->hide();
    parts_.bars.RemoveBar(kFailureBar);
}

void PageChrome::OnFailed(const QUrl& address, int code, bool has_document) {
    ShowProgress(-1);
    if (code == kFailureStopped) return;
    QString words = WordsOfFailure(address, code);
    if (IsCertificateFailure(code))
        words = (words + QLatin1Char(' ') + security_.MoreReasons(address, code)).trimmed();
    if (!has_document) ShowFailureNotice(address, words);
    if (has_document || IsCertificateFailure(code)) ShowFailureBar(address, words, has_document);
}

void PageChrome::ShowFailureBar(const QUrl& address, const QString& words, bool can_try_again) {
    std::vector<BarButton> buttons;
    if (can_try_again && address.isValid())
        buttons.push_back({.words = tr("Try again"), .pressed = [this, address] { parts_.load(address); }});
    for (BarButton& way : security_.WaysOn(address))
        buttons.push_back(std::move(way));
    parts_.bars.ShowBar({.name = kFailureBar, .words = words, .buttons = std::move(buttons)});
}

void PageChrome::ShowFailureNotice(const QUrl& address, const QString& words) {
    if (notice_ == nullptr) {
        notice_ = new Notice(QString(), &parts_.bars);
        notice_->Button().setText(tr("Try again"));
        parts_.bars.LayOver(notice_);
    }
    notice_->SetWords(words + QLatin1String("\n\n") + ShownAddress(address));
    notice_->Button().disconnect(this);
    notice_->Button().setVisible(address.isValid());
    connect(&notice_->Button(), &QPushButton::clicked, this, [this, address] { parts_.load(address); });
    notice_->show();
    notice_->raise();
}

bool PageChrome::Escape() {
    if (!find_.IsOpen()) return false;
    find_.Close();
    return true;
}

}  // namespace webengine
