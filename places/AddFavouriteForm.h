// The dialog that adds favourites and groups, and, with its lower half outside the window, deletes groups.
#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/TextBox.h"

namespace places {

/// Heights of the two layouts, in twips.
inline constexpr double kAddHeight = 4950;
inline constexpr double kDeleteHeight = 2775;

struct AddFavouriteForm {
    AddFavouriteForm();

    controls::Form frmAdd{"frmAdd", "Add Favourite", controls::BorderStyle::FixedDialog};
    controls::Label lblGroup{"lblGroup", "Group name:"};
    controls::ListBox lstGroup{"lstGroup", controls::Sorted::Yes};
    controls::CommandButton cmdDelete{"cmdDelete", "Delete"};
    controls::CommandButton cmdNew{"cmdNew", "New Group"};
    controls::Label lblURL{"lblURL", "Favourite URL:"};
    controls::TextBox txtURL{"txtURL"};
    controls::Label lblName{"lblName", "Favourite name:"};
    controls::TextBox txtName{"txtName"};
    controls::CommandButton cmdCancel{"cmdCancel", "Cancel"};
    controls::CommandButton cmdAdd{"cmdAdd", "Add"};
    // Over cmdDelete and cmdNew while groups are deleted.
    controls::CommandButton cmdCancel2{"cmdCancel2", "Cancel"};
    controls::CommandButton cmdDelete2{"cmdDelete2", "Delete"};
};

}  // namespace places
