#include "places/AddFavouriteForm.h"

#include "controls/Arrange.h"

namespace places {
namespace {

using controls::Px;

constexpr double kWidth = 376;

}  // namespace

AddFavouriteForm::AddFavouriteForm() {
    frmAdd.SetContentSize(Px(kWidth), 0);
    frmAdd.SetHeight(kAddHeight);
    frmAdd.Add(lblGroup, lstGroup, cmdDelete, cmdNew, lblURL, txtURL, lblName, txtName, cmdCancel, cmdAdd,
               cmdCancel2, cmdDelete2);
    Place(lblGroup, 16, 8, 344, 20);
    Place(lstGroup, 16, 30, 344, 80);
    Place(cmdDelete, 16, 118, 164, 30);
    Place(cmdNew, 196, 118, 164, 30);
    Place(cmdCancel2, 16, 118, 164, 30);
    Place(cmdDelete2, 196, 118, 164, 30);
    Place(lblURL, 16, 164, 344, 20);
    Place(txtURL, 16, 186, 344, 26);
    Place(lblName, 16, 214, 344, 20);
    Place(txtName, 16, 236, 344, 26);
    Place(cmdCancel, 16, 270, 164, 30);
    Place(cmdAdd, 196, 270, 164, 30);

    cmdAdd.SetLook("accent");
    cmdDelete2.SetLook("accent");
    cmdCancel.SetCancel(true);
    lstGroup.SetAccessibleName("Group");
    lstGroup.SetHint("No group yet");
    txtURL.SetAccessibleName("Favourite URL");
    txtName.SetAccessibleName("Favourite name");
    cmdCancel2.SetVisible(false);
    cmdDelete2.SetVisible(false);
}

}  // namespace places
