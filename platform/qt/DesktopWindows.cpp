#include "platform/qt/DesktopWindows.h"

#include <QPainterPath>
#include <QWidget>
#include <algorithm>

#include "platform/qt/Geometry.h"

namespace qt {
namespace {

// The maker of a hole makes two regions for each and gives one back, so the oldest go.
constexpr std::size_t kKept = 64;

QRect Between(int left, int top, int right, int bottom) {
    return QRect(QPoint(std::min(left, right), std::min(top, bottom)),
                 QSize(std::abs(right - left), std::abs(bottom - top)));
}

}  // namespace

bool DesktopWindows::GetWindowRect(std::int64_t handle, ports::WindowRect& rect) const {
    const QWidget* widget = handle != 0 ? QWidget::find(static_cast<WId>(handle)) : nullptr;
    if (widget == nullptr) return false;
    const QRect place = widget->isWindow() ? widget->frameGeometry()
                                           : QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size());
    rect = {place.left(), place.top(), place.left() + place.width(), place.top() + place.height()};
    return true;
}

ports::RegionHandle WindowRegions::Keep(QRegion region) {
    while (regions_.size() >= kKept)
        regions_.erase(regions_.begin());
    regions_.emplace(++last_, std::move(region));
    return last_;
}

ports::RegionHandle WindowRegions::CreateRectRgn(int left, int top, int right, int bottom) {
    return Keep(QRegion(Between(left, top, right, bottom)));
}

ports::RegionHandle WindowRegions::CreateEllipticRgn(int left, int top, int right, int bottom) {
    return Keep(QRegion(Between(left, top, right, bottom), QRegion::Ellipse));
}

ports::RegionHandle WindowRegions::CreateRoundRectRgn(int left, int top, int right, int bottom,
                                                      int corner_width, int corner_height) {
    const QRect box = Between(left, top, right, bottom);
    if (box.isEmpty()) return Keep(QRegion());
    QPainterPath path;
    path.addRoundedRect(box, std::min(corner_width, box.width()) / 2.0,
                        std::min(corner_height, box.height()) / 2.0);
    return Keep(QRegion(path.toFillPolygon().toPolygon()));
}

bool WindowRegions::CombineRgn(ports::RegionHandle result, ports::RegionHandle first,
                               ports::RegionHandle second, ports::RegionCombine mode) {
    const auto to = regions_.find(result);
    const auto left = regions_.find(first);
    const auto right = regions_.find(second);
    const bool copies = mode == ports::RegionCombine::Copy;
    if (to == regions_.end() || left == regions_.end() || (right == regions_.end() && !copies)) return false;
    switch (mode) {
        case ports::RegionCombine::And:
            to->second = left->second & right->second;
            break;
        case ports::RegionCombine::Or:
            to->second = left->second | right->second;
            break;
        case ports::RegionCombine::Xor:
            to->second = left->second ^ right->second;
            break;
        case ports::RegionCombine::Difference:
            to->second = left->second - right->second;
            break;
        case ports::RegionCombine::Copy:
            to->second = left->second;
            break;
    }
    return true;
}

bool WindowRegions::SetWindowRgn(ports::RegionHandle region, bool /*redraw*/) {
    const auto found = regions_.find(region);
    if (found == regions_.end() || screen_.WindowOf(form_) == nullptr) return false;
    // The outer corner is the frame's; the mask begins at the menu bar.
    const QRect client = ClientRect(form_);
    const QPoint outer(ToPixels(form_.Left()), ToPixels(form_.Top()));
    const QRegion inside =
        found->second.translated(outer - client.topLeft()) & QRect(QPoint(0, 0), client.size());
    regions_.erase(found);
    // A whole window has no mask, so that it stays whole when it grows.
    const bool is_whole = inside == QRegion(QRect(QPoint(0, 0), client.size()));
    screen_.ShapeMainWindow(is_whole ? QRegion() : inside);
    return true;
}

}  // namespace qt
