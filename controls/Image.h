// A picture; it takes no keyboard and has no window of its own.
#pragma once

#include <string>
#include <string_view>

#include "controls/Control.h"

namespace controls {

class Image : public Control {
public:
    explicit Image(std::string_view name, std::string_view picture = {})
        : Control(Kind::Image, name), picture_(picture) {}
    /// A file below the program's folder ("\images\pale.bmp"), or the bare name of a picture of the skin
    /// ("play").
    const std::string& Picture() const { return picture_; }
    void SetPicture(std::string_view picture) { Assign(picture_, picture, Property::Picture); }

private:
    std::string picture_;
};

}  // namespace controls
