// The mirror of an image: a picture, or a slider's bar or marker; one that does something is a button to a
// screen reader and to the keyboard.
#pragma once

#include "controls/Image.h"
#include "platform/qt/Spoken.h"
#include "platform/qt/WidgetMirror.h"

namespace qt {

class ImageMirror final : public WidgetMirror {
public:
    ImageMirror(Stage& stage, controls::Image& image, QWidget* container);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool PressEnter() override;
    void Light();
    SpokenPart SpokenButton();
    SpokenPart SpokenTwin();
    bool GoToNeighbour(int key);
    controls::Image& image_;
};

}  // namespace qt
