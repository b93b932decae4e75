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

VideoRoom::VideoRoom(VideoForm& form, VideoPaneControls& pane, VideoMenu& menu, MciLayer& mci,
                     PlayerState& state, VideoRoles roles, ports::EventLoop& loop)
    : form_(form), pane_(pane), menu_(menu), mci_(mci), state_(state), roles_(roles), loop_(loop) {
    auto& caption = form_.lblVideoCaption;
    claims_.Claim(form_.Activate, [this] { frmVideo_Activate(); });
    claims_.Claim(form_.Resize, [this] { frmVideo_Resize(); });
    claims_.Claim(form_.KeyDown, [this](int key_code, int shift) { roles_.keys.KeyDown(key_code, shift); });
    claims_.Claim(form_.cmdMax.Click, [this] { cmdMax_Click(); });
    claims_.Claim(caption.DblClick, [this] { cmdMax_Click(); });
    claims_.Claim(caption.MouseDown, [this] { lblVideoCaption_MouseDown(); });
    claims_.Claim(caption.MouseMove,
                  [this](int, int, double x, double y) { lblVideoCaption_MouseMove(x, y); });
    claims_.Claim(caption.MouseUp, [this] { CaptionDragging_ = false; });
    claims_.Claim(pane_.cmdAttachVid.Click, [this] { Attach(); });
    claims_.Claim(menu_.mnuFullScreen.Click, [this] { mnuFullScreen_Click(); });
}

bool VideoRoom::IsVideoAttached() const {
    return (state_.VideoPlaying || state_.VisualisationOn) && !state_.resized &&
           (form_.Visible() || window_comes_);
}

void VideoRoom::ShowPane() {
    pane_.picVideo.SetVisible(true);
    roles_.hole.MakeHole();
}

void VideoRoom::ClosePane() {
    roles_.hole.CloseHole();
    pane_.picVideo.SetVisible(false);
}

void VideoRoom::PrepareVideo() {
    form_.tmrVisual.SetEnabled(false);
    ClearPicture();
    form_.imgAnim1.SetVisible(false);
    form_.imgAnim2.SetVisible(false);
    TakePane();
    if (IsNormal()) form_.SetLeft(state_.VideoLeft);
    loop_.Yield();
    if (loop_.IsEnding() || state_.PlayerStopped) return;
    // A song that was started meanwhile put the video away.
    TakePane();
    RestoreSize();
    if (IsMaximised()) {
        theresize();
    } else if (roles_.favourites.IsPanelClosed()) {
        roles_.favourites.TogglePanel();
    }
    roles_.layout.Form_Resize();
}

void VideoRoom::TakePane() {
    window_comes_ = true;
    state_.VideoPlaying = true;
    pane_.picVideo.SetVisible(true);
}

/// Height and width change places from one video to the next: they are kept as height and width, and read as
/// width and height. The second number is read from as many characters at the end as the first has, comma or
/// not. A window that is not in its normal state keeps its place and size.
void VideoRoom::RestoreSize() {
    const std::string& size = state_.VideoSizeText;
    if (size == kMaximisedSize) {
        form_.SetState(controls::WindowState::Maximised);
        return;
    }
    const std::size_t comma = base::InStr(size, ",");
    if (comma == 0 || !IsNormal()) return;
    form_.SetWidth(base::Val(base::Left(size, comma - 1)));
    form_.SetHeight(base::Val(base::Right(size, comma - 1)));
}

void VideoRoom::PrepareLightShow() {
    window_comes_ = true;
    SetWindowCaption("Visualisations");
    // A video ended the show, and Stop took its place away; it is still on, so the next song brings it back.
    form_.tmrVisual.SetEnabled(true);
    if (pane_.picVideo.Visible() || roles_.favourites.IsPanelClosed()) return;
    pane_.picVideo.SetVisible(true);
    roles_.layout.Form_Resize();
}

void VideoRoom::PrepareMusic() {
    window_comes_ = false;
    TakeWindowAway();
}

void VideoRoom::TakeWindowAway() {
    pane_.picVideo.SetVisible(false);
    roles_.hole.CloseHole();
    roles_.layout.Form_Resize();
}

void VideoRoom::ShowOrHideWindow() {
    if (!state_.VideoPlaying && !state_.VisualisationOn) {
        form_.SetState(controls::WindowState::Normal);
        HideWindow();
    } else if (!form_.Visible()) {
        form_.Show();
        // It comes to the screen where its hole is.
        FollowMainWindow();
    } else if (!state_.resized) {
        // An attached window stays attached from song to song.
        state_.counter = 0;
    }
    window_comes_ = false;
}

void VideoRoom::HideWindow() {
    window_comes_ = false;
    form_.Hide();
}

void VideoRoom::SetWindowCaption(std::string_view caption) {
    form_.SetCaption(caption);
    form_.lblVideoCaption.SetCaption(caption);
}

