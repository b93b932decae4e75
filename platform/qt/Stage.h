// What the mirrors of controls need of the screen that shows them.
#pragma once

#include <QString>
#include <QWidget>
#include <cstdint>
#include <optional>
#include <string>

#include "controls/Form.h"
#include "controls/WebBrowser.h"

namespace qt {

class Loop;
class Mirror;
class Pictures;

class Stage {
public:
    virtual ~Stage() = default;

    /// The mirror has changes to show; its CatchUp is called before the next paint.
    virtual void CatchUpLater(Mirror& mirror) = 0;
    /// Counts such calls: the same number twice means that no control has changed in between.
    virtual std::uint64_t Changes() const = 0;
    /// Mirrors a control that was put into a container on the screen. No second mirror for one that has one.
    virtual Mirror* MirrorIn(controls::Control& control, QWidget* container) = 0;
    /// Null for a control that is not on the screen.
    virtual Mirror* MirrorOf(const controls::Control& control) const = 0;

    virtual Pictures& SkinPictures() = 0;
    virtual Loop& Events() = 0;
    /// A path as a drop brings it, in the form the controls speak.
    virtual std::string DriveForm(const std::string& native_path) const = 0;
    /// A path as a drop brings it is a folder's.
    virtual bool IsFolder(const std::string& native_path) const = 0;
    /// An engine for the control, at once where that is allowed already; its page is put into `place`.
    virtual void WantPage(controls::WebBrowser& browser, QWidget& place) = 0;

    /// A page, or what may cover one, came, went or moved.
    virtual void OnCoverMoved(const controls::Control& control) = 0;

    /// The window that others are centred over; null when it is not to be seen.
    virtual QWidget* MainWindow() const = 0;
    /// The main window comes to be seen: what stays in front of it lies over it from now on.
    virtual void OnMainWindowShown(QWidget& main_window) = 0;
    /// True for the main window while a window that stays in front of it is to be seen; that one has the
    /// keyboard.
    virtual bool IsBeneath(const controls::Form& form) const = 0;
    /// A picture window came to be seen or changed its state: one that shows through the hole of the main
    /// window lies right below it from now on.
    virtual void StackPictures() = 0;
    /// The main window was moved: what shows through its hole goes along at once.
    virtual void OnMainWindowMoved(const QPoint& by) = 0;
    /// The start-up id of the user's wish to see this program; once, by the window that comes to the front.
    virtual std::optional<std::string> TakeUsersWish() = 0;
    /// The window is asked for, or sent away; it has been on the screen before, or not.
    virtual void OnComesOrGoes(const controls::Form& form, bool was_shown) = 0;
    /// The window is being painted.
    virtual void OnPaint(const controls::Form& form) = 0;
    /// Where a menu goes that the next handler asks for; without a place, to the pointer.
    virtual void SetMenuPlace(std::optional<QPoint> place) = 0;
    virtual std::optional<QPoint> MenuPlace() const = 0;
    /// The user presses in a window. That activates a picture window, before the press is reported.
    virtual void OnPressed(controls::Control& window) = 0;
    /// The window manager has put the keyboard into the window.
    virtual void OnActivated(controls::Form& form) = 0;
};

}  // namespace qt
