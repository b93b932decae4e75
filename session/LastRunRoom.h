// After a run that crashed: a line in the login window with the way to the report, and the offer to start
// without home pages.
//
// Until somebody logs in the home pages wait. A user who is logged in automatically is not asked: the pages,
// one of which may be what ended the run before, stay closed in this start, and a notice says so.
#pragma once

#include "controls/Event.h"
#include "session/LoginForm.h"
#include "session/SessionState.h"
#include "session/StartFacts.h"

namespace session {

class LastRunRoom final {
public:
    LastRunRoom(LoginForm& form, SessionState& session, StartFacts facts);

    /// Somebody is about to be logged in who was not asked.
    void LogInUnasked();

private:
    void cmdShowReport_Click();
    void chkNoHomePages_Click();

    LastRunControls& controls_;
    SessionState& session_;
    const StartFacts facts_;
    controls::EventClaims claims_;
};

}  // namespace session
