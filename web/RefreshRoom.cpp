#include "web/RefreshRoom.h"

#include <limits>
#include <optional>
#include <string>

#include "base/Number.h"

namespace web {

RefreshRoom::RefreshRoom(RefreshControls& controls, RefreshMenu& menu, WebState& state,
                         BrowserEventsRoom& pages, ConnectionGuard& guard, roles::MediaKeys& keys,
                         ports::Dialogs& dialogs)
    : controls_(controls), state_(state), pages_(pages), guard_(guard), keys_(keys), dialogs_(dialogs) {
    claims_.Claim(controls_.imgCheck.Click, [this] { imgCheck_Click(); });
    claims_.Claim(controls_.imgCheckChecked.Click, [this] { imgCheckChecked_Click(); });
    claims_.Claim(controls_.txtRefresh.Change, [this] { txtRefresh_Change(); });
    claims_.Claim(controls_.txtRefresh.KeyDown,
                  [this](int key, int shift) { txtRefresh_KeyDown(key, shift); });
    claims_.Claim(controls_.tmrRefresh.Tick, [this] { tmrRefresh_Tick(); });
    claims_.Claim(menu.mnuSetAutoRefresh.Click, [this] { mnuSetAutoRefresh_Click(); });
}

void RefreshRoom::mnuSetAutoRefresh_Click() {
    const std::string answer =
        dialogs_.InputBox("How long do you want between each auto refresh?", "Auto Refresh", "60");
    if (!base::ToNumber(answer)) return;
    controls_.txtRefresh.SetText(answer);
    SwitchOn();
}

void RefreshRoom::imgCheck_Click() {
    if (guard_.Passes()) SwitchOn();
}

void RefreshRoom::SwitchOn() {
    controls_.imgCheckChecked.SetVisible(true);
    controls_.txtRefresh.SetVisible(true);
    controls_.tmrRefresh.SetEnabled(true);
}

void RefreshRoom::SwitchOff() {
    if (controls_.imgCheckChecked.Visible()) imgCheckChecked_Click();
}

void RefreshRoom::imgCheckChecked_Click() {
    controls_.imgCheckChecked.SetVisible(false);
    controls_.tmrRefresh.SetEnabled(false);
    controls_.txtRefresh.SetVisible(false);
    state_.RefreshSeconds = 0;
}

// The count is compared for equality: with a text that is no number, or no whole one above 0, it never
// matches.
void RefreshRoom::tmrRefresh_Tick() {
    if (!controls_.imgCheckChecked.Visible()) return;
    if (state_.RefreshSeconds == std::numeric_limits<std::int16_t>::max()) return;
    ++state_.RefreshSeconds;
    const std::optional<double> wanted = base::ToNumber(controls_.txtRefresh.Text());
    if (!wanted || *wanted != state_.RefreshSeconds) return;
    pages_.Refresh();
    state_.RefreshSeconds = 0;
}

void RefreshRoom::txtRefresh_Change() {
    state_.RefreshSeconds = 0;
}

void RefreshRoom::txtRefresh_KeyDown(int key_code, int shift) {
    keys_.KeyDown(key_code, shift);
}

}  // namespace web
