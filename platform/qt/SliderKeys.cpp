#include "platform/qt/SliderKeys.h"

#include <QApplication>
#include <QPointer>
#include <algorithm>
#include <cmath>

#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "platform/qt/SliderPainting.h"
#include "platform/qt/Spoken.h"

namespace qt {
namespace {

constexpr int kPage = 4;
/// More steps than any slider has.
constexpr int kAllSteps = 1000;
/// Of a bar that is only pressed: a step is that part of it.
constexpr double kParts = 20;
/// A splitter goes by this, in twips of its own event; it follows the hand by a third.
constexpr double kSplitterStep = 720;
constexpr int kMostSteps = 200;

bool IsBar(const controls::Control& control) {
    const std::string& look = control.Look();
    return control.ControlKind() == controls::Kind::PictureBox &&
           (look == "progress" || look == "level" || look == "track");
}

bool IsSplitter(const controls::Control& control) {
    return control.Look() == "splitter";
}

/// Units from one end to the other, for the left edge of the marker.
double RangeOf(const controls::Control& marker) {
    const auto* bar = dynamic_cast<const controls::PictureBox*>(marker.Parent());
    return bar != nullptr ? bar->ScaleWidth() - marker.Width() : 0;
}

const controls::Control* MarkerOn(const controls::Control& bar) {
    return MarkerAmong(static_cast<const controls::Container&>(bar).Children());
}

int StepsOf(int key) {
    switch (key) {
        case Qt::Key_Right:
        case Qt::Key_Up:
            return 1;
        case Qt::Key_Left:
        case Qt::Key_Down:
            return -1;
        case Qt::Key_PageUp:
            return kPage;
        case Qt::Key_PageDown:
            return -kPage;
        case Qt::Key_Home:
            return -kAllSteps;
        case Qt::Key_End:
            return kAllSteps;
        default:
            return 0;
    }
}

/// Where the keyboard is now it is again when the events are done.
void KeepKeyboard() {
    const QPointer<QWidget> had = QApplication::focusWidget();
    if (had == nullptr) return;
    QMetaObject::invokeMethod(
        had.data(),
        [had] {
            if (had != nullptr && had->isVisible()) had->setFocus(Qt::OtherFocusReason);
        },
        Qt::QueuedConnection);
}

void Drag(controls::Control& control, double across, double down) {
    KeepKeyboard();
    control.MouseDown.Raise(controls::kLeftButton, 0, 1, 1);
    control.MouseMove.Raise(controls::kLeftButton, 0, across, down);
    control.MouseUp.Raise(controls::kLeftButton, 0, across, down);
}

void PressAt(controls::Control& bar, double place, double range) {
    bar.MouseDown.Raise(controls::kLeftButton, 0, std::clamp(place, 0.0, std::max(range, 0.0)), 0);
}

void StepBar(controls::Control& bar, int steps) {
    const controls::Control* marker = MarkerOn(bar);
    if (bar.MouseWheel.IsClaimed()) {
        bar.MouseWheel.Raise(steps);
    } else if (marker != nullptr) {
        const double range = RangeOf(*marker);
        PressAt(bar, marker->Left() + steps * range / kParts, range);
    }
}

// A drag of a marker is counted in ratios of the place where it was pressed, which is the first unit here.
void Step(controls::Control& slider, int steps) {
    if (IsBar(slider)) {
        StepBar(slider, steps);
    } else if (IsSplitter(slider)) {
        Drag(slider, 0, -steps * kSplitterStep);
    } else {
        Drag(slider, std::clamp(steps * 1.0, -slider.Left(), RangeOf(slider) - slider.Left()), 0);
    }
}

void StepTowards(controls::Control& slider, double percent) {
    double away = SliderPercent(slider) - percent;
    for (int i = 0; i < kMostSteps && std::abs(away) > 0.5; ++i) {
        Step(slider, (away < 0) != IsSplitter(slider) ? 1 : -1);
        const double now = SliderPercent(slider) - percent;
        if (std::abs(now) >= std::abs(away)) return;
        away = now;
    }
}

}  // namespace

bool IsSlider(const controls::Control& control) {
    return IsBar(control) || IsSplitter(control) || control.Look() == "fademarker";
}

double SliderPercent(const controls::Control& slider) {
    double part = 0;
    if (IsSplitter(slider)) {
        part = slider.Parent() != nullptr ? slider.Top() / slider.Parent()->Height() : 0;
    } else {
        const controls::Control* marker = IsBar(slider) ? MarkerOn(slider) : &slider;
        if (marker != nullptr) part = marker->Left() / RangeOf(*marker);
    }
    return std::isfinite(part) ? std::clamp(part, 0.0, 1.0) * 100 : 0;
}

void SetSliderPercent(controls::Control& slider, double percent) {
    const controls::Control* marker = IsBar(slider) ? MarkerOn(slider) : nullptr;
    if (marker != nullptr && slider.MouseDown.IsClaimed()) {
        PressAt(slider, RangeOf(*marker) * percent / 100, RangeOf(*marker));
    } else if (slider.Look() == "fademarker") {
        Drag(slider, RangeOf(slider) * percent / 100 - slider.Left(), 0);
    } else {
        StepTowards(slider, percent);
    }
}

bool TakeSliderKey(controls::Control& slider, int key) {
    const int steps = StepsOf(key);
    if (steps == 0) return false;
    Step(slider, steps);
    return true;
}

void MakeSlider(QWidget& widget, controls::Control& slider) {
    widget.setFocusPolicy(Qt::TabFocus);
    const auto role = IsSplitter(slider) ? QAccessible::Splitter : QAccessible::Slider;
    Speak(widget, {.role = [role] { return role; },
                   .percent = [&slider] { return SliderPercent(slider); },
                   .set_percent = [&slider](double percent) { SetSliderPercent(slider, percent); }});
}

}  // namespace qt
