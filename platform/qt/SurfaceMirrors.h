// Mirrors of containers other than windows: frame, picture box and the place of a page.
#pragma once

#include "controls/Frame.h"
#include "controls/PictureBox.h"
#include "controls/WebBrowser.h"
#include "platform/qt/WidgetMirror.h"

namespace qt {

/// Makes the mirrors of all controls in `container`, bottom first.
void MirrorChildren(Stage& stage, controls::Container& container, QWidget* inside);

class FrameMirror final : public WidgetMirror {
public:
    FrameMirror(Stage& stage, controls::Frame& frame, QWidget* container);

private:
    void Apply(controls::Property property) override;
};

class PictureBoxMirror final : public WidgetMirror {
public:
    PictureBoxMirror(Stage& stage, controls::PictureBox& box, QWidget* container);

private:
    void Apply(controls::Property property) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void PlaceChildren();
    controls::PictureBox& box_;
};

/// Holds the page's widget, which fills it, once there is one.
class BrowserMirror final : public WidgetMirror {
public:
    BrowserMirror(Stage& stage, controls::WebBrowser& browser, QWidget* container);
    ~BrowserMirror() override;

private:
    void WantPageWhenSeen();
    void Apply(controls::Property property) override;
    void Place() override;
    bool IsUrgent(controls::Property property) const override {
        return property == controls::Property::Value;
    }
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool TakeFromPage(const QObject* watched, QEvent& event);
    controls::WebBrowser& browser_;
};

}  // namespace qt
