// The main window's frame, caption and music panel, as other subjects use them.
#pragma once

#include <string_view>

#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Menu.h"
#include "roles/Window.h"

namespace window {

class WindowRoom final : public roles::Window {
public:
    WindowRoom(controls::Form& frmBrowser, controls::Frame& fraMusicTab)
        : frmBrowser_(frmBrowser), fraMusicTab_(fraMusicTab) {}

    double Left() const override { return frmBrowser_.Left(); }
    double Top() const override { return frmBrowser_.Top(); }
    double Width() const override { return frmBrowser_.Width(); }
    controls::WindowState State() const override { return frmBrowser_.State(); }
    void SetState(controls::WindowState state) override { frmBrowser_.SetState(state); }
    void ToggleFullScreen() override { frmBrowser_.SetFullScreen(!frmBrowser_.FullScreen()); }
    void SetCaption(std::string_view caption) override { frmBrowser_.SetCaption(caption); }
    void Show() override { frmBrowser_.Show(); }
    void SetEnabled(bool enabled) override { frmBrowser_.SetEnabled(enabled); }
    void Refresh() override { frmBrowser_.Refresh(); }
    void PopupMenu(controls::Menu& menu) override { frmBrowser_.PopupMenu(menu); }
    void ShowMusicPanel(bool shown) override { fraMusicTab_.SetVisible(shown); }
    void BringMusicPanelToFront() override { fraMusicTab_.BringToFront(); }

private:
    controls::Form& frmBrowser_;
    controls::Frame& fraMusicTab_;
};

}  // namespace window
