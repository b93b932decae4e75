#include "player/TitleRoom.h"

#include <array>
#include <string>
#include <string_view>

#include "base/MediaKinds.h"
#include "base/Text.h"
#include "controls/Arrange.h"

namespace player {

namespace {

/// Extensions of files that play when they are dropped on the title.
constexpr std::array<std::string_view, 8> kDroppedKinds{"mpg", "peg", "mp3", "mid",
                                                        "wav", "wma", "wmv", "avi"};

constexpr double kStep = 40;
constexpr double kTurningLeft = 100;
constexpr double kRightMargin = 200;
constexpr double kRestLeft = 5;
/// The label is as wide as its text. For the skin's 13 pixel letters 8 pixels a character do, and 3 more for
/// each further byte of a character, since most wide letters take three.
constexpr double kCharacterWidth = controls::Px(8);
constexpr double kFurtherByteWidth = controls::Px(3);

}  // namespace

TitleRoom::TitleRoom(TitleControls& controls, TitleState& state, PlaybackRoom& playback,
                     roles::Highlights& highlights)
    : controls_(controls), state_(state), playback_(playback), highlights_(highlights) {
    const auto drop = [this](const controls::DropData& data, double, double) { Title_OLEDragDrop(data); };
    claims_.Claim(controls_.picTrackTitle.OLEDragDrop, drop);
    claims_.Claim(controls_.lblTrack.OLEDragDrop, drop);
    claims_.Claim(controls_.picTrackTitle.Click, [this] { trackscrollclick(); });
    claims_.Claim(controls_.picTrackTitle.MouseMove, [this] { highlights_.NoMouseOvers(); });
    claims_.Claim(controls_.lblTrack.Click, [this] { trackscrollclick(); });
    claims_.Claim(controls_.lblTrack.Change, [this] { lblTrack_Change(); });
}

void TitleRoom::ScrollStep() {
    if (!state_.ScrollTitle) {
        dontscrolltitle();
        return;
    }
    if (state_.title_rest > 0) {
        --state_.title_rest;
        return;
    }
    auto& lblTrack = controls_.lblTrack;
    const double width = controls_.picTrackTitle.Width();
    if (lblTrack.Right() >= width - kRightMargin || lblTrack.Left() > kTurningLeft) {
        lblTrack.SetLeft(lblTrack.Left() - kStep);
    } else if (lblTrack.Top() > controls_.picTrackTitle.Height()) {
        lblTrack.Move(width, 0, lblTrack.Width(), lblTrack.Height());
    } else {
        lblTrack.SetTop(lblTrack.Top() + kStep);
    }
}

void TitleRoom::ShowWhether(bool stopped) {
    const std::string_view look = stopped ? "display off" : "display";
    if (controls_.lblTrack.Look() == look) return;
    controls_.lblTrack.SetLook(look);
    if (stopped) Rest();
}

void TitleRoom::dontscrolltitle() {
    state_.ScrollTitle = false;
    Rest();
}

void TitleRoom::Rest() {
    controls_.lblTrack.Move(kRestLeft, 0, controls_.lblTrack.Width(), controls_.lblTrack.Height());
}

void TitleRoom::Clear() {
    controls_.lblTrack.SetCaption("");
}

void TitleRoom::trackscrollclick() {
    if (state_.ScrollTitle) {
        dontscrolltitle();
    } else {
        state_.ScrollTitle = true;
    }
}

/// The tool tips name the song in full, wherever the title is on its way.
void TitleRoom::lblTrack_Change() {
    const std::string& title = controls_.lblTrack.Caption();
    controls_.lblTrack.SetToolTipText(title);
    controls_.picTrackTitle.SetToolTipText(title);
    const std::size_t length = base::Len(title);
    controls_.lblTrack.SetWidth(static_cast<double>(length) * kCharacterWidth +
                                static_cast<double>(title.size() - length) * kFurtherByteWidth);
}

/// Of several files the last one plays on, since each takes the place of the one before it.
void TitleRoom::Title_OLEDragDrop(const controls::DropData& data) {
    for (const std::string& path : data.Files)
        if (base::HasExtension(path, kDroppedKinds)) playback_.PlaySong(path);
}

}  // namespace player
