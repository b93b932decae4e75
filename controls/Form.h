// A window. It is loaded, then shown; unloading asks (QueryUnload), notifies (Unload) and hides it. A window
// that is shown without being loaded loads first. Windows live as long as the program does: unloading frees
// nothing, so code that is still in a loop over a window's controls touches nothing that is gone.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/Control.h"

namespace controls {

enum class WindowState { Normal, Minimised, Maximised };

enum class BorderStyle { None, FixedDialog, Sizable };

/// The frame that a window's Left, Top, Width and Height include besides its content, in twips: a border of
/// two pixels at the left, the right and the bottom, 24 pixels for the title and 26 for the menu bar of a
/// window that has one.
inline constexpr double kFrameBorder = 2 * kTwipsPerPixel;
inline constexpr double kFrameTitle = 24 * kTwipsPerPixel;
inline constexpr double kFrameMenu = 26 * kTwipsPerPixel;

class Menu;

class Form : public Container {
public:
    Form(std::string_view name, std::string_view caption, BorderStyle border = BorderStyle::Sizable);

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption) { Assign(caption_, caption, Property::Caption); }
    BorderStyle Border() const { return border_; }
    WindowState State() const { return state_; }
    void SetState(WindowState state);
    /// Fills the screen, without a frame, whatever its state is; the state shows again after that.
    bool FullScreen() const { return full_screen_; }
    void SetFullScreen(bool full_screen) { Assign(full_screen_, full_screen, Property::Window); }
    /// A minimised window gets back the state it had before; any other stays as it is.
    void Restore();
    /// Is above the main window whenever both are visible, as dialogs are. To be set before the window is
    /// shown.
    bool StaysInFront() const { return stays_in_front_; }
    void SetStaysInFront(bool in_front) { stays_in_front_ = in_front; }
    bool IsLoaded() const { return loaded_; }

    /// The space for controls, in twips: without border, title and menu bar.
    double ContentWidth() const;
    double ContentHeight() const;
    /// Gives the window the size that its content needs.
    void SetContentSize(double width, double height);

    /// Raises Load if the window is not loaded.
    void LoadWindow();
    /// Loads the window if necessary, makes the window visible and, if it was not, raises Activate.
    void Show();
    void Hide() { SetVisible(false); }
    /// Raises QueryUnload, then Unload; either may cancel. Returns true if the window is unloaded (or was not
    /// loaded).
    bool UnloadWindow();

    /// A new size raises Resize, whoever changed it.
    void Move(double left, double top, double width, double height) override;

    /// The menu bar; the entries belong to the window's owner.
    const std::vector<Menu*>& MenuBar() const { return menu_bar_; }
    void SetMenuBar(std::vector<Menu*> menus);
    /// Shows the entries of `menu` at the pointer.
    void PopupMenu(Menu& menu);
    Menu* WantedPopup() const { return wanted_popup_; }

    /// A key with Ctrl or Alt, a function key or Escape, before the control or the page that has the keyboard
    /// gets it: key code, shift, and whether it is used up. Keys that repeat come only where that is useful.
    Event<int, int, bool&> KeyPreview;
    Event<> Load;
    Event<> Activate;
    Event<> Resize;
    Event<bool&> QueryUnload;  ///< cancel
    Event<bool&> Unload;       ///< cancel

private:
    double FrameWidth() const;
    double FrameHeight() const;

    std::string caption_;
    BorderStyle border_;
    WindowState state_ = WindowState::Normal;
    WindowState before_minimised_ = WindowState::Normal;
    bool full_screen_ = false;
    bool loaded_ = false;
    bool stays_in_front_;
    std::vector<Menu*> menu_bar_;
    Menu* wanted_popup_ = nullptr;
};

}  // namespace controls