void VideoRoom::PutVideo() {
    int width = WholeInt(form_.Width() / controls::kTwipsPerPixel);
    int height = WholeInt(form_.Height() / controls::kTwipsPerPixel);
    mci_.MciPutWindow(ParentHandle(), TextOf(state_.CurrentAlias), 0, 0, width, height);
}

void VideoRoom::SavePlace() {
    state_.VideoLeft = Whole16(form_.Left());
    state_.VideoSizeText = IsMaximised()
                               ? std::string(kMaximisedSize)
                               : base::SingleToText(form_.Height()) + "," + base::SingleToText(form_.Width());
}

void VideoRoom::ClearPicture() {
    form_.picVid.SetBackColor(0x000000);
}

void VideoRoom::GivePaneBack() {
    ClosePane();
    roles_.layout.PlaceFavouritesPanel();
}

void VideoRoom::theresize() {
    state_.counter = OneMore(state_.counter);
    if (state_.counter != 2) return;
    state_.resized = true;
    roles_.hole.CloseHole();
    roles_.window.Refresh();
    // Without the hole it is seen only in front.
    form_.BringToFront();
}

void VideoRoom::Attach() {
    state_.counter = 0;
    if (!form_.Visible()) {
        TakeWindowAway();
        return;
    }
    form_.SetState(controls::WindowState::Normal);
    theresize();
    state_.resized = false;
    MakeRoomForPane();
    roles_.hole.MakeHole();
}

/// The panel may have been closed while the window floated.
void VideoRoom::MakeRoomForPane() {
    if (roles_.favourites.IsPanelClosed()) roles_.favourites.TogglePanel();
    if (pane_.picVideo.Visible()) return;
    pane_.picVideo.SetVisible(true);
    roles_.layout.Form_Resize();
}

/// The hole goes with a main window that is minimised, so the window does as well.
void VideoRoom::FollowMainWindow() {
    if (state_.resized || IsMaximised()) return;
    const bool is_away = roles_.window.State() == controls::WindowState::Minimised;
    if (form_.Visible())
        form_.SetState(is_away ? controls::WindowState::Minimised : controls::WindowState::Normal);
    if (!IsNormal()) return;
    const auto& hole = pane_.picVideo;
    form_.Move(roles_.window.Left() + hole.Left() + kHoleOffsetLeft,
               roles_.window.Top() + hole.Top() + kHoleOffsetTop, hole.Width(), hole.Height());
}

void VideoRoom::frmVideo_Activate() {
    // With the panel closed it would be attached where nobody sees it.
    const bool must_float = state_.resized && roles_.favourites.IsPanelClosed();
    theresize();
    const bool was_detached = state_.resized;
    state_.resized = must_float;
    state_.counter = 0;
    // It is attached again, so it follows the main window; below it, it is seen through the hole only.
    if (!was_detached || !IsVideoAttached() || IsMaximised()) return;
    MakeRoomForPane();
    roles_.hole.MakeHole();
}

void VideoRoom::frmVideo_Resize() {
    const double width = form_.ContentWidth();
    const double height = form_.ContentHeight();
    auto& picVid = form_.picVid;
    picVid.Move(0, 0, width, height);
    form_.lblVideoCaption.Move(0, 0, width - kMaxButtonWidth, kCaptionHeight);
    form_.cmdMax.Move(width - kMaxButtonWidth, 0, kMaxButtonWidth, kCaptionHeight);
    for (controls::Image* picture : {&form_.imgAnim1, &form_.imgAnim2}) {
        picture->SetLeft((picVid.Width() - picture->Width()) / 2);
        picture->SetTop((picVid.Height() - picture->Height()) / 2);
    }
    PutVideo();
}

void VideoRoom::cmdMax_Click() {
    if (form_.cmdMax.Caption() == kNormalSign) {
        form_.cmdMax.SetCaption(kMaximisedSign);
        form_.SetState(controls::WindowState::Maximised);
        return;
    }
    form_.cmdMax.SetCaption(kNormalSign);
    form_.SetState(controls::WindowState::Normal);
    Attach();
}

void VideoRoom::lblVideoCaption_MouseDown() {
    state_.resized = true;
    roles_.hole.CloseHole();
    CaptionDragging_ = true;
    form_.BringToFront();
}

/// The pressed place is not taken off: the window's corner runs after the pointer. A maximised one stays.
void VideoRoom::lblVideoCaption_MouseMove(double x, double y) {
    if (!CaptionDragging_ || !IsNormal()) return;
    form_.Move(form_.Left() + x, form_.Top() + y, form_.Width(), form_.Height());
}

void VideoRoom::mnuFullScreen_Click() {
    if (roles_.window.State() == controls::WindowState::Maximised) return;
    if (roles_.window.State() == controls::WindowState::Minimised) roles_.window.Show();
    roles_.window.SetState(controls::WindowState::Maximised);
}

}  // namespace player
