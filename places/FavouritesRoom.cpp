#include "places/FavouritesRoom.h"

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "controls/Arrange.h"
#include "store/Tables.h"

namespace places {
namespace {

constexpr std::string_view kAllFavouritesLine = "  [All Favourites]";
constexpr std::string_view kGroupsLine = "  [Favourite Groups]";
/// Stands between group and favourite while the rows are sorted.
constexpr std::string_view kBetween = "***";
/// What stands behind the first "*" of a group's own row.
constexpr std::string_view kGroupMark = "** ";
constexpr std::array<std::string_view, 7> kPageFiles = {"gif", "bmp", "jpeg", "jpg", "png", "htm", "html"};

bool IsFavouriteLine(std::string_view line) {
    return base::StartsWith(line, kFavouritePrefix);
}

std::string WithoutStars(std::string_view text) {
    const std::string without = base::Replace(text, "*", "");
    return std::string(base::Trim(without));
}

bool IsPageFile(std::string_view path) {
    const std::string extension = base::LCase(base::Mid(path, base::InStrRev(path, ".") + 1));
    return std::find(kPageFiles.begin(), kPageFiles.end(), extension) != kPageFiles.end();
}

}  // namespace

FavouritesRoom::FavouritesRoom(FavouritesControls& controls, FavouritesMenu& menu, FavouritesDialog& dialog,
                               FavouritesRoles others, ports::Dialogs& dialogs)
    : controls_(controls), dialog_(dialog), others_(others), dialogs_(dialogs) {
    ClaimPanel();
    ClaimMenu(menu);
}

void FavouritesRoom::ClaimPanel() {
    FavouritesControls& panel = controls_;
    const auto hide_twins = [this] { others_.highlights.NoMouseOvers(); };
    const auto take_drop = [this](const controls::DropData& data, double, double) { List_OLEDragDrop(data); };
    claims_.Claim(panel.cmdFavs.Click, [this] { cmdFavs_Click(); });
    claims_.Claim(panel.cmdFavs.MouseMove, hide_twins);
    claims_.Claim(panel.lstFavs.Click, [this] { lstFavs_Click(); });
    claims_.Claim(panel.lstFavs.DblClick, [this] { lstFavs_DblClick(); });
    claims_.Claim(panel.lstFavs.MouseMove, hide_twins);
    claims_.Claim(panel.lstFavs.OLEDragDrop, take_drop);
    claims_.Claim(panel.lstFavsAlt.Click, [this] { lstFavsAlt_Click(); });
    claims_.Claim(panel.lstFavsAlt.DblClick, [this] { lstFavsAlt_DblClick(); });
    claims_.Claim(panel.lstFavsAlt.KeyDown,
                  [this](int key_code, int shift) { lstFavsAlt_KeyDown(key_code, shift); });
    claims_.Claim(panel.lstFavsAlt.MouseMove, hide_twins);
    claims_.Claim(panel.lstFavsAlt.OLEDragDrop, take_drop);
    claims_.Claim(panel.fraFavs.MouseMove, hide_twins);
    ClaimTwin(claims_, panel.imgAdd, panel.imgAddOver);
    claims_.Claim(panel.imgAddOver.Click, [this] { imgAddOver_Click(); });
    ClaimTwin(claims_, panel.imgdelete, panel.imgdeleteover);
    claims_.Claim(panel.imgdeleteover.Click, [this] { imgdeleteover_Click(); });
    ClaimTwin(claims_, panel.imgView, panel.imgViewOver);
    claims_.Claim(panel.imgViewOver.Click, [this] { imgViewOver_Click(); });
}

void FavouritesRoom::ClaimMenu(FavouritesMenu& menu) {
    claims_.Claim(menu.mnuFav.Click, [this] { imgAddOver_Click(); });
    claims_.Claim(menu.mnuAddToFavourites.Click, [this] { imgAddOver_Click(); });
    claims_.Claim(menu.mnuEditFavs.Click, [this] { imgAddOver_Click(); });
    claims_.Claim(menu.mnuRemoveFav.Click, [this] { mnuRemoveFav_Click(); });
    claims_.Claim(menu.mnuRemoveFavGroup.Click, [this] { DeleteFavGroup(); });
    claims_.Claim(menu.mnuViewFavs.Click, [this] { mnuViewFavs_Click(); });
}

void FavouritesRoom::LoadFavs() {
    if (!controls_.datFav.Open(store::kAllFavourites)) return;
    store::RecordSet& rows = controls_.datFav.Recordset();
    if (!rows.MoveLast()) return;
    controls_.lblEntryCount.SetCaption(rows.Text(store::tblFavs::ID));
    rows.MoveFirst();
}

void FavouritesRoom::populatefavs() {
    controls_.datFav.Refresh();
    controls_.lstFavs.Clear();
    controls_.lstFavsAlt.Clear();
    controls_.lstFavs.AddItem(kAllFavouritesLine);
    controls_.lstFavsAlt.AddItem(kGroupsLine);
    controls_.lstTest.Clear();
    controls_.lstFavs2.Clear();
    dialog_.ClearGroups();
    controls_.datFav.Open(store::kAllFavourites);
    store::RecordSet& rows = controls_.datFav.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        const std::string_view name = rows.Text(store::tblFavs::FriendName);
        if (base::Trim(name).empty()) {
            controls_.lstTest.AddItem(rows.Text(store::tblFavs::GroupName));
        } else {
            controls_.lstFavsAlt.AddItem(name);
        }
    }
    for (int i = 0; i < controls_.lstTest.ListCount(); ++i) {
        controls_.lstFavs.AddItem(controls_.lstTest.List(i));
        dialog_.AddGroup(controls_.lstTest.List(i));
    }
}

