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
#include "player/Outgoing.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/Roles.h"
#include "player/VideoForm.h"
#include "ports/EventLoop.h"

namespace player {

class VideoRoom final : public VideoPane {
public:
    VideoRoom(VideoForm& frmVideo, VideoPaneControls& pane, VideoMenu& menu, controls::Menu& mnuNone,
              MciLayer& mci, PlayerState& state, MainWindow& window, ports::EventLoop& loop);

    void PrepareVideo() override;
    void PrepareLightShow() override;
    void PrepareMusic() override;
    void ShowOrHideWindow() override;
    void HideWindow() override;
    void SetWindowCaption(std::string_view caption) override;
    std::int64_t ParentHandle() const override { return frmVideo_.picVid.Handle(); }
    void PutVideo() override;
    void SavePlace() override;
    void ClosePane() override;
    void theresize() override;
    void cmdAttachVid_Click() override;
    void FollowMainWindow() override;

private:
    void frmVideo_Activate();
    void frmVideo_Resize();
    void frmVideo_Unload();
    void cmdMax_Click();
    void lblVideoCaption_MouseDown();
    void lblVideoCaption_MouseMove(double x, double y);
    void mnuFullScreen_Click();
    void RestoreSize();
    void TakeWindowAway();
    bool IsNormal() const { return frmVideo_.State() == controls::WindowState::Normal; }
    bool IsMaximised() const { return frmVideo_.State() == controls::WindowState::Maximised; }

    VideoForm& frmVideo_;
    VideoPaneControls& pane_;
    VideoMenu& menu_;
    controls::Menu& mnuNone_;  ///< of the light shows
    MciLayer& mci_;
    PlayerState& state_;
    MainWindow& window_;
    ports::EventLoop& loop_;
    bool CaptionDragging_ = false;
    controls::EventClaims claims_;
};

}  // namespace player
