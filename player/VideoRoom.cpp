#include "player/VideoRoom.h"

#include "base/Number.h"
#include "base/Text.h"
#include "player/Whole.h"

namespace player {

namespace {

constexpr std::string_view kMaximisedSize = "Max";
constexpr std::string_view kNormalSign = "^";
constexpr std::string_view kMaximisedSign = "v";
constexpr double kCaptionHeight = 300;
constexpr double kMaxButtonWidth = 420;
/// From the main window's corner to picVideo, in twips: most of the border, and what is above the controls.
constexpr double kHoleOffsetLeft = 25;
constexpr double kHoleOffsetTop = controls::kFrameTitle + controls::kFrameMenu;

}  // namespace

VideoRoom::VideoRoom(VideoForm& frmVideo, VideoPaneControls& pane, VideoMenu& menu, controls::Menu& mnuNone,
                     MciLayer& mci, PlayerState& state, MainWindow& window, ports::EventLoop& loop)
    : frmVideo_(frmVideo),
      pane_(pane),
      menu_(menu),
      mnuNone_(mnuNone),
      mci_(mci),
      state_(state),
      window_(window),
      loop_(loop) {
    auto& caption = frmVideo_.lblVideoCaption;
    claims_.Claim(frmVideo_.Activate, [this] { frmVideo_Activate(); });
    claims_.Claim(frmVideo_.Resize, [this] { frmVideo_Resize(); });
    claims_.Claim(frmVideo_.Unload, [this](bool&) { frmVideo_Unload(); });
    claims_.Claim(frmVideo_.KeyDown, [this](int key_code, int shift) { window_.KeyDown(key_code, shift); });
    claims_.Claim(frmVideo_.cmdMax.Click, [this] { cmdMax_Click(); });
    claims_.Claim(caption.DblClick, [this] { cmdMax_Click(); });
    claims_.Claim(caption.MouseDown, [this] { lblVideoCaption_MouseDown(); });
    claims_.Claim(caption.MouseMove,
                  [this](int, int, double x, double y) { lblVideoCaption_MouseMove(x, y); });
    claims_.Claim(caption.MouseUp, [this] { CaptionDragging_ = false; });
    claims_.Claim(pane_.cmdAttachVid.Click, [this] { cmdAttachVid_Click(); });
    claims_.Claim(menu_.mnuFullScreen.Click, [this] { mnuFullScreen_Click(); });
}

void VideoRoom::PrepareVideo() {
    frmVideo_.tmrVisual.SetEnabled(false);
    frmVideo_.picVid.SetBackColor(0x000000);
    frmVideo_.imgAnim1.SetVisible(false);
    frmVideo_.imgAnim2.SetVisible(false);
    state_.VideoPlaying = true;
    pane_.picVideo.SetVisible(true);
    if (IsNormal()) frmVideo_.SetLeft(state_.VideoLeft);
    loop_.Yield();
    if (loop_.IsEnding()) return;
    RestoreSize();
    if (IsMaximised()) {
        theresize();
    } else if (window_.IsFavouritesPanelClosed()) {
        window_.cmdFavs_Click();
    }
    window_.Form_Resize();
}

/// Height and width change places from one video to the next: they are kept as height and width, and read as
/// width and height. The second number is read from as many characters at the end as the first has, comma or
/// not. A window that is not in its normal state keeps its place and size.
void VideoRoom::RestoreSize() {
    const std::string& size = state_.VideoSizeText;
    if (size == kMaximisedSize) {
        frmVideo_.SetState(controls::WindowState::Maximised);
        return;
    }
    const std::size_t comma = base::InStr(size, ",");
    if (comma == 0 || !IsNormal()) return;
    frmVideo_.SetWidth(base::Val(base::Left(size, comma - 1)));
    frmVideo_.SetHeight(base::Val(base::Right(size, comma - 1)));
}

void VideoRoom::PrepareLightShow() {
    SetWindowCaption("Visualisations");
    // A video ended the show, and Stop took its place away; it is still on, so the next song brings it back.
    frmVideo_.tmrVisual.SetEnabled(true);
    if (pane_.picVideo.Visible() || window_.IsFavouritesPanelClosed()) return;
    pane_.picVideo.SetVisible(true);
    window_.Form_Resize();
}

void VideoRoom::PrepareMusic() {
    TakeWindowAway();
}

void VideoRoom::TakeWindowAway() {
    pane_.picVideo.SetVisible(false);
    window_.CloseHole();
    window_.Form_Resize();
}

void VideoRoom::ShowOrHideWindow() {
    if (!state_.VideoPlaying && !state_.VisualisationOn) {
        frmVideo_.SetState(controls::WindowState::Normal);
        HideWindow();
    } else if (!frmVideo_.Visible()) {
        frmVideo_.Show();
        // It comes to the screen where its hole is.
        FollowMainWindow();
    } else if (!state_.resized) {
        // An attached window stays attached from song to song.
        state_.counter = 0;
    }
}

void VideoRoom::HideWindow() {
    frmVideo_.Hide();
}

void VideoRoom::SetWindowCaption(std::string_view caption) {
    frmVideo_.SetCaption(caption);
    frmVideo_.lblVideoCaption.SetCaption(caption);
}

void VideoRoom::PutVideo() {
    int width = WholeInt(frmVideo_.Width() / controls::kTwipsPerPixel);
    int height = WholeInt(frmVideo_.Height() / controls::kTwipsPerPixel);
    mci_.MciPutWindow(ParentHandle(), state_.CurrentAlias, 0, 0, width, height);
}

void VideoRoom::SavePlace() {
    state_.VideoLeft = Whole16(frmVideo_.Left());
    state_.VideoSizeText =
        IsMaximised() ? std::string(kMaximisedSize)
                      : base::SingleToText(frmVideo_.Height()) + "," + base::SingleToText(frmVideo_.Width());
}

void VideoRoom::ClosePane() {
    window_.CloseHole();
    pane_.picVideo.SetVisible(false);
    window_.PlaceVideoPane();
}

void VideoRoom::theresize() {
    state_.counter = OneMore(state_.counter);
    if (state_.counter != 2) return;
    state_.resized = true;
    window_.CloseHole();
    window_.RefreshWindow();
    // Without the hole it is seen only in front.
    frmVideo_.BringToFront();
}

void VideoRoom::cmdAttachVid_Click() {
    state_.counter = 0;
    if (!frmVideo_.Visible()) {
        TakeWindowAway();
        return;
    }
    frmVideo_.SetState(controls::WindowState::Normal);
    theresize();
    state_.resized = false;
    window_.MakeHole();
}

/// The hole goes with a main window that is minimised, so the window does as well.
void VideoRoom::FollowMainWindow() {
    if (state_.resized || IsMaximised()) return;
    const bool is_away = window_.State() == controls::WindowState::Minimised;
    if (frmVideo_.Visible())
        frmVideo_.SetState(is_away ? controls::WindowState::Minimised : controls::WindowState::Normal);
    if (!IsNormal()) return;
    const auto& hole = pane_.picVideo;
    frmVideo_.Move(window_.Left() + hole.Left() + kHoleOffsetLeft,
                   window_.Top() + hole.Top() + kHoleOffsetTop, hole.Width(), hole.Height());
}

void VideoRoom::frmVideo_Activate() {
    theresize();
    const bool was_detached = state_.resized;
    state_.resized = false;
    state_.counter = 0;
    // It is attached again, so it follows the main window; behind it, it is seen through the hole only.
    const bool is_attached = pane_.picVideo.Visible() && !IsMaximised();
    if (was_detached && is_attached) window_.MakeHole();
}

void VideoRoom::frmVideo_Resize() {
    const double width = frmVideo_.ContentWidth();
    const double height = frmVideo_.ContentHeight();
    auto& picVid = frmVideo_.picVid;
    picVid.Move(0, 0, width, height);
    frmVideo_.lblVideoCaption.Move(0, 0, width - kMaxButtonWidth, kCaptionHeight);
    frmVideo_.cmdMax.Move(width - kMaxButtonWidth, 0, kMaxButtonWidth, kCaptionHeight);
    for (controls::Image* picture : {&frmVideo_.imgAnim1, &frmVideo_.imgAnim2}) {
        picture->SetLeft((picVid.Width() - picture->Width()) / 2);
        picture->SetTop((picVid.Height() - picture->Height()) / 2);
    }
    PutVideo();
}

void VideoRoom::frmVideo_Unload() {
    TakeWindowAway();
    mnuNone_.SetChecked(true);
}

void VideoRoom::cmdMax_Click() {
    if (frmVideo_.cmdMax.Caption() == kNormalSign) {
        frmVideo_.cmdMax.SetCaption(kMaximisedSign);
        frmVideo_.SetState(controls::WindowState::Maximised);
        return;
    }
    frmVideo_.cmdMax.SetCaption(kNormalSign);
    frmVideo_.SetState(controls::WindowState::Normal);
    cmdAttachVid_Click();
}

void VideoRoom::lblVideoCaption_MouseDown() {
    state_.resized = true;
    window_.CloseHole();
    CaptionDragging_ = true;
    frmVideo_.BringToFront();
}

/// The pressed place is not taken off: the window's corner runs after the pointer. A maximised one stays.
void VideoRoom::lblVideoCaption_MouseMove(double x, double y) {
    if (!CaptionDragging_ || !IsNormal()) return;
    frmVideo_.Move(frmVideo_.Left() + x, frmVideo_.Top() + y, frmVideo_.Width(), frmVideo_.Height());
}

void VideoRoom::mnuFullScreen_Click() {
    if (window_.State() == controls::WindowState::Maximised) return;
    if (window_.State() == controls::WindowState::Minimised) window_.ShowWindow();
    window_.SetState(controls::WindowState::Maximised);
}

}  // namespace player
