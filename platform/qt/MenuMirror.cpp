#include "platform/qt/MenuMirror.h"

#include <QCursor>

#include "platform/qt/Geometry.h"

namespace qt {
namespace {

using controls::Property;

/// A page's title may hold an ampersand; a design text means an access key by it.
QString CaptionOf(const controls::Menu& menu) {
    QString caption = ToQt(menu.Caption());
    if (menu.Index() >= 0) caption.replace(QLatin1Char('&'), QLatin1String("&&"));
    return caption;
}

}  // namespace

MenuMirror::MenuMirror(Stage& stage, controls::Menu& menu)
    : Mirror(stage, menu), menu_(menu), action_(std::make_unique<QAction>()) {
    connect(action_.get(), &QAction::triggered, this, [this] {
        // Qt turns a check mark by itself; the entry's own state is what counts.
        action_->setChecked(menu_.Checked());
        menu_.Click.Raise();
    });
    Apply(Property::Caption);
    Apply(Property::Checked);
    Apply(Property::Enabled);
    Apply(Property::Visible);
    Apply(Property::ToolTip);
    if (!menu.Entries().empty()) Entries();
}

QMenu* MenuMirror::Entries() {
    if (entries_ == nullptr) {
        entries_ = std::make_unique<QMenu>();
        entries_->setToolTipsVisible(true);
        action_->setMenu(entries_.get());
        Fill();
    }
    return entries_.get();
}

void MenuMirror::Fill() {
    const QList<QAction*> old = entries_->actions();
    for (QAction* action : old)
        entries_->removeAction(action);
    for (controls::Menu* entry : menu_.Entries()) {
        auto* mirror = static_cast<MenuMirror*>(stage_.MirrorIn(*entry, nullptr));
        entries_->addAction(mirror->Action());
    }
}

void MenuMirror::PopUp() {
    Entries()->popup(stage_.MenuPlace().value_or(QCursor::pos()));
}

void MenuMirror::Apply(Property property) {
    switch (property) {
        case Property::Caption:
            action_->setSeparator(menu_.IsSeparator());
            action_->setText(CaptionOf(menu_));
            break;
        case Property::Checked:
            action_->setCheckable(menu_.Checked());
            action_->setChecked(menu_.Checked());
            break;
        case Property::Enabled:
            action_->setEnabled(menu_.Enabled());
            break;
        case Property::Visible:
            action_->setVisible(menu_.Visible());
            break;
        case Property::ToolTip:
            action_->setToolTip(ToQt(menu_.ToolTipText()));
            action_->setWhatsThis(ToQt(menu_.ToolTipText()));
            break;
        case Property::Items:
            if (entries_ != nullptr) {
                Fill();
            } else {
                Entries();
            }
            break;
        default:
            break;
    }
}

}  // namespace qt
