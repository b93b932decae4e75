// Remembers what a control told the screen.
#pragma once

#include <vector>

#include "controls/Control.h"

namespace controls {

class RecordingObserver final : public ControlObserver {
public:
    void OnPropertyChanged(Control& control, Property property) override {
        Told.push_back(property);
        Controls.push_back(&control);
    }

    std::vector<Property> Told;
    std::vector<Control*> Controls;
};

}  // namespace controls
