#include "platform/qt/Mirror.h"

#include <bit>

namespace qt {
namespace {

using controls::Property;

constexpr std::uint32_t Bit(Property property) {
    return std::uint32_t{1} << static_cast<unsigned>(property);
}

constexpr std::uint32_t kLate = Bit(Property::ZOrder) | Bit(Property::Focus) | Bit(Property::Popup);

}  // namespace

Mirror::Mirror(Stage& stage, controls::Control& control) : stage_(stage), control_(control) {
    control_.SetObserver(this);
}

Mirror::~Mirror() {
    control_.SetObserver(nullptr);
}

void Mirror::OnPropertyChanged(controls::Control& control, Property property) {
    if (&control != &control_) {
        if (property == Property::Parent) stage_.MirrorIn(control, Inside());
        return;
    }
    if (IsUrgent(property)) {
        Apply(property);
        return;
    }
    waiting_ |= Bit(property);
    if (is_queued_) return;
    is_queued_ = true;
    stage_.CatchUpLater(*this);
}

void Mirror::CatchUp() {
    // What changes from here on, even before the late ones had their turn, needs another turn.
    is_queued_ = false;
    std::uint32_t now = waiting_ & ~kLate;
    waiting_ &= kLate;
    while (now != 0) {
        const int lowest = std::countr_zero(now);
        now &= now - 1;
        Apply(static_cast<Property>(lowest));
    }
}

bool Mirror::Takes(Property late_property) {
    const bool waits = (waiting_ & Bit(late_property)) != 0;
    waiting_ &= ~Bit(late_property);
    return waits;
}

}  // namespace qt