void FavouritesRoom::lstFavs_Click() {
    if (controls_.lstFavs.ListCount() == 0) return;
    const std::string line(controls_.lstFavs.Text());
    if (line == kAllFavouritesLine) {
        SwitchList();
    } else if (IsFavouriteLine(line)) {
        PrepareAddress(line);
    } else {
        OpenGroup(line);
    }
}

void FavouritesRoom::OpenGroup(const std::string& group) {
    controls_.lstFavs2.Clear();
    SortAllRows();
    PickRowsOf(group);
    controls_.lstFavs.Clear();
    controls_.lstFavs.AddItem(kAllFavouritesLine);
    for (int i = 0; i < controls_.lstFavs2.ListCount(); ++i) {
        const std::string_view line = controls_.lstFavs2.List(i);
        if (!base::Trim(line).empty()) controls_.lstFavs.AddItem(line);
    }
}

// Sorted, a group's own row stands just before its favourites.
void FavouritesRoom::SortAllRows() {
    controls_.lstTest.Clear();
    controls_.datFav.Open(store::kAllFavourites);
    store::RecordSet& rows = controls_.datFav.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        controls_.lstTest.AddItem(std::string(rows.Text(store::tblFavs::GroupName))
                                      .append(kBetween)
                                      .append(rows.Text(store::tblFavs::FriendName)));
    }
}

void FavouritesRoom::PickRowsOf(std::string_view group) {
    for (int i = 0; i < controls_.lstTest.ListCount(); ++i) {
        const std::string_view row = controls_.lstTest.List(i);
        const std::size_t between = base::InStr(row, kBetween);
        const std::string_view behind = base::Mid(row, between + 1);
        if (behind == kGroupMark) {
            controls_.lstFavs2.AddItem(WithoutStars(row));
        } else if (base::Left(row, between - 1) == group) {
            controls_.lstFavs2.AddItem("  " + WithoutStars(behind));
        }
    }
}

// The addresses are copied, since going to one may move the record set.
std::vector<std::string> FavouritesRoom::AddressesOf(std::string_view line) {
    std::vector<std::string> addresses;
    controls_.datFav.Open(store::kAllFavourites);
    store::RecordSet& rows = controls_.datFav.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (rows.Text(store::tblFavs::FriendName) == line)
            addresses.emplace_back(rows.Text(store::tblFavs::URL));
    }
    return addresses;
}

void FavouritesRoom::PrepareAddress(const std::string& line) {
    for (const std::string& address : AddressesOf(line)) {
        others_.address.SetAddress(address);
        others_.address.SetTyped(address);
    }
}

void FavouritesRoom::GoTo(const std::string& line) {
    for (const std::string& address : AddressesOf(line)) {
        others_.opener.OpenTab(address);
    }
}

