#include "platform/qt/Geometry.h"

#include <algorithm>
#include <cmath>

#include "controls/PictureBox.h"

namespace qt {
namespace {

using controls::kTwipsPerPixel;

double UnitsPerPixel(const controls::Control& container) {
    if (container.ControlKind() != controls::Kind::PictureBox) return kTwipsPerPixel;
    const auto& box = static_cast<const controls::PictureBox&>(container);
    const int width = PixelRect(box).width();
    if (!box.HasOwnScale() || width <= 0) return kTwipsPerPixel;
    return box.ScaleWidth() / width;
}

int Rounded(double pixels) {
    constexpr double kFar = 16'000'000;
    return std::isfinite(pixels) ? static_cast<int>(std::floor(std::clamp(pixels, -kFar, kFar) + 0.5)) : 0;
}

// A marker on a scale may be a line; for eye and hand it is as wide as this, around its place and inside its
// bar.
constexpr int kGrip = 8;

bool IsMarker(const controls::Control& control) {
    return control.Look() == "marker" || control.Look() == "fademarker";
}

QRect GripAround(const QRect& line, const controls::Control& bar) {
    const int right_most = std::max(0, PixelRect(bar).width() - kGrip);
    return {std::clamp(line.center().x() - kGrip / 2, 0, right_most), line.y(), kGrip, line.height()};
}

struct FramePixels {
    int side = 0;
    int top = 0;
    int bottom = 0;
};

FramePixels FrameOf(const controls::Form& form) {
    if (form.Border() == controls::BorderStyle::None) return {};
    const int border = ToPixels(controls::kFrameBorder);
    return {border, ToPixels(controls::kFrameTitle), border};
}

}  // namespace

int ToPixels(double twips) {
    return Rounded(twips / kTwipsPerPixel);
}

QRect PixelRect(const controls::Control& control) {
    const double across = control.Parent() != nullptr ? UnitsPerPixel(*control.Parent()) : kTwipsPerPixel;
    const int left = Rounded(control.Left() / across);
    const int right = Rounded(control.Right() / across);
    const int top = ToPixels(control.Top());
    const int bottom = ToPixels(control.Bottom());
    const QRect rect(left, top, right - left, bottom - top);
    if (rect.width() >= kGrip || !IsMarker(control) || control.Parent() == nullptr) return rect;
    return GripAround(rect, *control.Parent());
}

QPointF InScaleOf(const controls::Control& control, const QPointF& pixels) {
    return {pixels.x() * UnitsPerPixel(control), pixels.y() * kTwipsPerPixel};
}

QRect ClientRect(const controls::Form& form) {
    const FramePixels frame = FrameOf(form);
    const int left = ToPixels(form.Left());
    const int top = ToPixels(form.Top());
    return {left + frame.side, top + frame.top, std::max(1, ToPixels(form.Right()) - left - 2 * frame.side),
            std::max(1, ToPixels(form.Bottom()) - top - frame.top - frame.bottom)};
}

bool TakeClientRect(controls::Form& form, const QRect& client) {
    if (ClientRect(form) == client) return false;
    const FramePixels frame = FrameOf(form);
    form.Move((client.x() - frame.side) * kTwipsPerPixel, (client.y() - frame.top) * kTwipsPerPixel,
              (client.width() + 2 * frame.side) * kTwipsPerPixel,
              (client.height() + frame.top + frame.bottom) * kTwipsPerPixel);
    return true;
}

}  // namespace qt
