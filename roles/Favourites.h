// The favourites and their panel. Why: the start fills and opens the panel, a reload counts the favourites,
// and a video closes the panel that would cover it.
#pragma once

namespace roles {

class Favourites {
public:
    virtual ~Favourites() = default;
    /// Reads the number of the last row; an empty table leaves the old one.
    virtual void LoadFavs() = 0;
    /// What the click of `imgAddOver` and the dialog's cancel do together, without the dialog flashing up:
    /// the lists are filled and the main window is shown and enabled.
    virtual void SettleAtStart() = 0;
    /// `cmdFavs` shows ">".
    virtual bool IsPanelClosed() const = 0;
    /// The click of `cmdFavs`.
    virtual void TogglePanel() = 0;
    /// The click of `imgAddOver`: offers the page in front to be added.
    virtual void AddPageInFront() = 0;
};

}  // namespace roles
