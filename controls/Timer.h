// Raises Tick every Interval milliseconds while enabled. Setting Enabled to True, or another Interval, starts
// the interval again; an Interval of 0 never ticks.
#pragma once

#include <string_view>

#include "controls/Control.h"

namespace controls {

class Timer : public Control {
public:
    Timer(std::string_view name, int interval_ms, bool enabled = false)
        : Control(Kind::Timer, name), interval_(interval_ms) {
        AssignEnabled(enabled);
    }
    void SetEnabled(bool enabled) override {
        if (!enabled && !Enabled()) return;
        AssignEnabled(enabled);
        Report(Property::Timer);
    }
    int Interval() const { return interval_; }
    void SetInterval(int interval_ms) { Assign(interval_, interval_ms, Property::Timer); }

    Event<> Tick;

private:
    int interval_;
};

}  // namespace controls
