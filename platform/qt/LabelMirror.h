// The mirror of a label: text and drawn looks by its own paint.
#pragma once

#include "controls/Label.h"
#include "platform/qt/WidgetMirror.h"

namespace qt {

class LabelMirror final : public WidgetMirror {
public:
    LabelMirror(Stage& stage, controls::Label& label, QWidget* container);

private:
    void Apply(controls::Property property) override;
    QString SpokenName() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool PressEnter() override;
    controls::Label& label_;
};

}  // namespace qt
