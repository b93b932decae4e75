// The page in front, over all of its window while that fills the screen.
//
// It lies over menus, tabs and rows for as long as it has the keyboard, which it is given when the window
// begins to fill the screen. What else of the window has the keyboard (the address row, a menu, the tab that
// was changed to) has to be seen: everything is in its place then, until the page has the keyboard again.
// A window with a hole for a video keeps everything in its place, too.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "controls/Form.h"
#include "controls/WebBrowser.h"
#include "platform/qt/Stage.h"

namespace qt {

class FullPage final : public QObject {
public:
    explicit FullPage(Stage& stage);

    /// Brings the page of the window to where it belongs. To be called at the end of each handler.
    void Settle(controls::Form& form);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    controls::WebBrowser* Wanted(controls::Form& form, const QWidget& window);
    void Fill(QWidget& window, controls::WebBrowser& page);
    void PutBack();
    QWidget* PlaceOf(const controls::Control& control) const;

    Stage& stage_;
    controls::Form* form_ = nullptr;
    controls::WebBrowser* page_ = nullptr;  // that lies over the window
    QPointer<QWidget> window_;              // that it lies over
    QPointer<QWidget> home_;                // that its place is in otherwise
    bool was_full_ = false;
    bool moving_ = false;
};

}  // namespace qt
