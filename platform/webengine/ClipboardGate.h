// A page may write to the clipboard for a moment after a press or a key of the user in it, and at no other
// time.
//
// Otherwise any page could put its own words in the place of what the user copied elsewhere. Reading is
// another matter (Ability::Clipboard).
#pragma once

#include <QObject>
#include <QTimer>
#include <QWebEngineSettings>
#include <QWidget>

namespace webengine {

class ClipboardGate final : public QObject {
public:
    /// Lives as long as the view.
    ClipboardGate(QWidget& view, QWebEngineSettings& settings);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Watch(QObject& part);
    void Open();

    QWebEngineSettings& settings_;
    QTimer close_;
};

}  // namespace webengine
