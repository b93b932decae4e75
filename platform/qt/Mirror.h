// A mirror shows one control by one widget (a timer or menu: by what Qt has for it) and knows no rule of the
// program.
//
// Property changes are gathered as bits, so that a million rows added cost a million tests of a bit; Apply is
// called once for each property before the next paint. Mirrors live until the screen ends.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <cstdint>

#include "controls/Control.h"
#include "platform/qt/Stage.h"

namespace qt {

class Mirror : public QObject, protected controls::ControlObserver {
public:
    Mirror(Stage& stage, controls::Control& control);
    ~Mirror() override;

    controls::Control& Mirrored() const { return control_; }
    /// What shows the control; null for a timer or a menu.
    virtual QWidget* Widget() const { return nullptr; }
    /// The parent of the widgets of contained controls.
    virtual QWidget* Inside() const { return Widget(); }
    /// Applies what has changed, except what has to wait for all other controls: order, focus and pop-ups.
    void CatchUp();
    /// Those, by the screen, after every mirror has caught up. True once if the change is waiting.
    bool Takes(controls::Property late_property);
    void CatchUpNow(controls::Property property) { Apply(property); }

protected:
    void OnPropertyChanged(controls::Control& control, controls::Property property) override;
    /// Shows the property's present value.
    virtual void Apply(controls::Property property) = 0;
    /// True for a property that cannot wait; Apply is called inside the report then.
    virtual bool IsUrgent(controls::Property /*property*/) const { return false; }

    Stage& stage_;

private:
    controls::Control& control_;
    std::uint32_t waiting_ = 0;
    bool is_queued_ = false;
};

}  // namespace qt
