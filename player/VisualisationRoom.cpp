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

VisualisationRoom::VisualisationRoom(VideoForm& frmVideo, VisualMenu& menu, controls::PictureBox& picVideo,
                                     PlayerState& state, VideoPane& video, MainWindow& window,
                                     ports::Chance& chance)
    : frmVideo_(frmVideo),
      menu_(menu),
      shows_(menu.mnuAnim, menu.mnuStrobe, menu.mnuParty, menu.mnuMood, menu.mnuNone),
      picVideo_(picVideo),
      state_(state),
      video_(video),
      window_(window),
      chance_(chance) {
    claims_.Claim(menu_.mnuStrobe.Click, [this] { mnuStrobe_Click(); });
    claims_.Claim(menu_.mnuParty.Click, [this] { mnuParty_Click(); });
    claims_.Claim(menu_.mnuMood.Click, [this] { mnuMood_Click(); });
    claims_.Claim(menu_.mnuAnim.Click, [this] { mnuAnim_Click(); });
    claims_.Claim(menu_.mnuNone.Click, [this] { mnuNone_Click(); });
    claims_.Claim(frmVideo_.Load, [this] { frmVideo_Load(); });
    claims_.Claim(frmVideo_.tmrVisual.Tick, [this] { tmrVisual_Tick(); });
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
    if (state_.VideoPlaying) return;
    video_.ClosePane();
    video_.HideWindow();
    frmVideo_.tmrVisual.SetEnabled(false);
    window_.Form_Resize();
}

void VisualisationRoom::SortVisualisations() {
    window_.MakeHole();
    video_.cmdAttachVid_Click();
    state_.resized = false;
    state_.VisualisationOn = true;
    if (window_.IsFavouritesPanelClosed()) window_.cmdFavs_Click();
    picVideo_.SetVisible(true);
    frmVideo_.Show();
    frmVideo_.tmrVisual.SetEnabled(true);
    UnTickVisual();
    frmVideo_.imgAnim1.SetVisible(false);
    frmVideo_.imgAnim2.SetVisible(false);
    window_.Form_Resize();
}

void VisualisationRoom::frmVideo_Load() {
    MoodRed_ = MoodGreen_ = MoodBlue_ = 1;
}

void VisualisationRoom::tmrVisual_Tick() {
    VisualTick_ = OneMore(VisualTick_);
    frmVideo_.tmrVisual.SetInterval(state_.visual == kMood ? kQuickInterval : kUsualInterval);
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
    frmVideo_.imgAnim1.SetVisible(VisualTick_ < 8);
    frmVideo_.imgAnim2.SetVisible(VisualTick_ >= 8);
}

void VisualisationRoom::StepStrobe() {
    if (VisualTick_ < 2) {
        frmVideo_.picVid.SetBackColor(kBlue);
    } else if (VisualTick_ == 2) {
        frmVideo_.picVid.SetBackColor(kWhite);
    } else {
        VisualTick_ = 0;
        frmVideo_.picVid.SetBackColor(kBlack);
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
    frmVideo_.picVid.SetBackColor(Mixed(MoodRed_, MoodGreen_, MoodBlue_));
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
    const int pick = WholeInt(chance_.Below1() * 4);
    frmVideo_.picVid.SetBackColor(kPartyColours.at(static_cast<std::size_t>(std::clamp(pick, 0, 4))));
}

}  // namespace player
