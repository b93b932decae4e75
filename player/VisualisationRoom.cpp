#include "player/VisualisationRoom.h"

#include <algorithm>
#include <array>

#include "player/Whole.h"

namespace player {

namespace {

constexpr controls::Colour kBlack = 0x000000;
constexpr controls::Colour kWhite = 0xFFFFFF;
constexpr controls::Colour kBlue = 0x0000FF;
/// What a party picks from.
constexpr std::array<controls::Colour, 5> kPartyColours = {0x00FF00, 0xFF0000, 0xFFFF00, kBlue, kBlack};

constexpr std::int16_t kStrobe = 1;
constexpr std::int16_t kParty = 2;
constexpr std::int16_t kMood = 3;
constexpr std::int16_t kAnimation = 4;
constexpr int kQuickInterval = 10;
constexpr int kUsualInterval = 50;
constexpr int kMostOfAColour = 255;

controls::Colour Mixed(int red, int green, int blue) {
    const auto part = [](int value) {
        return static_cast<controls::Colour>(std::min(value, kMostOfAColour));
    };
    return part(red) << 16U | part(green) << 8U | part(blue);
}

}  // namespace

VisualisationRoom::VisualisationRoom(VideoForm& form, VisualMenu& menu, controls::PictureBox& pane,
                                     PlayerState& state, VideoRoom& video, VisualisationRoles roles,
                                     ports::Chance& chance)
    : form_(form),
      menu_(menu),
      shows_(menu.mnuAnim, menu.mnuStrobe, menu.mnuParty, menu.mnuMood, menu.mnuNone),
      pane_(pane),
      state_(state),
      video_(video),
      roles_(roles),
      chance_(chance) {
    claims_.Claim(menu_.mnuStrobe.Click, [this] { mnuStrobe_Click(); });
    claims_.Claim(menu_.mnuParty.Click, [this] { mnuParty_Click(); });
    claims_.Claim(menu_.mnuMood.Click, [this] { mnuMood_Click(); });
    claims_.Claim(menu_.mnuAnim.Click, [this] { mnuAnim_Click(); });
    claims_.Claim(menu_.mnuNone.Click, [this] { mnuNone_Click(); });
    claims_.Claim(form_.Load, [this] { frmVideo_Load(); });
    claims_.Claim(form_.Unload, [this](bool&) { frmVideo_Unload(); });
    claims_.Claim(form_.tmrVisual.Tick, [this] { tmrVisual_Tick(); });
}

void VisualisationRoom::mnuStrobe_Click() {
    Choose(kStrobe, menu_.mnuStrobe);
}

void VisualisationRoom::mnuParty_Click() {
    Choose(kParty, menu_.mnuParty);
}

void VisualisationRoom::mnuMood_Click() {
    state_.visual = kParty;
    Choose(kMood, menu_.mnuMood);
}

void VisualisationRoom::mnuAnim_Click() {
    Choose(kAnimation, menu_.mnuAnim);
}

void VisualisationRoom::Choose(std::int16_t show, controls::Menu& entry) {
    SortVisualisations();
    state_.visual = show;
    state_.FirstLoad = show == kMood;
    shows_.Check(entry);
}

void VisualisationRoom::mnuNone_Click() {
    UnTickVisual();
    state_.VisualisationOn = false;
    // VideoPlaying stays until the next song; Stop ended the video.
    if (state_.VideoPlaying && !state_.PlayerStopped) return;
    video_.GivePaneBack();
    video_.HideWindow();
    form_.tmrVisual.SetEnabled(false);
    roles_.layout.Form_Resize();
}

void VisualisationRoom::SortVisualisations() {
    roles_.hole.MakeHole();
    video_.Attach();
    state_.resized = false;
    state_.VisualisationOn = true;
    if (roles_.favourites.IsPanelClosed()) roles_.favourites.TogglePanel();
    pane_.SetVisible(true);
    form_.Show();
    form_.tmrVisual.SetEnabled(true);
    UnTickVisual();
    form_.imgAnim1.SetVisible(false);
    form_.imgAnim2.SetVisible(false);
    roles_.layout.Form_Resize();
}

void VisualisationRoom::frmVideo_Load() {
    MoodRed_ = MoodGreen_ = MoodBlue_ = 1;
}

/// Whoever closes the window has no show any more; the next song does not bring it back.
void VisualisationRoom::frmVideo_Unload() {
    video_.TakeWindowAway();
    state_.VisualisationOn = false;
    form_.tmrVisual.SetEnabled(false);
    shows_.Check(menu_.mnuNone);
}

void VisualisationRoom::tmrVisual_Tick() {
    VisualTick_ = OneMore(VisualTick_);
    form_.tmrVisual.SetInterval(state_.visual == kMood ? kQuickInterval : kUsualInterval);
    switch (state_.visual) {
        case kAnimation:
            StepAnimation();
            break;
        case kStrobe:
            StepStrobe();
            break;
        case kParty:
            StepParty();
            break;
        case kMood:
            StepMood();
            break;
        default:
            break;
    }
}

void VisualisationRoom::StepAnimation() {
    if (VisualTick_ >= 16) {
        VisualTick_ = 0;
        return;
    }
    form_.imgAnim1.SetVisible(VisualTick_ < 8);
    form_.imgAnim2.SetVisible(VisualTick_ >= 8);
}

void VisualisationRoom::StepStrobe() {
    if (VisualTick_ < 2) {
        form_.picVid.SetBackColor(kBlue);
    } else if (VisualTick_ == 2) {
        form_.picVid.SetBackColor(kWhite);
    } else {
        VisualTick_ = 0;
        form_.picVid.SetBackColor(kBlack);
    }
}

void VisualisationRoom::StepParty() {
    if (VisualTick_ < 8) {
        ShowRandomColour();
        return;
    }
    VisualTick_ = 0;
    if (!state_.FirstLoad) return;
    state_.visual = kMood;
    state_.FirstLoad = false;
}

void VisualisationRoom::StepMood() {
    WalkMoodColour();
    MoodRed_ = std::max<std::int16_t>(MoodRed_, 0);
    MoodGreen_ = std::max<std::int16_t>(MoodGreen_, 0);
    MoodBlue_ = std::max<std::int16_t>(MoodBlue_, 0);
    form_.picVid.SetBackColor(Mixed(MoodRed_, MoodGreen_, MoodBlue_));
}

void VisualisationRoom::WalkMoodColour() {
    const auto step = [](std::int16_t& part, int by) { part = Whole16(part + by); };
    if (VisualTick_ < 255) {
        step(MoodRed_, 1);
    } else if (VisualTick_ < 510) {
        step(MoodGreen_, 1);
    } else if (VisualTick_ < 765) {
        step(MoodBlue_, 1);
    } else if (VisualTick_ < 1010) {
        step(MoodRed_, -1);
    } else if (VisualTick_ < 1265) {
        step(MoodGreen_, -1);
    } else if (VisualTick_ < 1510) {
        step(MoodBlue_, -1);
    } else {
        VisualTick_ = 0;
    }
}

void VisualisationRoom::ShowRandomColour() {
    const int pick = ports::RandomIndex(4, chance_);
    form_.picVid.SetBackColor(kPartyColours.at(static_cast<std::size_t>(std::clamp(pick, 0, 4))));
}

}  // namespace player
