#include "platform/qt/TabOrder.h"

#include <algorithm>

#include "platform/qt/Covering.h"
#include "platform/qt/Geometry.h"
#include "platform/qt/Mirror.h"
#include "platform/qt/Skin.h"

namespace qt {
namespace {

bool ComesBefore(const controls::Control* left, const controls::Control* right) {
    const QRect first = PixelRect(*left);
    const QRect second = PixelRect(*right);
    const int first_row = first.top() / skin::kRowHeight;
    const int second_row = second.top() / skin::kRowHeight;
    return first_row != second_row ? first_row < second_row : first.left() < second.left();
}

void Collect(const Stage& stage, const controls::Container& container, std::vector<QWidget*>& order) {
    std::vector<controls::Control*> children = container.Children();
    std::stable_sort(children.begin(), children.end(), ComesBefore);
    for (const controls::Control* child : children) {
        const Mirror* mirror = stage.MirrorOf(*child);
        if (mirror == nullptr || mirror->Widget() == nullptr) continue;
        if ((mirror->Widget()->focusPolicy() & Qt::TabFocus) != 0) order.push_back(mirror->Widget());
        if (const auto* inner = dynamic_cast<const controls::Container*>(child))
            Collect(stage, *inner, order);
    }
}

}  // namespace

std::vector<QWidget*> PutInTabOrder(const Stage& stage, const controls::Container& window) {
    std::vector<QWidget*> order;
    Collect(stage, window, order);
    for (std::size_t i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
    return order;
}

CoveredStops::CoveredStops(const Stage& stage, const controls::Container& window) {
    Look(stage, window);
}

CoveredStops::~CoveredStops() {
    for (const auto& [widget, policy] : passed_) {
        if (widget) widget->setFocusPolicy(policy);
    }
}

void CoveredStops::Look(const Stage& stage, const controls::Container& container) {
    TellCovered(container, [&](const controls::Control& control, bool covered) {
        if (covered) return PassOver(stage, control);
        if (const auto* inner = dynamic_cast<const controls::Container*>(&control)) Look(stage, *inner);
    });
}

void CoveredStops::PassOver(const Stage& stage, const controls::Control& control) {
    const Mirror* mirror = stage.MirrorOf(control);
    QWidget* widget = mirror != nullptr ? mirror->Widget() : nullptr;
    if (widget != nullptr && (widget->focusPolicy() & Qt::TabFocus) != 0) {
        passed_.emplace_back(widget, widget->focusPolicy());
        widget->setFocusPolicy(Qt::ClickFocus);
    }
    if (const auto* inner = dynamic_cast<const controls::Container*>(&control)) {
        for (const controls::Control* child : inner->Children())
            PassOver(stage, *child);
    }
}

}  // namespace qt
