// The splitter between the upper library lists and the tracks.
#pragma once

#include "controls/Event.h"
#include "controls/Frame.h"
#include "player/PlayerControls.h"
#include "roles/Layout.h"

namespace player {

class SplitterRoom final {
public:
    SplitterRoom(SplitterControls& controls, SplitListView lists, const controls::Frame& panel,
                 roles::Layout& layout);

private:
    void lblSlider_MouseMove(double y);
    /// Shares the height again by the splitter's place.
    void MoveSlider();
    void ShareHeight();

    SplitterControls& controls_;
    SplitListView lists_;
    const controls::Frame& panel_;
    roles::Layout& layout_;
    bool SliderDragging_ = false;
    controls::EventClaims claims_;
};

}  // namespace player
