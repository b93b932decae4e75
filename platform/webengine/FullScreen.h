// A page that fills the screen: a video, usually.
//
// The page's view moves into a window of its own and back. The user always gets out: Escape ends it before
// the page sees the key, a few words say so at the beginning, and after Escape the page may not fill the
// screen again until the user has clicked in it. The engine itself lets a page begin it only after a click.
#pragma once

#include <QLabel>
#include <QObject>
#include <QPointer>
#include <QWebEngineFullScreenRequest>
#include <QWidget>

#include "platform/webengine/EnginePage.h"

namespace webengine {

class FullScreen final : public QObject {
public:
    explicit FullScreen(EnginePage& page);
    ~FullScreen() override;

    bool IsOn() const { return window_ != nullptr; }
    /// As Escape does.
    void Leave();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Answer(QWebEngineFullScreenRequest request);
    void Enter(const QUrl& origin);
    void ShowHint(const QUrl& origin);
    void PutBack();
    void Watch(bool on);

    EnginePage& page_;
    QPointer<QWidget> window_;
    /// The user left it, and has not clicked in the page since.
    bool is_barred_ = false;
};

}  // namespace webengine
