// What other controls stand in: frames, picture boxes and windows.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Control.h"
#include "controls/Menu.h"
#include "controls/Simple.h"

namespace controls {

/// A panel. Its caption is drawn only when it has one.
class Frame : public Container {
public:
    explicit Frame(std::string_view name, std::string_view caption = {})
        : Container(Kind::Frame, name), caption_(caption) {}
    const std::string& Caption() const { return caption_; }

private:
    std::string caption_;
};

/// A surface with a colour and, if wanted, a horizontal scale of its own: ScaleWidth units across its width.
class PictureBox : public Container {
public:
    explicit PictureBox(std::string_view name) : Container(Kind::PictureBox, name) {}

    Colour BackColor() const { return back_colour_; }
    void SetBackColor(Colour colour);

    /// Units across the width; twips as long as nobody set it.
    double ScaleWidth() const { return scaled_ ? scale_width_ : Width(); }
    /// Sets the units across the width. Children stay where they are on the screen, so their Left and Width
    /// are told in the new units. A value that is not above 0, or no number, changes nothing and gives false.
    bool SetScaleWidth(double units);
    bool HasOwnScale() const { return scaled_; }

    /// The platform's handle of the surface, 0 while it has none. Video is put into it.
    std::int64_t Handle() const { return handle_; }
    void SetHandle(std::int64_t handle) { handle_ = handle; }

private:
    Colour back_colour_ = 0x000000;
    bool scaled_ = false;
    double scale_width_ = 0;
    std::int64_t handle_ = 0;
};

enum class WindowState { Normal, Minimised, Maximised };

enum class BorderStyle { None, FixedDialog, Sizable };

/// The frame that a window's Left, Top, Width and Height take in besides its content, in twips: a border of
/// two pixels at the left, the right and the bottom, 24 for the title and 26 for the menu bar of a window
/// that has one.
inline constexpr double kFrameBorder = 2 * kTwipsPerPixel;
inline constexpr double kFrameTitle = 24 * kTwipsPerPixel;
inline constexpr double kFrameMenu = 26 * kTwipsPerPixel;

/// A window. It is loaded, then shown; unloading asks (QueryUnload), tells (Unload) and hides it. A window
/// that is shown without being loaded loads first. Windows live as long as the program does: unloading frees
/// nothing, so whoever is still in a loop over a window's controls touches nothing that is gone.
class Form : public Container {
public:
    Form(std::string_view name, std::string_view caption, BorderStyle border = BorderStyle::Sizable);

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    BorderStyle Border() const { return border_; }
    WindowState State() const { return state_; }
    /// Lies over the main window whenever both are to be seen, as dialogs do. To be set before the window is
    /// shown.
    bool StaysInFront() const { return stays_in_front_; }
    void SetStaysInFront(bool in_front) { stays_in_front_ = in_front; }
    void SetState(WindowState state);
    bool IsLoaded() const { return loaded_; }

    /// The place for controls, in twips, without border, title and menu bar.
    double ContentWidth() const;
    double ContentHeight() const;
    /// Gives the window the size that its content needs.
    void SetContentSize(double width, double height);

    /// Raises Load if the window is not loaded.
    void LoadWindow();
    /// Loads if need be, makes the window visible and, if it was not, raises Activate.
    void Show();
    void Hide() { SetVisible(false); }
    /// Raises QueryUnload, then Unload; either may cancel. True when the window is unloaded (or was not
    /// loaded).
    bool UnloadWindow();

    /// A new size raises Resize, whoever changed it.
    void Move(double left, double top, double width, double height) override;

    /// The menu bar; the entries belong to whoever owns the window.
    const std::vector<Menu*>& MenuBar() const { return menu_bar_; }
    void SetMenuBar(std::vector<Menu*> menus);
    /// Shows the entries of `menu` at the pointer.
    void PopupMenu(Menu& menu);
    Menu* WantedPopup() const { return wanted_popup_; }

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
    bool loaded_ = false;
    bool stays_in_front_;
    std::vector<Menu*> menu_bar_;
    Menu* wanted_popup_ = nullptr;
};

}  // namespace controls
