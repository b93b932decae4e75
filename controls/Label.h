// A line of text.
#pragma once

#include <string>
#include <string_view>

#include "controls/Control.h"

namespace controls {

enum class Alignment { Left, Centre, Right };

class Label : public Control {
public:
    explicit Label(std::string_view name, std::string_view caption = {})
        : Control(Kind::Label, name), caption_(caption) {}
    const std::string& Caption() const { return caption_; }
    /// Raises Change if the caption is another one.
    void SetCaption(std::string_view caption) {
        if (Assign(caption_, caption, Property::Caption)) Change.Raise();
    }
    Alignment Align() const { return alignment_; }
    void SetAlign(Alignment alignment) { Assign(alignment_, alignment, Property::Caption); }

    Event<> Change;

private:
    std::string caption_;
    Alignment alignment_ = Alignment::Left;
};

}  // namespace controls
