// The settings rows of the history store (store/Settings.h): read at the start and at each new login, written
// at exit and log out.
//
// The options' rows are read here and shown in their boxes; PreferencesRoom writes them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/ComboBox.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "player/PlayerState.h"
#include "ports/Clock.h"
#include "ports/EventLoop.h"
#include "ports/PageEngine.h"
#include "roles/PageOpener.h"
#include "roles/Tabs.h"
#include "session/ActivateRoom.h"
#include "session/Options.h"
#include "session/SessionState.h"
#include "store/DataSource.h"
#include "store/Settings.h"
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

class SettingsRoom final {
public:
    SettingsRoom(SettingsControls controls, OptionControls& boxes, SessionOptions& options,
                 const SessionState& session, const ConnectionState& connection, web::WebState& web,
                 ActivateRoom& splash, roles::Tabs& tabs, roles::PageOpener& opener,
                 player::TitleState& title, ports::Clock& clock, ports::EventLoop& events,
                 ports::PageEngine& pages);

    /// Returns early, with what was done so far, if the store cannot be read.
    void LoadSettings();
    void OpenHomePages();
    /// Lets the pages of the user who is logged in begin, and opens home pages that waited for it. Does
    /// nothing before the settings were read, for they say whether the user keeps history; if they could not
    /// be read, nothing is kept.
    void BeginPages();
    /// The rows were read, so there is something to store.
    bool WereLoaded() const { return options_.Loaded; }
    /// Puts the rows that the end of a session writes into the store. False when the store cannot be read.
    bool StoreSettings();

private:
    struct Row {
        store::SettingsRow row;
        std::string text;
    };
    struct HomePage {
        std::string name;
        std::string address;
    };

    void BeginHomePages();
    void OpenWaitingHomePages();
    bool TakeRows(std::vector<Row>& rows);
    void RestoreRow(const Row& row);
    void RestoreRepeat(bool repeat);
    void RestoreSearchField(std::string_view field);
    std::int32_t RestoreDate(const Row& row);
    void RestoreOption(store::SettingsRow row, bool on);
    void RestoreDependents(store::SettingsRow row, bool on);
    void ReplaceText(store::SettingsRow row, std::string_view text);
    std::vector<HomePage> HomePages();
    void FillTypes();
    void PlaceMusicTab();
    std::optional<int> FirstOpenTab() const;
    std::string_view SearchField() const;
    std::string TextToStore(store::SettingsRow row) const;
    bool IsOver() const { return session_.IsOver() || events_.IsEnding(); }

    SettingsControls controls_;
    OptionControls& boxes_;
    SessionOptions& options_;
    const SessionState& session_;
    const ConnectionState& connection_;
    web::WebState& web_;
    ActivateRoom& splash_;
    roles::Tabs& tabs_;
    roles::PageOpener& opener_;
    player::TitleState& title_;
    ports::Clock& clock_;
    ports::EventLoop& events_;
    ports::PageEngine& pages_;
    bool was_tried_ = false;  // the rows were read, or could not be
    bool music_tab_in_front_ = true;
    bool home_pages_wait_ = false;  // for somebody to log in
    bool had_home_pages_ = false;   // or would have had them
};

}  // namespace session
