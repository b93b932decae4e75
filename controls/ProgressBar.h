// A bar that is filled from 0 to 100 percent.
#pragma once

#include <string_view>

#include "controls/Control.h"

namespace controls {

class ProgressBar : public Control {
public:
    explicit ProgressBar(std::string_view name) : Control(Kind::ProgressBar, name) {}
    int Min() const { return 0; }
    int Max() const { return 100; }
    int Value() const { return value_; }
    /// Refuses a value outside 0 to 100: changes nothing and returns false.
    bool SetValue(int value) {
        if (value < Min() || value > Max()) return false;
        Assign(value_, value, Property::Value);
        return true;
    }

private:
    int value_ = 0;
};

}  // namespace controls
