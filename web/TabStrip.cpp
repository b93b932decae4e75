#include "web/TabStrip.h"

namespace web {

namespace {

constexpr std::string_view kDarkFace = "\\images\\dark.bmp";
constexpr std::string_view kPaleFace = "/images/pale.bmp";
/// A window that grows shows more of the line.
constexpr double kPastEveryEdge = 1'000'000;

}  // namespace

void TabStrip::MakeAllTabsDark() {
    for (int i = 1; i < controls_.tabtab.Count(); ++i) {
        controls_.tabtab(i).SetPicture(kDarkFace);
        controls_.tabLabel(i).SetLook("tab");
        controls_.tabClose(i).SetLook("tab close");
    }
}

void TabStrip::MakeMusicTabDark() {
    controls_.imgMusicTab.SetPicture("/images/musictab_dark.bmp");
    controls_.tabMusicClose.SetLook("tab close");
}

void TabStrip::MakeMusicTabPale() {
    controls_.imgMusicTab.SetPicture("/images/musictab_pale.bmp");
    controls_.tabMusicClose.SetLook("tab close front");
}

void TabStrip::MakePale(int index) {
    controls_.tabtab(index).SetPicture(kPaleFace);
    controls_.tabLabel(index).SetLook("tab front");
    controls_.tabClose(index).SetLook("tab close front");
}

double TabStrip::FirstLeft() const {
    return controls_.imgMusicTab.Visible() ? kFirstTabLeft : kFirstTabLeftWithoutMusic;
}

void TabStrip::Place(int index, double left) {
    controls_.tabtab(index).SetLeft(left);
    PlaceLabelAndClose(index);
}

void TabStrip::PlaceShownTabs(double left) {
    for (int i = 1; i < controls_.Browser.Count(); ++i) {
        if (!controls_.Browser(i).Visible()) continue;
        Place(i, left);
        left += controls_.tabtab(0).Width();
    }
}

void TabStrip::PlaceLabelAndClose(int index) {
    const double left = controls_.tabtab(index).Left();
    controls_.tabLabel(index).SetLeft(left + kTabLabelOffset);
    controls_.tabClose(index).SetLeft(left + kTabCloseOffset);
}

void TabStrip::Raise(int index) {
    controls_.tabtab(index).BringToFront();
    controls_.tabLabel(index).BringToFront();
    controls_.tabClose(index).BringToFront();
}

void TabStrip::OpenLines(double left, double right) {
    EndLeftLine(left);
    controls_.TabLineRight.Move(right, controls_.TabLineRight.Top(), kPastEveryEdge - right, 0);
}

void TabStrip::RaiseLines() {
    controls_.TabLineLeft.BringToFront();
    controls_.TabLineRight.BringToFront();
}

}  // namespace web
