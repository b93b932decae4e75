#include "platform/webengine/SiteNotices.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>

#include "platform/webengine/ShownText.h"

namespace webengine {

namespace {

constexpr int kMostOfATitle = 80;
constexpr int kMostOfTheWords = 240;
constexpr int kMostOfASite = 60;

std::string Short(const QString& text, int most) {
    return CutInTheMiddle(VisibleText(text), most).toStdString();
}

/// Who says it comes first: a page could call itself anything in the title.
ports::Notice NoticeOf(const QWebEngineNotification& notification) {
    const std::string site = Short(notification.origin().host(), kMostOfASite);
    return {.title = site + ": " + Short(notification.title(), kMostOfATitle),
            .words = Short(notification.message(), kMostOfTheWords),
            .clicked = {},
            .closed = {}};
}

void BringProgramToFront() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (!widget->isVisible() || widget->windowType() != Qt::Window) continue;
        widget->raise();
        widget->activateWindow();
        return;
    }
}

}  // namespace

bool SiteNotices::MayShow(const QWebEngineNotification& notification) {
    return board_ != nullptr && choices_.General().notifications &&
           choices_.VerdictOn(OriginOf(notification.origin()), Ability::Notifications) == Verdict::Allow &&
           shown_.size() < kMostNotices && in_a_row_.Take();
}

void SiteNotices::Present(std::unique_ptr<QWebEngineNotification> notification) {
    CloseReplaced(*notification);
    if (!MayShow(*notification)) {
        notification->close();
        return;
    }
    const QWebEngineNotification* const shown = notification.get();
    ports::Notice notice = NoticeOf(*notification);
    notice.clicked = [shown] {
        BringProgramToFront();
        shown->click();
    };
    notice.closed = [this, shown] { Forget(shown); };
    const int ticket = board_->Show(std::move(notice));
    if (ticket == 0) {
        notification->close();
        return;
    }
    // The page takes its own notification back.
    QObject::connect(
        shown, &QWebEngineNotification::closed, shown, [this, shown] { Forget(shown); },
        Qt::QueuedConnection);
    shown->show();
    shown_.push_back({std::move(notification), ticket});
}

// Without a tag the engine calls all notifications of a site the same.
void SiteNotices::CloseReplaced(const QWebEngineNotification& notification) {
    if (notification.tag().isEmpty()) return;
    const auto old = std::find_if(shown_.begin(), shown_.end(), [&notification](const Shown& shown) {
        return shown.notification->matches(&notification);
    });
    if (old != shown_.end()) Forget(old->notification.get());
}

void SiteNotices::Forget(const QWebEngineNotification* notification) {
    const auto found = std::find_if(shown_.begin(), shown_.end(), [notification](const Shown& shown) {
        return shown.notification.get() == notification;
    });
    if (found == shown_.end()) return;
    const Shown gone = std::move(*found);
    shown_.erase(found);
    board_->Close(gone.ticket);
    gone.notification->close();
}

void SiteNotices::CloseAll() {
    while (!shown_.empty())
        Forget(shown_.front().notification.get());
}

}  // namespace webengine
