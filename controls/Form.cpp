#include "controls/Form.h"

#include <algorithm>
#include <utility>

namespace controls {

Form::Form(std::string_view name, std::string_view caption, BorderStyle border)
    : Container(Kind::Form, name),
      caption_(caption),
      border_(border),
      stays_in_front_(border == BorderStyle::FixedDialog) {
    SetVisible(false);
}

double Form::FrameWidth() const {
    return border_ == BorderStyle::None ? 0 : 2 * kFrameBorder;
}

double Form::FrameHeight() const {
    if (border_ == BorderStyle::None) return 0;
    return kFrameTitle + kFrameBorder + (menu_bar_.empty() ? 0 : kFrameMenu);
}

double Form::ContentWidth() const {
    return std::max(0.0, Width() - FrameWidth());
}

double Form::ContentHeight() const {
    return std::max(0.0, Height() - FrameHeight());
}

void Form::SetContentSize(double width, double height) {
    Move(Left(), Top(), width + FrameWidth(), height + FrameHeight());
}

void Form::SetState(WindowState state) {
    if (state == WindowState::Minimised && state_ != state) before_minimised_ = state_;
    Assign(state_, state, Property::Window);
}

void Form::Restore() {
    if (state_ == WindowState::Minimised) SetState(before_minimised_);
}

void Form::LoadWindow() {
    if (loaded_) return;
    loaded_ = true;
    Report(Property::Window);
    Load.Raise();
}

void Form::Show() {
    LoadWindow();
    // Its load handler may have unloaded the window again.
    if (!loaded_) return;
    const bool was_visible = Visible();
    SetVisible(true);
    if (!was_visible) Activate.Raise();
}

bool Form::UnloadWindow() {
    if (!loaded_) return true;
    bool cancel = false;
    QueryUnload.Raise(cancel);
    if (cancel) return false;
    if (!loaded_) return true;
    Unload.Raise(cancel);
    if (cancel) return false;
    loaded_ = false;
    SetVisible(false);
    Report(Property::Window);
    return true;
}

void Form::Move(double left, double top, double width, double height) {
    const double old_width = Width();
    const double old_height = Height();
    Container::Move(left, top, width, height);
    if (Width() != old_width || Height() != old_height) Resize.Raise();
}

void Form::SetMenuBar(std::vector<Menu*> menus) {
    menu_bar_ = std::move(menus);
    Report(Property::Window);
}

void Form::PopupMenu(Menu& menu) {
    wanted_popup_ = &menu;
    Report(Property::Popup);
}

}  // namespace controls
