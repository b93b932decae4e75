// The options of the preferences: for each its settings row, its flag in the session and its check box.
//
// A new option is a row in store/Settings.h, a flag in SessionState.h, and here a box and a row.
#pragma once

#include <algorithm>
#include <array>

#include "controls/CheckBox.h"
#include "controls/CommandButton.h"
#include "session/SessionState.h"
#include "store/Settings.h"

namespace session {

struct OptionControls {
    controls::CheckBox chkSettings{"chkSettings", "Save settings on log out and close"};
    controls::CheckBox chkHomePages{"chkHomePages", "Open home pages on startup"};
    controls::CheckBox chkMSN{"chkMSN", "Show \"What I'm listening to\" on MSN"};
    controls::CheckBox chkCustom{"chkCustom", "Allow custom MSN message"};
    controls::CheckBox chkSaveMSN{"chkSaveMSN", "Save MSN custom messages"};
    controls::CheckBox chkMultiLogin{"chkMultiLogin", "Allow multiple logins"};
    controls::CheckBox chkAutoLogin{"chkAutoLogin", "Use auto-logins (hotmail + myspace)"};
    controls::CheckBox chkHistory{"chkHistory", "Save history"};
    controls::CheckBox chkGoogle{"chkGoogle", "Allow quick Google searching on address bar"};
    controls::CheckBox chkFile{"chkFile", "Allow file open on address bar"};
    controls::CheckBox chkSubFolders{"chkSubFolders", "Include sub-folders when adding new media."};
    /// Stands beside the others, and nothing is stored for it.
    controls::CheckBox chkWebAddress{"chkWebAddress", "Use address bar for more than just websites"};
    controls::CommandButton cmdNewUser{"cmdNewUser", "Create New User"};
};

struct Option {
    store::SettingsRow row;
    bool SessionOptions::* flag;  ///< null: nothing but the box
    controls::CheckBox OptionControls::* box;
    /// The box without which this one is stored as not ticked; null for none.
    controls::CheckBox OptionControls::* parent = nullptr;
};

/// In the order in which the preferences show and store them.
inline constexpr std::array kOptions = {
    Option{store::SettingsRow::SaveSettings, &SessionOptions::Save_Settings, &OptionControls::chkSettings},
    Option{store::SettingsRow::OpenHomePages, &SessionOptions::Open_Home_Pages,
           &OptionControls::chkHomePages},
    Option{store::SettingsRow::MessengerName, &SessionOptions::Allow_MSN_Name, &OptionControls::chkMSN},
    Option{store::SettingsRow::MessengerCustom, &SessionOptions::Allow_MSN_Custom, &OptionControls::chkCustom,
           &OptionControls::chkMSN},
    Option{store::SettingsRow::SaveMessengerNames, &SessionOptions::Save_MSN_names,
           &OptionControls::chkSaveMSN, &OptionControls::chkCustom},
    Option{store::SettingsRow::MultipleUsers, nullptr, &OptionControls::chkMultiLogin},
    Option{store::SettingsRow::AutoLogin, &SessionOptions::Auto_Login, &OptionControls::chkAutoLogin,
           &OptionControls::chkMultiLogin},
    Option{store::SettingsRow::SaveHistory, &SessionOptions::Save_History, &OptionControls::chkHistory},
    Option{store::SettingsRow::Search, &SessionOptions::Allow_Search, &OptionControls::chkGoogle},
    Option{store::SettingsRow::OpenFile, &SessionOptions::Allow_Open_File, &OptionControls::chkFile},
    Option{store::SettingsRow::SubFolders, &SessionOptions::Include_Sub_Folders,
           &OptionControls::chkSubFolders},
};

// The rows that the preferences write are the options, each once.
static_assert(std::all_of(store::kSettings.begin(), store::kSettings.end(),
                          [](const store::Setting& setting) {
                              const bool is_option = setting.writer == store::SettingsWriter::Preferences;
                              return std::count_if(kOptions.begin(), kOptions.end(), [&](const Option& one) {
                                         return one.row == setting.row;
                                     }) == (is_option ? 1 : 0);
                          }));

}  // namespace session
