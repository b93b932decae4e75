// The small controls: label, text box, check box, button, image, line, progress bar, timer.
//
// A changed caption, text or check box raises its change event; an equal one does not.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "controls/Control.h"

namespace controls {

/// A colour as 0xRRGGBB.
using Colour = std::uint32_t;

enum class Alignment { Left, Centre, Right };

class Label : public Control {
public:
    explicit Label(std::string_view name, std::string_view caption = {})
        : Control(Kind::Label, name), caption_(caption) {}
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    Alignment Align() const { return alignment_; }
    void SetAlign(Alignment alignment);

    Event<> Change;

private:
    std::string caption_;
    Alignment alignment_ = Alignment::Left;
};

class TextBox : public Control {
public:
    explicit TextBox(std::string_view name) : Control(Kind::TextBox, name) {}
    const std::string& Text() const { return text_; }
    void SetText(std::string_view text);
    /// Typed characters show as dots.
    bool IsPassword() const { return password_; }
    void SetPassword(bool password) { password_ = password; }
    /// A muted text that the screen draws while the box is empty; never part of Text.
    const std::string& Hint() const { return hint_; }
    void SetHint(std::string_view hint);

    Event<> Change;

private:
    std::string text_;
    std::string hint_;
    bool password_ = false;
};

class CheckBox : public Control {
public:
    CheckBox(std::string_view name, std::string_view caption)
        : Control(Kind::CheckBox, name), caption_(caption) {}
    const std::string& Caption() const { return caption_; }
    bool Checked() const { return checked_; }
    /// Raises Click when it changes, as a person's click does.
    void SetChecked(bool checked);

private:
    std::string caption_;
    bool checked_ = false;
};

class CommandButton : public Control {
public:
    explicit CommandButton(std::string_view name, std::string_view caption = {})
        : Control(Kind::CommandButton, name), caption_(caption) {}
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
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

/// A picture; no keyboard, no window of its own.
class Image : public Control {
public:
    explicit Image(std::string_view name, std::string_view picture = {})
        : Control(Kind::Image, name), picture_(picture) {}
    /// A file below the program's folder ("\images\pale.bmp"), or the bare name of a picture of the skin
    /// ("play").
    const std::string& Picture() const { return picture_; }
    void SetPicture(std::string_view picture);

private:
    std::string picture_;
};

/// A straight line; Left/Top is its first end, Width/Height reach to the other.
class Line : public Control {
public:
    explicit Line(std::string_view name) : Control(Kind::Line, name) {}
    double X1() const { return Left(); }
    double X2() const { return Right(); }
    /// Moves one end and leaves the other where it is.
    void SetX1(double x);
    void SetX2(double x);
};

class ProgressBar : public Control {
public:
    explicit ProgressBar(std::string_view name) : Control(Kind::ProgressBar, name) {}
    int Min() const { return 0; }
    int Max() const { return 100; }
    int Value() const { return value_; }
    /// Refuses a value outside 0 to 100: nothing changes and the result is false.
    bool SetValue(int value);

private:
    int value_ = 0;
};

/// Raises Tick every Interval milliseconds while enabled. Setting Enabled to True, or another Interval,
/// starts the interval again; an Interval of 0 never ticks.
class Timer : public Control {
public:
    Timer(std::string_view name, int interval_ms, bool enabled = false)
        : Control(Kind::Timer, name), interval_(interval_ms) {
        AssignEnabled(enabled);
    }
    void SetEnabled(bool enabled) override;
    int Interval() const { return interval_; }
    void SetInterval(int interval_ms);

    Event<> Tick;

private:
    int interval_;
};

}  // namespace controls
