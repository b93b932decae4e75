// What the user does in a page with mouse and keyboard. A page cannot make such events.
#pragma once

#include <QObject>
#include <QWidget>
#include <functional>

class QColorDialog;

namespace webengine {

class UserInput final : public QObject {
public:
    /// Watches the view and the widgets that the engine puts into it.
    explicit UserInput(QWidget& view);

    /// A button or a key but Escape was pressed, or something was dropped.
    std::function<void()> pressed;
    /// A key that writes, or a drop: the page may hold something of the user's now.
    std::function<void()> wrote;
    /// The engine is about to show its colour chooser, which it asks nobody about.
    std::function<void(QColorDialog&)> chooser_coming;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void WatchChild(QObject* child);
};

}  // namespace webengine
