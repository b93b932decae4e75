// The preferences: their window, its three panes, and the options.
//
// The boxes are filled when the settings are loaded, and stored when they are applied. A changed option has
// no effect on the session that runs: the settings are read again at the next start or login. Closing the
// window only hides it, and its boxes stay as they are, until the program ends.
#pragma once

#include <string>
#include <string_view>

#include "controls/Event.h"
#include "ports/Dialogs.h"
#include "session/BackUpRoom.h"
#include "session/InfoForm.h"
#include "session/NewUserRoom.h"
#include "session/SessionMenu.h"
#include "session/StoreTroubleRoom.h"

namespace session {

class PreferencesRoom final {
public:
    /// `app_path` is the application folder in drive form, without a backslash at its end.
    PreferencesRoom(InfoForm& form, PreferencesMenu& menu, BackUpRoom& back_up, NewUserRoom& new_user,
                    SessionStores stores, ports::Dialogs& dialogs, std::string_view app_path);

private:
    void mnuPreferences_Click();
    void mnuEditPlaylists_Click();
    void Form_Load();
    void Form_QueryUnload(bool& cancel);
    void Form_KeyDown(int key_code);
    void cmdOptions_Click();
    void cmdHistory_Click();
    void cmdBackingUp_Click();
    void chkMSN_Click();
    void chkCustom_Click();
    void chkMultiLogin_Click();
    void cmdApply_Click();

    void ClaimOptions();
    void hideallframes();
    void ShowPane(controls::Frame& pane, controls::CommandButton& button);
    bool IsStoredAsOn(const Option& option) const;
    bool StoreOptions();

    InfoForm& form_;
    BackUpRoom& back_up_;
    NewUserRoom& new_user_;
    SessionStores stores_;
    ports::Dialogs& dialogs_;
    std::string app_path_;
    controls::EventClaims claims_;
};

}  // namespace session
