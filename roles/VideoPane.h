// The video's place in the main window. Why: the favourites panel gives the pane its room, the layout keeps
// the hole over it.
#pragma once

namespace roles {

class VideoPane {
public:
    virtual ~VideoPane() = default;
    /// A video or light show is over its hole, so the hole follows the layout.
    virtual bool IsVideoAttached() const = 0;
    /// Shows `picVideo` and cuts the hole for it.
    virtual void ShowPane() = 0;
    /// Hides `picVideo` and closes the hole.
    virtual void ClosePane() = 0;
    /// Keeps an attached video window over its hole.
    virtual void FollowMainWindow() = 0;
};

}  // namespace roles
