#include "library/AddMediaLayout.h"

#include <algorithm>

#include "controls/Arrange.h"

namespace library {
namespace {

using controls::Px;

// All in pixels.
constexpr double kMargin = 16;
constexpr double kGap = 8;
constexpr double kSection = 16;
constexpr double kHeading = 16;
constexpr double kColumn = 240;
constexpr double kThreeRows = 76;
constexpr double kButton = 32;
constexpr double kAddButton = 120;
constexpr double kBackButton = 96;
constexpr double kNotice = 20;
constexpr double kPanelWidth = 320;
constexpr double kPanelHeight = 120;

// Drive and pattern keep their three rows; the folder takes what is left between them.
void PlaceSearchColumn(AddMediaForm& form, double height) {
    const double button = height - kMargin - kButton;
    const double pattern = button - kGap - kThreeRows;
    const double folder = kMargin + kHeading + kGap + kThreeRows + kSection;
    const double folder_list = folder + kHeading + kGap;
    Place(form.lblDrive, kMargin, kMargin, kColumn, kHeading);
    Place(form.Drive1, kMargin, kMargin + kHeading + kGap, kColumn, kThreeRows);
    Place(form.lblFolder, kMargin, folder, kColumn, kHeading);
    Place(form.Dir1, kMargin, folder_list, kColumn, pattern - kGap - kHeading - kSection - folder_list);
    Place(form.lblPattern, kMargin, pattern - kHeading - kGap, kColumn, kHeading);
    Place(form.lstPattern, kMargin, pattern, kColumn, kThreeRows);
    Place(form.cmdGetFiles, kMargin, button, kColumn, kButton);
}

void PlaceButtons(AddMediaForm& form, double left, double top, double width) {
    Place(form.fraControls, left, top, width, kButton);
    PlaceTwins(0, 0, kAddButton, kButton, form.imgAdd, form.imgAddOver);
    PlaceTwins(kAddButton + kGap, 0, kAddButton, kButton, form.imgAddAll, form.imgAddAllOver);
    PlaceTwins(width - kBackButton, 0, kBackButton, kButton, form.imgBack, form.imgBackOver);
}

// The panel stands in the middle of the files.
void PlacePanel(AddMediaForm& form, double left, double top, double width, double height) {
    const double inner = kPanelWidth - 2 * kMargin;
    Place(form.fraSearch, left + (width - kPanelWidth) / 2, top + (height - kPanelHeight) / 2, kPanelWidth,
          kPanelHeight);
    Place(form.lblSearch, kMargin, kMargin, inner, kHeading);
    Place(form.lblDirectory, kMargin, 40, inner, 20);
    Place(form.lblProgress, kMargin, 40, inner, 20);
    Place(form.pbProgress, kMargin, kPanelHeight - kMargin - 18, inner - kBackButton - kMargin, kGap);
    Place(form.cmdCancel, kPanelWidth - kMargin - kBackButton, kPanelHeight - kMargin - 28, kBackButton, 28);
}

void PlaceFilesColumn(AddMediaForm& form, double width, double height) {
    constexpr double kCount = 56;
    const double left = kMargin + kColumn + kMargin;
    const double column = width - left - kMargin;
    const double count_left = left + column - kCount;
    const double list_top = kMargin + kHeading + kGap;
    const double buttons = height - kMargin - kButton;
    const double notice = buttons - kGap - kNotice;
    const double list_height = notice - kGap - list_top;
    Place(form.lblFiles, left, kMargin, 160, kHeading);
    Place(form.lblTotalFilesLabel, count_left - kGap - 96, kMargin, 96, kHeading);
    Place(form.lblTotalFiles, count_left, kMargin, kCount, kHeading);
    Place(form.lstFiles, left, list_top, column, list_height);
    Place(form.lblNotice, left, notice, column, kNotice);
    PlaceButtons(form, left, buttons, column);
    PlacePanel(form, left, list_top, column, list_height);
}

}  // namespace

bool KeepLeastSize(controls::Form& frmAddMedia) {
    const double width = std::max(frmAddMedia.ContentWidth(), Px(kLeastAddMediaWidth));
    const double height = std::max(frmAddMedia.ContentHeight(), Px(kLeastAddMediaHeight));
    if (width == frmAddMedia.ContentWidth() && height == frmAddMedia.ContentHeight()) return false;
    frmAddMedia.SetContentSize(width, height);
    return true;
}

void PlaceControls(AddMediaForm& form) {
    const double width = form.frmAddMedia.ContentWidth() / controls::kTwipsPerPixel;
    const double height = form.frmAddMedia.ContentHeight() / controls::kTwipsPerPixel;
    Place(form.imgBG, 0, 0, width, height);
    PlaceSearchColumn(form, height);
    PlaceFilesColumn(form, width, height);
}

}  // namespace library
