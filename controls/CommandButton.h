// A push button.
#pragma once

#include <string>
#include <string_view>

#include "controls/Control.h"

namespace controls {

class CommandButton : public Control {
public:
    explicit CommandButton(std::string_view name, std::string_view caption = {})
        : Control(Kind::CommandButton, name), caption_(caption) {}
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption) { Assign(caption_, caption, Property::Caption); }
    /// Enter anywhere in its window presses it.
    bool IsDefault() const { return default_; }
    void SetDefault(bool is_default) { default_ = is_default; }
    /// Escape anywhere in its window presses it.
    bool IsCancel() const { return cancel_; }
    void SetCancel(bool is_cancel) { cancel_ = is_cancel; }

private:
    std::string caption_;
    bool default_ = false;
    bool cancel_ = false;
};

}  // namespace controls
