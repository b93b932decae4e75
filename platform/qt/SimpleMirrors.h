// Mirrors of the small controls: line, progress bar, check box, button, and of the timer.
#pragma once

#include <QTimer>

#include "controls/CheckBox.h"
#include "controls/CommandButton.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/Line.h"
#include "controls/ProgressBar.h"
#include "controls/Timer.h"
#include "platform/qt/WidgetMirror.h"

namespace qt {

class LineMirror final : public WidgetMirror {
public:
    LineMirror(Stage& stage, controls::Line& line, QWidget* container);

private:
    void Place() override;
};

class ProgressMirror final : public WidgetMirror {
public:
    ProgressMirror(Stage& stage, controls::ProgressBar& bar, QWidget* container);

private:
    void Apply(controls::Property property) override;
    controls::ProgressBar& bar_;
};

class CheckMirror final : public WidgetMirror {
public:
    CheckMirror(Stage& stage, controls::CheckBox& check, QWidget* container);

private:
    void Apply(controls::Property property) override;
    bool IsPassive() const override { return false; }
    QString SpokenName() const override;
    controls::CheckBox& check_;
};

class ButtonMirror final : public WidgetMirror {
public:
    ButtonMirror(Stage& stage, controls::CommandButton& button, QWidget* container);

private:
    void Apply(controls::Property property) override;
    bool IsPassive() const override { return false; }
    QString SpokenName() const override;
    bool PressEnter() override;
    controls::CommandButton& button_;
};

class TimerMirror final : public Mirror {
public:
    TimerMirror(Stage& stage, controls::Timer& timer);

private:
    void Apply(controls::Property property) override;
    bool IsUrgent(controls::Property property) const override {
        return property == controls::Property::Timer;
    }
    controls::Timer& timer_;
    QTimer clock_;
};

}  // namespace qt
