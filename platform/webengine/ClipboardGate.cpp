#include "platform/webengine/ClipboardGate.h"

#include <QChildEvent>
#include <QEvent>

namespace webengine {

namespace {

/// As long as the engine itself counts a click as the user's.
constexpr int kOpenMilliseconds = 5000;

}  // namespace

ClipboardGate::ClipboardGate(QWidget& view, QWebEngineSettings& settings)
    : QObject(&view), settings_(settings) {
    close_.setSingleShot(true);
    close_.setInterval(kOpenMilliseconds);
    connect(&close_, &QTimer::timeout, this,
            [this] { settings_.setAttribute(QWebEngineSettings::JavascriptCanAccessClipboard, false); });
    view.installEventFilter(this);
    for (QObject* part : view.children())
        Watch(*part);
}

// The engine's own widget gets the events; it comes later, and another one with another process.
void ClipboardGate::Watch(QObject& part) {
    if (part.isWidgetType()) part.installEventFilter(this);
}

bool ClipboardGate::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ChildAdded && watched == parent()) {
        Watch(*static_cast<QChildEvent*>(event)->child());
    } else if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress) {
        Open();
    }
    return false;
}

void ClipboardGate::Open() {
    if (!close_.isActive()) settings_.setAttribute(QWebEngineSettings::JavascriptCanAccessClipboard, true);
    close_.start();
}

}  // namespace webengine
