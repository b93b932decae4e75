#include "session/PreferencesRoom.h"

#include <algorithm>

#include "base/Number.h"
#include "store/Settings.h"
#include "store/Tables.h"

namespace session {

PreferencesRoom::PreferencesRoom(InfoForm& form, PreferencesMenu& menu, BackUpRoom& back_up,
                                 NewUserRoom& new_user, SessionStores stores, ports::Dialogs& dialogs,
                                 std::string_view app_path)
    : form_(form),
      back_up_(back_up),
      new_user_(new_user),
      stores_(stores),
      dialogs_(dialogs),
      app_path_(app_path) {
    claims_.Claim(menu.mnuPreferences.Click, [this] { mnuPreferences_Click(); });
    claims_.Claim(menu.mnuEditPlaylists.Click, [this] { mnuEditPlaylists_Click(); });
    claims_.Claim(form_.frmInfo.Load, [this] { Form_Load(); });
    claims_.Claim(form_.frmInfo.QueryUnload, [this](bool& cancel) { Form_QueryUnload(cancel); });
    claims_.Claim(form_.frmInfo.KeyDown, [this](int key_code, int) { Form_KeyDown(key_code); });
    claims_.Claim(form_.cmdOptions.Click, [this] { cmdOptions_Click(); });
    claims_.Claim(form_.cmdHistory.Click, [this] { cmdHistory_Click(); });
    claims_.Claim(form_.cmdBackingUp.Click, [this] { cmdBackingUp_Click(); });
    claims_.Claim(form_.cmdApply.Click, [this] { cmdApply_Click(); });
    ClaimOptions();
}

void PreferencesRoom::ClaimOptions() {
    OptionControls& boxes = form_.options;
    claims_.Claim(boxes.chkMSN.Click, [this] { chkMSN_Click(); });
    claims_.Claim(boxes.chkCustom.Click, [this] { chkCustom_Click(); });
    claims_.Claim(boxes.chkMultiLogin.Click, [this] { chkMultiLogin_Click(); });
    claims_.Claim(boxes.cmdNewUser.Click, [this] { new_user_.OpenWizard(); });
}

void PreferencesRoom::mnuPreferences_Click() {
    form_.frmInfo.Show();
    form_.frmInfo.BringToFront();
    if (form_.fraOptions.Visible()) form_.options.chkSettings.SetFocus();
}

void PreferencesRoom::mnuEditPlaylists_Click() {
    form_.frmInfo.Show();
    form_.frmInfo.BringToFront();
    cmdBackingUp_Click();
    form_.back_up.lstEditPlayList.SetFocus();
}

void PreferencesRoom::Form_Load() {
    form_.datHistory.SetDatabaseName(stores_.stores, app_path_ + std::string(store::kHistoryStore));
    for (store::DataSource* source : {&form_.datSong, &form_.datPlayList, &form_.datFolder})
        source->SetDatabaseName(stores_.stores, app_path_ + std::string(store::kMediaStore));
    cmdOptions_Click();
}

void PreferencesRoom::Form_QueryUnload(bool& cancel) {
    if (form_.unloadme) return;
    cancel = true;
    form_.frmInfo.Hide();
}

void PreferencesRoom::Form_KeyDown(int key_code) {
    if (key_code == controls::kKeyEscape) form_.frmInfo.UnloadWindow();
}

void PreferencesRoom::cmdOptions_Click() {
    hideallframes();
    ShowPane(form_.fraOptions, form_.cmdOptions);
}

void PreferencesRoom::cmdHistory_Click() {
    hideallframes();
    ShowPane(form_.maintenance.fraMisc, form_.cmdHistory);
}

void PreferencesRoom::cmdBackingUp_Click() {
    hideallframes();
    back_up_.OpenPane();
    ShowPane(form_.back_up.fraBackUp, form_.cmdBackingUp);
}

void PreferencesRoom::hideallframes() {
    form_.maintenance.fraMisc.SetVisible(false);
    form_.back_up.fraBackUp.SetVisible(false);
}

// The options lie below the other two panes. They are away while one of these shows, so that the keyboard
// does not come to what is covered.
void PreferencesRoom::ShowPane(controls::Frame& pane, controls::CommandButton& button) {
    pane.SetVisible(true);
    form_.fraOptions.SetVisible(&pane == &form_.fraOptions);
    for (controls::CommandButton* one : {&form_.cmdOptions, &form_.cmdHistory, &form_.cmdBackingUp})
        one->SetLook(one == &button ? "ambertext" : "");
}

void PreferencesRoom::chkMSN_Click() {
    form_.options.chkCustom.SetEnabled(form_.options.chkMSN.Checked());
    chkCustom_Click();
}

void PreferencesRoom::chkCustom_Click() {
    const OptionControls& boxes = form_.options;
    form_.options.chkSaveMSN.SetEnabled(boxes.chkMSN.Checked() && boxes.chkCustom.Checked());
}

void PreferencesRoom::chkMultiLogin_Click() {
    form_.options.chkAutoLogin.SetEnabled(form_.options.chkMultiLogin.Checked());
}

void PreferencesRoom::cmdApply_Click() {
    if (!StoreOptions() || !stores_.stores.CommitAll()) {
        stores_.trouble.TellUnsaved("Your settings could not be saved.", stores_.stores);
        return;
    }
    dialogs_.MsgBox(
        "Your settings have been saved.\r\nMost changes will only take affect when you restart this "
        "application.",
        ports::BoxButtons::Ok, "Settings Saved", ports::BoxIcon::Information);
    form_.frmInfo.Hide();
}

// The first row that cannot be written ends the walk.
bool PreferencesRoom::StoreOptions() {
    if (!form_.datHistory.Open(store::kAllHistory)) return false;
    store::RecordSet& rows = form_.datHistory.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        const int number = store::HistoryNumber(rows);
        const auto* const option =
            std::find_if(kOptions.begin(), kOptions.end(),
                         [number](const Option& one) { return store::NumberOf(one.row) == number; });
        if (option == kOptions.end()) continue;
        if (!store::WriteSetting(rows, base::FlagText(IsStoredAsOn(*option)))) return false;
    }
    return true;
}

bool PreferencesRoom::IsStoredAsOn(const Option& option) const {
    if (!(form_.options.*option.box).Checked()) return false;
    if (option.parent == nullptr) return true;
    return std::any_of(kOptions.begin(), kOptions.end(), [this, &option](const Option& one) {
        return one.box == option.parent && IsStoredAsOn(one);
    });
}

}  // namespace session
