// What sites tell the user through the desktop: few at once, short, and without markup.
//
// The engine hands over only what a site was allowed; the user can switch all of it off.
#pragma once

#include <QWebEngineNotification>
#include <list>
#include <memory>

#include "platform/webengine/Quota.h"
#include "platform/webengine/SiteChoices.h"
#include "ports/NoticeBoard.h"

namespace webengine {

/// On the screen at once, of all sites; more are dropped.
inline constexpr std::size_t kMostNotices = 4;
/// One after another, until half a minute was quiet.
inline constexpr int kMostNoticesInARow = 12;

class SiteNotices final {
public:
    /// Without a board nothing is shown.
    SiteNotices(const SiteChoices& choices, ports::NoticeBoard* board) : choices_(choices), board_(board) {}
    ~SiteNotices() { CloseAll(); }
    SiteNotices(const SiteNotices&) = delete;
    SiteNotices& operator=(const SiteNotices&) = delete;

    void Present(std::unique_ptr<QWebEngineNotification> notification);
    /// Of all sites.
    void CloseAll();

private:
    struct Shown {
        std::unique_ptr<QWebEngineNotification> notification;
        int ticket = 0;
    };

    bool MayShow(const QWebEngineNotification& notification);
    void CloseReplaced(const QWebEngineNotification& notification);
    void Forget(const QWebEngineNotification* notification);

    const SiteChoices& choices_;
    ports::NoticeBoard* board_;
    Quota in_a_row_{kMostNoticesInARow};
    std::list<Shown> shown_;
};

}  // namespace webengine
