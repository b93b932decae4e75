// What is shown on and around the page besides the page: how far it has come, where a link leads, its icon,
// how safe it is, why it could not be loaded.
#pragma once

#include <QIcon>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QWebEngineView>
#include <functional>

#include "platform/webengine/FindBar.h"
#include "platform/webengine/NoticePage.h"
#include "platform/webengine/Pace.h"
#include "platform/webengine/PageBars.h"
#include "platform/webengine/PageSecurity.h"
#include "platform/webengine/PageZoom.h"
#include "ports/BrowserControl.h"

namespace webengine {

struct ChromeParts {
    QWebEngineView& view;
    PageBars& bars;
    SiteChoices& choices;
    /// The signs are others now. Told at most ten times a second, whatever the page does.
    std::function<void()> signs_changed;
    /// Goes to an address again.
    std::function<void(const QUrl&)> load;
};

class PageChrome final : public QObject {
public:
    explicit PageChrome(ChromeParts parts);

    FindBar& Find() { return find_; }
    PageZoom& Zoom() { return zoom_; }
    PageSecurity& Security() { return security_; }
    ports::PageSigns Signs(const QUrl& location) const;

    /// The page was sent somewhere.
    void OnBegin();
    /// A document is there.
    void OnDocument();
    /// A navigation failed. `has_document`: the page stays what it was.
    void OnFailed(const QUrl& address, int code, bool has_document);
    /// Escape: closes what is open here. False when nothing was.
    bool Escape();

private:
    void Connect();
    void ShowProgress(int percent);
    void ShowLink(const QString& address);
    void TakeIcon();
    void SignsChanged();
    void ForgetFailure();
    void ShowFailureBar(const QUrl& address, const QString& words, bool can_try_again);
    void ShowFailureNotice(const QUrl& address, const QString& words);

    ChromeParts parts_;
    FindBar find_;
    PageZoom zoom_;
    PageSecurity security_;
    ports::PageSigns signs_;
    QTimer tell_signs_;
    QIcon icon_;
    Pace icons_{[this] { TakeIcon(); }};
    QPointer<Notice> notice_;
};

}  // namespace webengine
