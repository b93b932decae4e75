#include "platform/qt/DesktopWindows.h"

#include <QPainterPath>
#include <QWidget>
#include <algorithm>

#include "platform/qt/Geometry.h"

namespace qt {
namespace {

QRect BoxOf(const ports::WindowRect& rect) {
    return QRect(QPoint(std::min(rect.left, rect.right), std::min(rect.top, rect.bottom)),
                 QSize(std::abs(rect.right - rect.left), std::abs(rect.bottom - rect.top)));
}

QRegion RegionOf(const ports::Hole& hole) {
    const QRect box = BoxOf(hole.box);
    if (box.isEmpty() || hole.corner_width == 0 || hole.corner_height == 0) return {box};
    QPainterPath path;
    path.addRoundedRect(box, std::min(std::abs(hole.corner_width), box.width()) / 2.0,
                        std::min(std::abs(hole.corner_height), box.height()) / 2.0);
    return {path.toFillPolygon().toPolygon()};
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

void MainWindowShape::SetHole(const std::optional<ports::Hole>& hole) {
    // A whole window has no mask, so that it stays whole when it grows.
    QRegion mask;
    if (hole) {
        // The outer corner is the frame's; the mask begins at the menu bar.
        const QRect client = ClientRect(form_);
        const QPoint outer(ToPixels(form_.Left()), ToPixels(form_.Top()));
        const QRegion whole(QRect(QPoint(0, 0), client.size()));
        mask = whole - RegionOf(*hole).translated(outer - client.topLeft());
        if (mask == whole) mask = QRegion();
    }
    screen_.ShapeMainWindow(mask);
}

}  // namespace qt
