// The main window itself: its frame, its caption, the panel of the music tab. Places are twips.
#pragma once

#include <string_view>

#include "controls/Form.h"
#include "controls/Menu.h"

namespace roles {

class Window {
public:
    virtual ~Window() = default;
    /// Outer place and width.
    virtual double Left() const = 0;
    virtual double Top() const = 0;
    virtual double Width() const = 0;
    virtual controls::WindowState State() const = 0;
    virtual void SetState(controls::WindowState state) = 0;
    virtual void ToggleFullScreen() = 0;
    virtual void SetCaption(std::string_view caption) = 0;
    virtual void Show() = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual void Refresh() = 0;
    virtual void PopupMenu(controls::Menu& menu) = 0;
    /// The panel of the music tab, `fraMusicTab`.
    virtual void ShowMusicPanel(bool shown) = 0;
    virtual void BringMusicPanelToFront() = 0;
};

}  // namespace roles
