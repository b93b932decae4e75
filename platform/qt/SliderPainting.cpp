#include "platform/qt/SliderPainting.h"

#include "platform/qt/Geometry.h"
#include "platform/qt/Skin.h"

namespace qt {
namespace {

double FilledPixels(const controls::Control& bar) {
    if (const auto* container = dynamic_cast<const controls::Container*>(&bar)) {
        if (const auto* marker = MarkerAmong(container->Children()))
            return QRectF(PixelRect(*marker)).center().x();
    }
    if (bar.Parent() == nullptr) return 0;
    const auto* marker = MarkerAmong(bar.Parent()->Children());
    return marker != nullptr ? QRectF(PixelRect(*marker)).center().x() - PixelRect(bar).x() : 0;
}

}  // namespace

const controls::Control* MarkerAmong(const std::vector<controls::Control*>& controls) {
    for (const controls::Control* control : controls) {
        if (control->Look() == "marker" && control->Visible()) return control;
    }
    return nullptr;
}

bool DrawBar(QPainter& painter, const QRect& rect, const controls::Control& bar) {
    if (bar.Look() == "progress") {
        skin::Groove(painter, rect, FilledPixels(bar), skin::Colours().accent_deep, skin::Colours().accent);
    } else if (bar.Look() == "level") {
        skin::Groove(painter, rect, FilledPixels(bar), skin::Colours().teal_deep, skin::Colours().teal);
    } else if (bar.Look() == "track") {
        skin::Groove(painter, rect, 0, skin::Colours().well, skin::Colours().well);
    } else {
        return false;
    }
    return true;
}

bool DrawMarker(QPainter& painter, const QRect& rect, std::string_view look) {
    if (look == "marker") {
        skin::Knob(painter, rect);
    } else if (look == "fademarker") {
        skin::RoundBox(painter, rect, QColor(skin::Colours().teal), skin::Colours().teal, 1.5);
    } else {
        return false;
    }
    return true;
}

}  // namespace qt
