// A panel that other controls are placed on. Its caption is drawn only when it has one.
#pragma once

#include <string>
#include <string_view>

#include "controls/Control.h"

namespace controls {

class Frame : public Container {
public:
    explicit Frame(std::string_view name, std::string_view caption = {})
        : Container(Kind::Frame, name), caption_(caption) {}
    const std::string& Caption() const { return caption_; }

private:
    std::string caption_;
};

}  // namespace controls
