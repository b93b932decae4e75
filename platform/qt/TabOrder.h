// The way of the Tab key through a window: from the top to the bottom, in a row from left to right, and
// through one panel before the next.
#pragma once

#include <QPointer>
#include <QWidget>
#include <utility>
#include <vector>

#include "controls/Control.h"
#include "platform/qt/Stage.h"

namespace qt {

/// Puts the window's widgets in that order and returns those that take the keyboard.
std::vector<QWidget*> PutInTabOrder(const Stage& stage, const controls::Container& window);

/// For its lifetime the Tab key does not stop at what lies under a page or a panel.
class CoveredStops final {
public:
    CoveredStops(const Stage& stage, const controls::Container& window);
    ~CoveredStops();
    CoveredStops(const CoveredStops&) = delete;
    CoveredStops& operator=(const CoveredStops&) = delete;

private:
    void PassOver(const Stage& stage, const controls::Control& control);
    void Look(const Stage& stage, const controls::Container& container);

    /// A handler may take a widget away while the keyboard moves.
    std::vector<std::pair<QPointer<QWidget>, Qt::FocusPolicy>> passed_;
};

}  // namespace qt
