// The dialog of the favourites. While it is open the main window is disabled, which replaces a modal
// dialog; it is hidden, never unloaded, until the program ends.
#pragma once

#include <string>
#include <string_view>

#include "controls/Event.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "places/AddFavouriteForm.h"
#include "places/FavouritesRoom.h"
#include "places/FavouritesTable.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "roles/TrackLists.h"
#include "roles/Window.h"
#include "store/DataSource.h"

namespace places {

struct AddFavouriteRoles {
    roles::Window& window;
    roles::TrackLists& lists;
};

struct AddFavouritePorts {
    ports::Dialogs& dialogs;
    ports::EventLoop& loop;
};

class AddFavouriteRoom final : public FavouritesDialog {
public:
    /// The panel may be built after the dialog. `mainclose`: the program ends, the window may unload.
    AddFavouriteRoom(AddFavouriteForm& form, FavouritesTable table, FavouritesRoom& panel,
                     const bool& mainclose, AddFavouriteRoles others, AddFavouritePorts ports);

    /// What opening and cancelling the dialog does, without showing it: the start's way to fill the panel.
    void SettleAtStart();

    // FavouritesDialog
    void OpenToAdd(std::string_view name, std::string_view address) override;
    void OpenToDelete() override;
    void OfferAddress(std::string_view address) override;
    void ClearGroups() override { form_.lstGroup.Clear(); }
    void AddGroup(std::string_view name) override { form_.lstGroup.AddItem(name); }

private:
    void Form_Activate();
    void Form_QueryUnload(bool& cancel);
    void cmdAdd_Click();
    void cmdNew_Click();
    void cmdDelete_Click();
    void cmdCancel_Click();
    void txtURL_Change();
    void Text_KeyDown(int key_code);
    void lstGroup_KeyDown(int key_code);

    void ClaimDialog();
    bool IsOver() const { return mainclose_ || ports_.loop.IsEnding(); }
    void ShowLayout(bool deleting);
    void EnableSeen(bool deleting);
    void AddRow(const FavouriteRow& row);
    void DeleteGroup(const std::string& group);

    AddFavouriteForm& form_;
    FavouritesTable table_;
    FavouritesRoom& panel_;
    const bool& mainclose_;
    AddFavouriteRoles others_;
    AddFavouritePorts ports_;
    controls::EventClaims claims_;
};

}  // namespace places
