// A box to type a line of text into.
#pragma once

#include <string>
#include <string_view>

#include "controls/Control.h"

namespace controls {

class TextBox : public Control {
public:
    explicit TextBox(std::string_view name) : Control(Kind::TextBox, name) {}
    const std::string& Text() const { return text_; }
    /// Raises Change if the text is another one.
    void SetText(std::string_view text) {
        if (Assign(text_, text, Property::Text)) Change.Raise();
    }
    /// Typed characters show as dots.
    bool IsPassword() const { return password_; }
    void SetPassword(bool password) { password_ = password; }
    /// A muted text that the screen draws while the box is empty; never part of Text.
    const std::string& Hint() const { return hint_; }
    void SetHint(std::string_view hint) { Assign(hint_, hint, Property::Refresh); }

    Event<> Change;
    Event<> LostFocus;  ///< the keyboard went to something else in the window

private:
    std::string text_;
    std::string hint_;
    bool password_ = false;
};

}  // namespace controls
