// The splitter between the upper library lists and the tracks.
#pragma once

#include "controls/Event.h"
#include "controls/Frame.h"
#include "player/Outgoing.h"
#include "player/PlayerControls.h"

namespace player {

class SplitterRoom final {
public:
    SplitterRoom(SplitterControls& controls, SplitListView lists, const controls::Frame& fraControls,
                 MainWindow& window);

    /// Shares the height anew by the splitter's place.
    void MoveSlider();

private:
    void lblSlider_MouseMove(double y);
    void ShareHeight();

    SplitterControls& controls_;
    SplitListView lists_;
    const controls::Frame& fraControls_;
    MainWindow& window_;
    bool SliderDragging_ = false;
    controls::EventClaims claims_;
};

}  // namespace player
