#include "platform/webengine/FullScreen.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include "platform/qt/SkinSheet.h"
#include "platform/qt/WindowTitle.h"
#include "platform/webengine/LimitedPage.h"
#include "platform/webengine/ShownText.h"

namespace webengine {

namespace {

namespace skin = qt::skin;

constexpr int kHintMilliseconds = 4000;
constexpr int kHintTop = 32;
constexpr int kMostHost = 60;

/// The window closes as Escape does, and shows the page on black.
class ScreenWindow final : public QWidget {
public:
    explicit ScreenWindow(FullScreen& owner) : owner_(owner) {
        setObjectName(QStringLiteral("fullScreen"));
        setAttribute(Qt::WA_QuitOnClose, false);
        QPalette black;
        black.setColor(QPalette::Window, Qt::black);
        setPalette(black);
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
    }

protected:
    void closeEvent(QCloseEvent* event) override {
        QWidget::closeEvent(event);
        owner_.Leave();
    }

private:
    FullScreen& owner_;
};

}  // namespace

FullScreen::FullScreen(EnginePage& page) : page_(page) {
    connect(&page.Page(), &QWebEnginePage::fullScreenRequested, this,
            [this](const QWebEngineFullScreenRequest& request) { Answer(request); });
    // The area of the page may go before the engine, and takes its view along.
    connect(page.Bars(), &QObject::destroyed, this, [this] { delete window_.data(); });
}

FullScreen::~FullScreen() {
    PutBack();
}

void FullScreen::Answer(QWebEngineFullScreenRequest request) {
    if (!request.toggleOn()) {
        request.accept();
        PutBack();
        return;
    }
    if (is_barred_ || IsOn() || !page_.IsShown()) {
        request.reject();
        return;
    }
    request.accept();
    Enter(request.origin());
}

void FullScreen::Enter(const QUrl& origin) {
    QWebEngineView* const view = page_.View();
    const QScreen* const screen = view->screen();
    window_ = new ScreenWindow(*this);
    window_->setWindowTitle(qt::TitleOf(view->title()));
    window_->layout()->addWidget(view);
    window_->setGeometry(screen->geometry());
    window_->showFullScreen();
    window_->activateWindow();
    view->show();
    view->setFocus();
    ShowHint(origin);
    Watch(true);
}

void FullScreen::ShowHint(const QUrl& origin) {
    const QString host = CutInTheMiddle(VisibleText(origin.host()), kMostHost);
    auto* hint = new QLabel(host.isEmpty() ? tr("Press Esc to leave the full screen")
                                           : tr("%1 fills the screen. Press Esc to leave it.").arg(host),
                            window_);
    hint->setObjectName(QStringLiteral("hint"));
    hint->setTextFormat(Qt::PlainText);
    hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    hint->setStyleSheet(skin::Sheet(
        QStringLiteral("background: @panel; color: @text; border: 1px solid @line; border-radius: 7px;"
                       " padding: 10px 24px; font-size: 15px;")));
    hint->adjustSize();
    hint->move((window_->width() - hint->width()) / 2, kHintTop);
    hint->show();
    hint->raise();
    QTimer::singleShot(kHintMilliseconds, hint, [hint] { hint->deleteLater(); });
}

void FullScreen::Leave() {
    if (!IsOn()) return;
    is_barred_ = true;
    PutBack();
    page_.Page().triggerAction(QWebEnginePage::ExitFullScreen);
}

void FullScreen::PutBack() {
    if (!IsOn()) return;
    QWidget* const window = window_;
    window_.clear();
    if (page_.Bars() != nullptr && page_.View() != nullptr) {
        page_.Bars()->SetPage(page_.View());
        page_.View()->show();
        page_.View()->setFocus();
    }
    window->hide();
    window->deleteLater();
    Watch(is_barred_);
}

void FullScreen::Watch(bool on) {
    qApp->removeEventFilter(this);
    if (on) qApp->installEventFilter(this);
}

// The page has the keyboard and would see the key first; so it is looked for where every event passes.
bool FullScreen::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress && is_barred_ && !IsOn()) {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (widget != nullptr && page_.View() != nullptr && page_.View()->isAncestorOf(widget)) {
            is_barred_ = false;
            Watch(false);
        }
        return false;
    }
    const bool is_key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!is_key || !IsOn() || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    const bool is_ours = (widget != nullptr && (widget == window_ || window_->isAncestorOf(widget))) ||
                         watched == window_->windowHandle();
    if (is_ours) Leave();
    return is_ours;
}

}  // namespace webengine
