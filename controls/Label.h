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

    /// A small picture before the caption, as the bytes of a picture file; empty for none.
    const std::string& Icon() const { return icon_; }
    void SetIcon(std::string_view icon) { Assign(icon_, icon, Property::Picture); }
    /// A line below the caption, filled up to that many percent; -1 for none.
    int Progress() const { return progress_; }
    void SetProgress(int percent) { Assign(progress_, percent, Property::Value); }

    Event<> Change;

private:
    std::string caption_;
    std::string icon_;
    int progress_ = -1;
    Alignment alignment_ = Alignment::Left;
};

}  // namespace controls