void FavouritesRoom::lstFavs_DblClick() {
    const std::string line(controls_.lstFavs.Text());
    if (IsFavouriteLine(line)) GoTo(line);
}

void FavouritesRoom::lstFavsAlt_Click() {
    const std::string line(controls_.lstFavsAlt.Text());
    if (base::Trim(line) == base::Trim(kGroupsLine)) {
        SwitchList();
    } else {
        PrepareAddress(line);
    }
}

void FavouritesRoom::lstFavsAlt_DblClick() {
    GoTo(std::string(controls_.lstFavsAlt.Text()));
}

void FavouritesRoom::lstFavsAlt_KeyDown(int key_code, int shift) {
    if (key_code != controls::kKeyEnter) {
        others_.keys.KeyDown(key_code, shift);
        return;
    }
    others_.opener.Enter(controls_.lstFavsAlt.Text());
}

void FavouritesRoom::List_OLEDragDrop(const controls::DropData& data) {
    for (const std::string& path : data.Files) {
        if (IsPageFile(path)) dialog_.OfferAddress(path);
    }
}

void FavouritesRoom::SwitchList() {
    favs_alt_shown_ = !controls_.lstFavsAlt.Visible();
    controls_.lstFavsAlt.SetVisible(favs_alt_shown_);
    controls_.lstFavs.SetVisible(!favs_alt_shown_);
    others_.address.FocusAddress();
}

void FavouritesRoom::imgViewOver_Click() {
    SwitchList();
}

void FavouritesRoom::ShowFavs(bool shown) {
    controls_.lblFavs.SetVisible(shown);
    controls_.fraFavs.SetVisible(shown);
    controls_.lstFavs.SetVisible(shown && !favs_alt_shown_);
    controls_.lstFavsAlt.SetVisible(shown && favs_alt_shown_);
}

bool FavouritesRoom::IsPanelClosed() const {
    return !controls_.IsPanelOpen();
}

void FavouritesRoom::cmdFavs_Click() {
    if (IsPanelClosed()) {
        OpenPanel();
    } else {
        ClosePanel();
    }
    others_.layout.Form_Resize();
}

void FavouritesRoom::OpenPanel() {
    if (others_.video.IsVideoAttached()) others_.video.ShowPane();
    controls_.cmdFavs.SetCaption(kPanelOpen);
    ShowFavs(true);
}

void FavouritesRoom::ClosePanel() {
    controls_.cmdFavs.SetCaption(kPanelClosed);
    others_.video.ClosePane();
    ShowFavs(false);
}

void FavouritesRoom::mnuViewFavs_Click() {
    if (IsPanelClosed()) cmdFavs_Click();
}

void FavouritesRoom::imgAddOver_Click() {
    dialog_.OpenToAdd(others_.page.LocationName(), others_.page.LocationURL());
}

void FavouritesRoom::imgdeleteover_Click() {
    if (IsFavouriteLine(controls_.lstFavs.Text()) || IsFavouriteLine(controls_.lstFavsAlt.Text())) {
        DeleteFav();
    } else {
        DeleteFavGroup();
    }
    others_.address.FocusAddress();
}

// Both lists must have a selection, though only one of them shows: the image is the everyday way.
void FavouritesRoom::mnuRemoveFav_Click() {
    if (controls_.lstFavs.Text().empty() || controls_.lstFavsAlt.Text().empty()) {
        dialogs_.MsgBox("No favourite selected to delete");
        return;
    }
    DeleteFav();
}

void FavouritesRoom::DeleteFavGroup() {
    dialog_.OpenToDelete();
}

void FavouritesRoom::DeleteFav() {
    if (dialogs_.MsgBox("Are you sure you want to delete the favourite?", ports::BoxButtons::YesNo,
                        "Delete Favourite") == ports::BoxAnswer::Yes) {
        const std::string line(controls_.lstFavsAlt.Visible() ? controls_.lstFavsAlt.Text()
                                                              : controls_.lstFavs.Text());
        controls_.datFav.Open(store::kAllFavourites);
        store::RecordSet& rows = controls_.datFav.Recordset();
        for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
            if (rows.Text(store::tblFavs::FriendName) == line) rows.Delete();
        }
    }
    populatefavs();
}

}  // namespace places
