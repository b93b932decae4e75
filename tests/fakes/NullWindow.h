// The main window as rooms see it, doing nothing.
#pragma once

#include <string_view>

#include "controls/Form.h"
#include "controls/Menu.h"
#include "roles/Window.h"

namespace fakes {

class NullWindow : public roles::Window {
public:
    double Left() const override { return 0; }
    double Top() const override { return 0; }
    double Width() const override { return 0; }
    controls::WindowState State() const override { return controls::WindowState::Normal; }
    void SetState(controls::WindowState) override {}
    void ToggleFullScreen() override {}
    void SetCaption(std::string_view) override {}
    void Show() override {}
    void SetEnabled(bool) override {}
    void Refresh() override {}
    void PopupMenu(controls::Menu&) override {}
    void ShowMusicPanel(bool) override {}
    void BringMusicPanelToFront() override {}
};

}  // namespace fakes
