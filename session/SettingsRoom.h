// The settings rows of the history store: read at the start and at each new login, written at exit and log
// out.
//
// A settings row is known by its HistoryID, 1 to 20, never by its text. Rows are only edited; one that is
// gone leaves its setting as it is. Rows 9 to 19 belong to the preferences, which write them at once.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "ports/Clock.h"
#include "ports/EventLoop.h"
#include "session/Outgoing.h"
#include "session/SessionState.h"
#include "store/DataSource.h"
#include "web/WebState.h"

namespace session {

/// What settings are read from and shown in, besides the options.
struct SettingsControls {
    controls::Menu& mnuRepeat;
    controls::Menu& mnuShuffle;
    controls::Menu& mnuSearchBroad;
    controls::Menu& mnuSearchTitle;
    controls::Menu& mnuSearchArtist;
    controls::Menu& mnuSearchFilename;
    controls::TextBox& txtRefresh;
    controls::ComboBox& cmbType;
    store::DataSource& datHistory;
    store::DataSource& datFav;
};

/// The preferences' boxes, one a settings row.
struct OptionBoxes {
    controls::CheckBox& chkSettings;
    controls::CheckBox& chkHomePages;
    controls::CheckBox& chkMSN;
    controls::CheckBox& chkCustom;
    controls::CheckBox& chkSaveMSN;
    controls::CheckBox& chkMultiLogin;
    controls::CheckBox& chkAutoLogin;
    controls::CheckBox& chkHistory;
    controls::CheckBox& chkGoogle;
    controls::CheckBox& chkFile;
    controls::CheckBox& chkSubFolders;
    controls::CommandButton& cmdNewUser;
};

class SettingsRoom final {
public:
    SettingsRoom(SettingsControls controls, OptionBoxes boxes, SessionOptions& options,
                 const SessionState& session, const ConnectionState& connection, web::WebState& web,
                 StageLabel& stage, Tabs& tabs, AddressBar& address_bar, SessionPlayer& player,
                 ports::Clock& clock, ports::EventLoop& events);

    /// A store that cannot be read ends it with what was done so far.
    void LoadSettings();
    void OpenHomePages();
    /// Writes row 20, and rows 1 to 8 if settings are saved and were loaded before. False when the store
    /// cannot be read.
    bool StoreSettings();

private:
    struct Row {
        int id;
        std::string text;
    };
    struct HomePage {
        std::string name;
        std::string address;
    };

    bool TakeRows(std::vector<Row>& rows);
    void RestoreRow(const Row& row);
    void RestoreRepeat(bool repeat);
    void RestoreSearchField(std::string_view field);
    void RestoreDate(int id, std::string_view text, std::int32_t& stamp, std::int32_t& age);
    void RestoreOption(int id, bool on);
    void RestoreDependents(int id, bool on);
    void ReplaceText(int id, std::string_view text);
    std::int32_t Today() const;
    std::vector<HomePage> HomePages();
    void FillTypes();
    void PlaceMusicTab();
    std::string_view SearchField() const;
    std::string TextToStore(int id) const;
    bool IsOver() const { return session_.mainclose || events_.IsEnding(); }

    SettingsControls controls_;
    OptionBoxes boxes_;
    SessionOptions& options_;
    const SessionState& session_;
    const ConnectionState& connection_;
    web::WebState& web_;
    StageLabel& stage_;
    Tabs& tabs_;
    AddressBar& address_bar_;
    SessionPlayer& player_;
    ports::Clock& clock_;
    ports::EventLoop& events_;
    bool music_tab_in_front_ = true;
};

}  // namespace session
