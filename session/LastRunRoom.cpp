#include "session/LastRunRoom.h"

#include <utility>

namespace session {

LastRunRoom::LastRunRoom(LoginForm& form, SessionState& session, StartFacts facts)
    : controls_(form.last_run), session_(session), facts_(std::move(facts)) {
    claims_.Claim(controls_.cmdShowReport.Click, [this] { cmdShowReport_Click(); });
    claims_.Claim(controls_.chkNoHomePages.Click, [this] { chkNoHomePages_Click(); });
    session_.WithoutHomePages = facts_.without_home_pages;
    if (facts_.crash_report.empty()) return;
    session_.HomePagesWait = true;
    controls_.chkNoHomePages.SetChecked(facts_.without_home_pages);
    controls_.lblLastRun.SetToolTipText(facts_.crash_report);
    controls_.cmdShowReport.SetToolTipText(facts_.crash_report);
    form.ShowLastRun();
}

void LastRunRoom::LogInUnasked() {
    if (!session_.HomePagesWait || session_.WithoutHomePages) return;
    session_.WithoutHomePages = true;
    if (facts_.tell_left_closed) facts_.tell_left_closed();
}

void LastRunRoom::cmdShowReport_Click() {
    if (facts_.show_report) facts_.show_report();
}

void LastRunRoom::chkNoHomePages_Click() {
    session_.WithoutHomePages = controls_.chkNoHomePages.Checked();
}

}  // namespace session
