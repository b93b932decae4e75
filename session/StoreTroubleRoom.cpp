#include "session/StoreTroubleRoom.h"

namespace session {

StoreTroubleRoom::StoreTroubleRoom(StoreTroubleControls& controls, const SessionState& session,
                                   ports::Dialogs& dialogs)
    : controls_(controls), session_(session), dialogs_(dialogs) {
    claims_.Claim(controls_.tmrTrouble.Tick, [this] { tmrTrouble_Tick(); });
}

// A file that is not there at the start is the splash's to report.
void StoreTroubleRoom::OnStoreTrouble(std::string_view /*file*/, ports::DatabaseError error,
                                      std::string_view message) {
    const bool is_absent = error == ports::DatabaseError::Missing || error == ports::DatabaseError::IsFolder;
    if (session_.NothingBegun || (is_absent && !session_.FirstLoadDone)) return;
    messages_.emplace_back(message);
    controls_.tmrTrouble.SetEnabled(true);
}

void StoreTroubleRoom::Forget() {
    messages_.clear();
    controls_.tmrTrouble.SetEnabled(false);
}

void StoreTroubleRoom::TellUnsaved(std::string_view what, const store::Stores& stores) {
    const std::string why = stores.WhyUnwritten();
    if (why.empty()) {
        dialogs_.MsgBox(what);
        return;
    }
    Forget();
    dialogs_.MsgBox(std::string(what).append("\r\n").append(why));
}

void StoreTroubleRoom::tmrTrouble_Tick() {
    controls_.tmrTrouble.SetEnabled(false);
    while (!messages_.empty()) {
        const std::string message = messages_.front();
        messages_.pop_front();
        dialogs_.MsgBox(message, ports::BoxButtons::Ok, "Brindlepost", ports::BoxIcon::Critical);
    }
}

}  // namespace session
