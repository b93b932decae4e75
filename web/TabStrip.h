// Places and faces of the tab strip. Does not know which tab is in front; the callers say it.
#pragma once

#include "web/WebControls.h"

namespace web {

class TabStrip final {
public:
    explicit TabStrip(TabControls& controls) : controls_(controls) {}

    void MakeAllTabsDark();
    void MakeMusicTabDark();
    void MakeMusicTabPale();
    void MakePale(int index);

    /// Left edge of the first web tab: after the music tab, or after the small button.
    double FirstLeft() const;
    /// Puts face, label and close target of a tab at `left`.
    void Place(int index, double left);
    /// Places the shown tabs side by side from `left` on.
    void PlaceShownTabs(double left);
    /// Puts label and close target where the tab's face is.
    void PlaceLabelAndClose(int index);
    /// Face, label and close target above everything else in the strip, in that order.
    void Raise(int index);
    /// The lines leave the stretch from `left` to `right` free.
    void OpenLines(double left, double right);
    /// The left line ends at `right`.
    void EndLeftLine(double right) { controls_.TabLineLeft.SetX2(right); }
    void RaiseLines();

private:
    TabControls& controls_;
};

}  // namespace web
