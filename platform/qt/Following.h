// What shows through the hole of the main window, kept there while the window is dragged.
//
// Some window managers tell a window of its new place only when the drag has ended. So the display is asked
// where the window is, fifty times a second while it has a hole, and what lies below goes ahead of what the
// toolkit knows; when the toolkit learns of the move, only the rest of the way is left.
#pragma once

#include <QPoint>
#include <QTimer>
#include <functional>
#include <optional>

namespace qt {

class Following final {
public:
    struct Places {
        QPoint on_display;
        QPoint known;  // to the toolkit
    };

    /// `places` tells where the main window is, nothing when that cannot be told; `move` moves what is below
    /// it.
    Following(std::function<std::optional<Places>()> places, std::function<void(const QPoint& by)> move);

    /// Looks regularly from now on, or no more.
    void SetOn(bool on);
    void Look();
    /// The toolkit has learned that the main window moved.
    void OnMoved(const QPoint& by);

private:
    std::function<std::optional<Places>()> places_;
    std::function<void(const QPoint& by)> move_;
    QTimer clock_;
    std::optional<QPoint> rest_;  ///< where the window was when the toolkit knew last
    QPoint ahead_;                ///< how far what is below went since then
};

}  // namespace qt
