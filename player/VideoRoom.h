// The video window: over the hole of the main window, floating, or maximised.
//
// It is attached until theresize was called twice since the last reset, or its caption was dragged; showing
// it when it was hidden, or going to it from another window, attaches it again. While it is attached it
// follows the main window, minimised or not, and the screen keeps it right below; a maximised one covers it.
#pragma once

#include <string>

#include "controls/Event.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "player/MciLayer.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/VideoForm.h"
#include "ports/EventLoop.h"
#include "roles/Favourites.h"
#include "roles/Hole.h"
#include "roles/Layout.h"
#include "roles/MediaKeys.h"
#include "roles/VideoPane.h"
#include "roles/Window.h"

namespace player {

struct VideoRoles {
    roles::Window& window;
    roles::Layout& layout;
    roles::Hole& hole;
    roles::MediaKeys& keys;
    roles::Favourites& favourites;
};

class VideoRoom final : public roles::VideoPane {
public:
    VideoRoom(VideoForm& form, VideoPaneControls& pane, VideoMenu& menu, MciLayer& mci, PlayerState& state,
              VideoRoles roles, ports::EventLoop& loop);

    bool IsVideoAttached() const override;
    void ShowPane() override;
    void ClosePane() override;
    void FollowMainWindow() override;

    /// Gets the window ready for a video, a song with a light show, or a song alone.
    void PrepareVideo();
    void PrepareLightShow();
    void PrepareMusic();
    /// Shows the window for a video or a light show; otherwise makes it normal and hides it.
    void ShowOrHideWindow();
    void HideWindow();
    /// The window is on the screen for a light show.
    bool IsLightShowSeen() const { return state_.VisualisationOn && form_.Visible(); }
    void SetWindowCaption(std::string_view caption);
    /// The platform's handle of picVid, the parent of both aliases.
    std::int64_t ParentHandle() const { return form_.picVid.Handle(); }
    /// Gives the current song's picture the size of the window.
    void PutVideo();
    /// Makes the picture black.
    void ClearPicture();
    /// Keeps place and size for the next video.
    void SavePlace();
    /// Hides the pane, closes the hole and lays the main window out.
    void TakeWindowAway();
    /// Closes the pane and gives its room back to the favourites panel.
    void GivePaneBack();
    void theresize();
    /// Puts the window back over its hole; when it is hidden, closes the hole.
    void Attach();

private:
    void frmVideo_Activate();
    void frmVideo_Resize();
    void cmdMax_Click();
    void lblVideoCaption_MouseDown();
    void lblVideoCaption_MouseMove(double x, double y);
    void mnuFullScreen_Click();
    void TakePane();
    void RestoreSize();
    void MakeRoomForPane();
    bool IsNormal() const { return form_.State() == controls::WindowState::Normal; }
    bool IsMaximised() const { return form_.State() == controls::WindowState::Maximised; }

    VideoForm& form_;
    VideoPaneControls& pane_;
    VideoMenu& menu_;
    MciLayer& mci_;
    PlayerState& state_;
    VideoRoles roles_;
    ports::EventLoop& loop_;
    bool CaptionDragging_ = false;
    bool window_comes_ = false;  ///< it is prepared, and not shown yet
    controls::EventClaims claims_;
};

}  // namespace player
