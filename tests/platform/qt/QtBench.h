// What the tests of widgets share: the one application object, and a desk with one open window.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "controls/Form.h"
#include "platform/qt/Loop.h"
#include "platform/qt/Screen.h"

namespace qt_tests {

/// The loop that the application object of this program runs on.
qt::Loop& TheLoop();

/// Runs events until `done` says so; false when it has not within five seconds.
bool WaitFor(const std::function<bool()>& done);

/// A window of 400 by 300 pixels with the controls in it, open on the screen. The controls must outlive the
/// desk.
class Desk {
public:
    template <class... Controls>
    explicit Desk(Controls&... controls) : Desk(qt::ScreenOptions{}, controls...) {}
    template <class... Controls>
    explicit Desk(qt::ScreenOptions options, Controls&... controls) : screen(TheLoop(), std::move(options)) {
        form.SetContentSize(400 * controls::kTwipsPerPixel, 300 * controls::kTwipsPerPixel);
        (form.Add(controls), ...);
        Open();
    }

    /// The widget that shows the control.
    template <class Widget>
    Widget* Find(const controls::Control& control) const {
        return dynamic_cast<Widget*>(screen.WidgetOf(control));
    }
    QWidget* Find(const controls::Control& control) const { return screen.WidgetOf(control); }

    controls::Form form{"frmTest", "Test"};
    qt::Screen screen;

private:
    void Open();
};

/// Puts a control at a place in pixels.
void PlaceAt(controls::Control& control, int left, int top, int width, int height);

}  // namespace qt_tests
