#include "player/SplitterRoom.h"

namespace player {

namespace {

constexpr double kLeastTracksHeight = 540;
constexpr double kLeastArtistsHeight = 300;
constexpr double kHighestTop = 400;
constexpr double kRoomAboveControls = 360;
constexpr double kBackFromControls = 500;
constexpr double kDragPart = 3;  ///< the splitter follows a third of the way

}  // namespace

SplitterRoom::SplitterRoom(SplitterControls& controls, SplitListView lists, const controls::Frame& panel,
                           roles::Layout& layout)
    : controls_(controls), lists_(lists), panel_(panel), layout_(layout) {
    auto& lblSlider = controls_.lblSlider;
    claims_.Claim(lblSlider.MouseDown, [this] { SliderDragging_ = true; });
    claims_.Claim(lblSlider.MouseMove, [this](int, int, double, double y) { lblSlider_MouseMove(y); });
    claims_.Claim(lblSlider.MouseUp, [this] { SliderDragging_ = false; });
}

void SplitterRoom::lblSlider_MouseMove(double y) {
    if (!SliderDragging_) return;
    controls_.lblSlider.SetTop(controls_.lblSlider.Top() + y / kDragPart);
    MoveSlider();
    layout_.PlaceBelowSplitter();
}

void SplitterRoom::MoveSlider() {
    if (lists_.lstTracks.Height() < kLeastTracksHeight) {
        lists_.lstTracks.SetHeight(kLeastTracksHeight);
    } else if (lists_.lstArtists.Height() < kLeastArtistsHeight) {
        lists_.lstArtists.SetHeight(kLeastArtistsHeight);
    } else if (controls_.lblSlider.Top() <= kHighestTop) {
        controls_.lblSlider.SetTop(kHighestTop);
    } else {
        ShareHeight();
    }
}

void SplitterRoom::ShareHeight() {
    auto& lblSlider = controls_.lblSlider;
    if (lblSlider.Bottom() >= panel_.Top() - kRoomAboveControls) {
        lblSlider.SetTop(panel_.Top() - (kBackFromControls + lblSlider.Height()));
    }
    lists_.lstArtists.SetHeight(lblSlider.Top() - lists_.lstArtists.Top());
    lists_.lstPlayLists.SetHeight(lists_.lstArtists.Height());
    lists_.lstTracks.SetTop(lblSlider.Bottom());
    lists_.lstTracks.SetHeight(panel_.Top() - (lists_.lstArtists.Height() + kRoomAboveControls));
}

}  // namespace player
