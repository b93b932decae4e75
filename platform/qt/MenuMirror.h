// Mirror of one menu entry with all below it.
#pragma once

#include <QAction>
#include <QMenu>
#include <memory>

#include "controls/Menu.h"
#include "platform/qt/Mirror.h"

namespace qt {

class MenuMirror final : public Mirror {
public:
    MenuMirror(Stage& stage, controls::Menu& menu);

    /// The entry's item in the menu or bar above it.
    QAction* Action() const { return action_.get(); }
    /// Shows the entries at the pointer, or at the control that the keyboard was in.
    void PopUp();
    /// The entries below as a menu; made when first asked for.
    QMenu* Entries();

private:
    void Apply(controls::Property property) override;
    void Fill();

    controls::Menu& menu_;
    std::unique_ptr<QMenu> entries_;
    std::unique_ptr<QAction> action_;
};

}  // namespace qt
