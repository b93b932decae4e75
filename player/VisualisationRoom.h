// The light shows that the video window shows while music plays.
#pragma once

#include "controls/CheckGroup.h"
#include "controls/Event.h"
#include "controls/Menu.h"
#include "controls/PictureBox.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/VideoForm.h"
#include "player/VideoRoom.h"
#include "ports/Clock.h"
#include "roles/Favourites.h"
#include "roles/Hole.h"
#include "roles/Layout.h"

namespace player {

struct VisualisationRoles {
    roles::Layout& layout;
    roles::Hole& hole;
    roles::Favourites& favourites;
};

class VisualisationRoom final {
public:
    VisualisationRoom(VideoForm& form, VisualMenu& menu, controls::PictureBox& pane, PlayerState& state,
                      VideoRoom& video, VisualisationRoles roles, ports::Chance& chance);

private:
    void mnuStrobe_Click();
    void mnuParty_Click();
    void mnuMood_Click();
    void mnuAnim_Click();
    void mnuNone_Click();
    void frmVideo_Load();
    void frmVideo_Unload();
    void tmrVisual_Tick();

    void SortVisualisations();
    void UnTickVisual() { shows_.UncheckAll(); }
    void Choose(std::int16_t show, controls::Menu& entry);
    void StepAnimation();
    void StepStrobe();
    void StepParty();
    void StepMood();
    void WalkMoodColour();
    void ShowRandomColour();

    VideoForm& form_;
    VisualMenu& menu_;
    controls::CheckGroup shows_;
    controls::PictureBox& pane_;
    PlayerState& state_;
    VideoRoom& video_;
    VisualisationRoles roles_;
    ports::Chance& chance_;
    std::int16_t VisualTick_ = 0;
    std::int16_t MoodRed_ = 1;
    std::int16_t MoodGreen_ = 1;
    std::int16_t MoodBlue_ = 1;
    controls::EventClaims claims_;
};

}  // namespace player
