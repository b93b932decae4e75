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

    /// A small drawn sign before the text; the user can press it. The screen knows "lock", "open lock" and
    /// "broken lock"; empty for none. It belongs to one text and shows only while that is in the box.
    std::string Sign() const { return text_ == sign_text_ ? sign_ : std::string(); }
    void SetSign(std::string_view sign, std::string_view text) {
        const std::string shown = Sign();
        sign_text_ = text;
        sign_ = sign;
        if (Sign() != shown) Report(Property::Picture);
    }

    Event<> SignClick;
    Event<> Change;
    Event<> LostFocus;  ///< the keyboard went to something else in the window

private:
    std::string text_;
    std::string hint_;
    std::string sign_;
    std::string sign_text_;
    bool password_ = false;
};

}  // namespace controls
