// Automatic refresh of the tab in front. On while `imgCheckChecked` shows.
#pragma once

#include "controls/Event.h"
#include "ports/Dialogs.h"
#include "web/ConnectionGuard.h"
#include "web/Outgoing.h"
#include "web/PageNavigation.h"
#include "web/WebControls.h"
#include "web/WebMenu.h"
#include "web/WebState.h"

namespace web {

class RefreshRoom final {
public:
    RefreshRoom(RefreshControls& controls, RefreshMenu& menu, WebState& state, PageNavigation& navigation,
                ConnectionGuard& guard, BrowserWindow& window, ports::Dialogs& dialogs);

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
    PageNavigation& navigation_;
    ConnectionGuard& guard_;
    BrowserWindow& window_;
    ports::Dialogs& dialogs_;
    controls::EventClaims claims_;
};

}  // namespace web
