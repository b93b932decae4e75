// Automatic refresh of the tab in front. On while `imgCheckChecked` shows.
#pragma once

#include "controls/Event.h"
#include "ports/Dialogs.h"
#include "roles/AutoRefresh.h"
#include "roles/MediaKeys.h"
#include "web/BrowserEventsRoom.h"
#include "web/ConnectionGuard.h"
#include "web/WebControls.h"
#include "web/WebMenu.h"
#include "web/WebState.h"

namespace web {

class RefreshRoom final : public roles::AutoRefresh {
public:
    RefreshRoom(RefreshControls& controls, RefreshMenu& menu, WebState& state, BrowserEventsRoom& pages,
                ConnectionGuard& guard, roles::MediaKeys& keys, ports::Dialogs& dialogs);

    // roles::AutoRefresh
    void SwitchOff() override;

private:
    void mnuSetAutoRefresh_Click();
    void imgCheck_Click();
    void imgCheckChecked_Click();
    void tmrRefresh_Tick();
    void txtRefresh_Change();
    void txtRefresh_KeyDown(int key_code, int shift);

    void SwitchOn();

    RefreshControls& controls_;
    WebState& state_;
    BrowserEventsRoom& pages_;
    ConnectionGuard& guard_;
    roles::MediaKeys& keys_;
    ports::Dialogs& dialogs_;
    controls::EventClaims claims_;
};

}  // namespace web
