#include "places/AddFavouriteRoom.h"

#include "base/Text.h"
#include "store/Key.h"
#include "store/Tables.h"

namespace places {
namespace {

/// The group whose favourites open at the start; it stays.
constexpr std::string_view kHomePages = "Home Pages";

bool IsBlank(std::string_view text) {
    return base::Trim(text).empty();
}

}  // namespace

AddFavouriteRoom::AddFavouriteRoom(AddFavouriteForm& form, FavouritesTable table, FavouritesRoom& panel,
                                   const bool& mainclose, AddFavouriteRoles others, AddFavouritePorts ports)
    : form_(form), table_(table), panel_(panel), mainclose_(mainclose), others_(others), ports_(ports) {
    ClaimDialog();
}

void AddFavouriteRoom::ClaimDialog() {
    const auto text_key = [this](int key_code, int) { Text_KeyDown(key_code); };
    claims_.Claim(form_.frmAdd.Activate, [this] { Form_Activate(); });
    claims_.Claim(form_.frmAdd.QueryUnload, [this](bool& cancel) { Form_QueryUnload(cancel); });
    claims_.Claim(form_.lstGroup.KeyDown, [this](int key_code, int) { lstGroup_KeyDown(key_code); });
    claims_.Claim(form_.cmdDelete.Click, [this] { cmdDelete_Click(); });
    claims_.Claim(form_.cmdNew.Click, [this] { cmdNew_Click(); });
    claims_.Claim(form_.txtURL.Change, [this] { txtURL_Change(); });
    claims_.Claim(form_.txtURL.KeyDown, text_key);
    claims_.Claim(form_.txtName.KeyDown, text_key);
    claims_.Claim(form_.cmdCancel.Click, [this] { cmdCancel_Click(); });
    claims_.Claim(form_.cmdAdd.Click, [this] { cmdAdd_Click(); });
    claims_.Claim(form_.cmdCancel2.Click, [this] { cmdCancel_Click(); });
    claims_.Claim(form_.cmdDelete2.Click, [this] { cmdDelete_Click(); });
}

void AddFavouriteRoom::SettleAtStart() {
    Form_Activate();
    // The end of the program has unloaded the main window, which must not come back.
    if (!IsOver()) cmdCancel_Click();
}

void AddFavouriteRoom::Form_Activate() {
    form_.lstGroup.Clear();
    ports_.loop.Yield();
    panel_.populatefavs();
}

void AddFavouriteRoom::Form_QueryUnload(bool& cancel) {
    if (IsOver()) return;
    cancel = true;
    cmdCancel_Click();
}

// The activation yields; the dialog may be cancelled, or unloaded, before it has its layout.
void AddFavouriteRoom::ShowLayout(bool deleting) {
    form_.frmAdd.Show();
    if (!form_.frmAdd.Visible()) return;
    form_.frmAdd.SetHeight(deleting ? kDeleteHeight : kAddHeight);
    form_.cmdCancel2.SetVisible(deleting);
    form_.cmdDelete2.SetVisible(deleting);
    EnableSeen(deleting);
    others_.window.SetEnabled(false);
    form_.frmAdd.SetCaption(deleting ? "Delete Group" : "Add Favourite");
}

// What lies below the window's edge, or below another button, must not be reached by the keyboard either.
void AddFavouriteRoom::EnableSeen(bool deleting) {
    controls::Control* const unseen[] = {&form_.cmdDelete, &form_.cmdNew,    &form_.txtURL,
                                         &form_.txtName,   &form_.cmdCancel, &form_.cmdAdd};
    for (controls::Control* control : unseen)
        control->SetEnabled(!deleting);
    form_.cmdCancel.SetCancel(!deleting);
    form_.cmdCancel2.SetCancel(deleting);
}

void AddFavouriteRoom::OpenToAdd(std::string_view name, std::string_view address) {
    ShowLayout(false);
    form_.txtName.SetText(name);
    form_.txtURL.SetText(address);
}

void AddFavouriteRoom::OpenToDelete() {
    ShowLayout(true);
}

void AddFavouriteRoom::OfferAddress(std::string_view address) {
    form_.frmAdd.Show();
    form_.txtURL.SetText(address);
}

void AddFavouriteRoom::txtURL_Change() {
    const std::string& url = form_.txtURL.Text();
    if (base::EndsWith(url, "///")) form_.txtURL.SetText(std::string(url, 0, url.size() - 1));
}

void AddFavouriteRoom::Text_KeyDown(int key_code) {
    if (key_code == controls::kKeyEnter) cmdAdd_Click();
    if (key_code == controls::kKeyEscape) cmdCancel_Click();
}

void AddFavouriteRoom::lstGroup_KeyDown(int key_code) {
    if (key_code == controls::kKeyEscape) cmdCancel_Click();
    if (key_code != controls::kKeyEnter) return;
    if (form_.cmdDelete2.Visible()) {
        cmdDelete_Click();
    } else {
        cmdAdd_Click();
    }
}

// The number follows the one that the panel last read, not the last row: in a table that was emptied the
// numbers go on.
void AddFavouriteRoom::AddRow(const FavouriteRow& row) {
    AppendFavourite(table_.datFav.Recordset(), store::KeyAfter(table_.lblEntryCount.Caption()), row);
}

void AddFavouriteRoom::cmdAdd_Click() {
    if (IsBlank(form_.txtName.Text()) || IsBlank(form_.lstGroup.Text()) || IsBlank(form_.txtURL.Text())) {
        ports_.dialogs.MsgBox("Please select a group, name and URL");
        return;
    }
    AddRow({.group = std::string(form_.lstGroup.Text()),
            .friend_name = std::string(kFavouritePrefix).append(form_.txtName.Text()),
            .url = form_.txtURL.Text()});
    others_.lists.Command1();
    others_.window.Show();
    panel_.lstFavs_Click();
    others_.window.SetEnabled(true);
    form_.frmAdd.Hide();
    panel_.ClearFavourites();
    panel_.populatefavs();
}

void AddFavouriteRoom::cmdNew_Click() {
    const std::string group =
        ports_.dialogs.InputBox("What would you like to call the new group?", "New Group", "New_Group");
    if (IsBlank(group)) return;
    AddRow(GroupRow(group));
    others_.lists.Command1();
    panel_.lstFavs_Click();
    form_.lstGroup.AddItem(group);
}

void AddFavouriteRoom::cmdDelete_Click() {
    const std::string group(form_.lstGroup.Text());
    if (group.empty()) return;
    if (group == kHomePages) {
        ports_.dialogs.MsgBox("You can not delete this favourites group.");
        return;
    }
    if (ports_.dialogs.MsgBox("Are you sure you want to delete this group of favourites?\r\n"
                              "All the favourites in the group will also be lost.",
                              ports::BoxButtons::YesNo, "Delete Group") != ports::BoxAnswer::Yes) {
        return;
    }
    DeleteGroup(group);
    form_.lstGroup.RemoveItem(form_.lstGroup.ListIndex());
}

// The record set stays the favourites': the new record source takes effect at no refresh.
void AddFavouriteRoom::DeleteGroup(const std::string& group) {
    table_.datFav.SetRecordSource(store::kFavouritesToDelete);
    store::RecordSet& rows = table_.datFav.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (rows.Text(store::tblFavs::GroupName) == group) rows.Delete();
    }
}

void AddFavouriteRoom::cmdCancel_Click() {
    others_.window.Show();
    others_.window.SetEnabled(true);
    panel_.lstFavs_Click();
    form_.frmAdd.Hide();
}

}  // namespace places
