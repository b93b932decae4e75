#include "controls/Simple.h"

#include <algorithm>

namespace controls {

void Label::SetCaption(std::string_view caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Report(Property::Caption);
    Change.Raise();
}

void Label::SetAlign(Alignment alignment) {
    if (alignment_ == alignment) return;
    alignment_ = alignment;
    Report(Property::Caption);
}

void TextBox::SetText(std::string_view text) {
    if (text_ == text) return;
    text_ = text;
    Report(Property::Text);
    Change.Raise();
}

void TextBox::SetHint(std::string_view hint) {
    if (hint_ == hint) return;
    hint_ = hint;
    Report(Property::Refresh);
}

void CheckBox::SetChecked(bool checked) {
    if (checked_ == checked) return;
    checked_ = checked;
    Report(Property::Checked);
    Click.Raise();
}

void CommandButton::SetCaption(std::string_view caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Report(Property::Caption);
}

void Image::SetPicture(std::string_view picture) {
    if (picture_ == picture) return;
    picture_ = picture;
    Report(Property::Picture);
}

void Line::SetX1(double x) {
    const double other = X2();
    Move(std::min(x, other), Top(), std::max(other - x, 0.0), Height());
}

void Line::SetX2(double x) {
    Move(Left(), Top(), std::max(x - Left(), 0.0), Height());
}

bool ProgressBar::SetValue(int value) {
    if (value < Min() || value > Max()) return false;
    if (value == value_) return true;
    value_ = value;
    Report(Property::Value);
    return true;
}

void Timer::SetEnabled(bool enabled) {
    if (!enabled && !Enabled()) return;
    AssignEnabled(enabled);
    Report(Property::Timer);
}

void Timer::SetInterval(int interval_ms) {
    if (interval_ == interval_ms) return;
    interval_ = interval_ms;
    Report(Property::Timer);
}

}  // namespace controls
