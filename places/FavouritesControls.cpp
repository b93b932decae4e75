#include "places/FavouritesControls.h"

namespace places {
namespace {

constexpr double kPanelTop = 1290;
constexpr double kPanelHeight = 5700;
constexpr double kPanelWidth = 2580;
constexpr double kMargin = 120;
constexpr double kButtonTop = 5220;
constexpr double kButtonWidth = 750;
constexpr double kButtonHeight = 360;

void PlaceTwins(controls::Image& plain, controls::Image& over, double left, std::string_view name) {
    for (controls::Image* image : {&plain, &over}) {
        image->Move(left, kButtonTop, kButtonWidth, kButtonHeight);
        image->SetAccessibleName(name);
        image->SetToolTipText(name);
    }
    over.SetVisible(false);
}

}  // namespace

FavouritesControls::FavouritesControls() {
    const double inside = kPanelWidth - 2 * kMargin;
    cmdFavs.Move(kClosedLeft, kPanelTop, 210, kPanelHeight);
    fraFavs.Move(kMargin, kPanelTop, kPanelWidth, kPanelHeight);
    lblFavs.Move(kMargin, kMargin, inside, 300);
    lstFavs.Move(kMargin, 480, inside, 4620);
    lstFavsAlt.Move(kMargin, 480, inside, 4620);
    PlaceTwins(imgAdd, imgAddOver, kMargin, "Add favourite");
    PlaceTwins(imgdelete, imgdeleteover, kMargin + kButtonWidth + 45, "Delete favourite or group");
    PlaceTwins(imgView, imgViewOver, kMargin + 2 * (kButtonWidth + 45), "Show groups or all favourites");

    fraFavs.SetLook("panel");
    lblFavs.SetLook("heading");
    cmdFavs.SetAccessibleName("Favourites panel");
    lstFavs.SetAccessibleName("Favourites by group");
    lstFavsAlt.SetAccessibleName("All favourites");
    for (controls::Control* hidden : std::initializer_list<controls::Control*>{
             &fraFavs, &lblFavs, &lstFavs, &lstFavsAlt, &lstTest, &lstFavs2, &lblEntryCount}) {
        hidden->SetVisible(false);
    }
}

void FavouritesControls::PutInto(controls::Container& container) {
    container.Add(lstTest, lstFavs2, lblEntryCount, fraFavs, cmdFavs);
    fraFavs.Add(lblFavs, lstFavs, lstFavsAlt, imgAdd, imgdelete, imgView, imgAddOver, imgdeleteover,
                imgViewOver);
}

}  // namespace places
