#include "session/LastRunRoom.h"

#include <gtest/gtest.h>

namespace {

class LastRunRoom : public testing::Test {
protected:
    session::StartFacts Crashed() {
        return {.without_home_pages = false,
                .crash_report = "/state/run-1.log",
                .show_report = [this] { ++shown; },
                .tell_left_closed = [this] { ++told; }};
    }

    session::LoginForm form;
    session::SessionState session;
    int shown = 0;
    int told = 0;
};

TEST_F(LastRunRoom, AfterARunThatEndedInOrderNothingIsToldAndNothingWaits) {
    const double height = form.frmLogin.ContentHeight();
    session::LastRunRoom room(form, session, {});

    room.LogInUnasked();

    EXPECT_FALSE(form.last_run.fraLastRun.Visible());
    EXPECT_EQ(form.frmLogin.ContentHeight(), height);
    EXPECT_FALSE(session.HomePagesWait);
    EXPECT_FALSE(session.WithoutHomePages);
}

TEST_F(LastRunRoom, AfterACrashALineIsShownBelowTheLogin) {
    const session::LastRunRoom room(form, session, Crashed());

    EXPECT_TRUE(form.last_run.fraLastRun.Visible());
    EXPECT_EQ(form.last_run.lblLastRun.Caption(), "Brindlepost crashed last time.");
    EXPECT_EQ(form.last_run.cmdShowReport.ToolTipText(), "/state/run-1.log");
    EXPECT_FALSE(form.last_run.chkNoHomePages.Checked());
    EXPECT_TRUE(session.HomePagesWait);
    EXPECT_GE(form.last_run.fraLastRun.Top(), form.fraLogin.Bottom());
    EXPECT_LE(form.last_run.fraLastRun.Bottom(), form.frmLogin.ContentHeight());
    for (const controls::Control* control : form.last_run.fraLastRun.Children()) {
        EXPECT_LE(control->Right(), form.last_run.fraLastRun.Width()) << control->Name();
        EXPECT_LE(control->Bottom(), form.last_run.fraLastRun.Height()) << control->Name();
    }
}

TEST_F(LastRunRoom, TheButtonShowsTheReport) {
    const session::LastRunRoom room(form, session, Crashed());

    form.last_run.cmdShowReport.Click.Raise();

    EXPECT_EQ(shown, 1);
}

TEST_F(LastRunRoom, TheTickDecidesAboutTheHomePages) {
    const session::LastRunRoom room(form, session, Crashed());

    form.last_run.chkNoHomePages.SetChecked(true);
    form.last_run.chkNoHomePages.Click.Raise();
    EXPECT_TRUE(session.WithoutHomePages);

    form.last_run.chkNoHomePages.SetChecked(false);
    form.last_run.chkNoHomePages.Click.Raise();
    EXPECT_FALSE(session.WithoutHomePages);
}

TEST_F(LastRunRoom, WhoIsNotAskedGetsNoHomePagesAndIsTold) {
    session::LastRunRoom room(form, session, Crashed());

    room.LogInUnasked();

    EXPECT_TRUE(session.WithoutHomePages);
    EXPECT_EQ(told, 1);
}

TEST_F(LastRunRoom, WhoAskedForNoneOnTheCommandLineIsNotTold) {
    session::StartFacts facts = Crashed();
    facts.without_home_pages = true;
    session::LastRunRoom room(form, session, std::move(facts));

    room.LogInUnasked();

    EXPECT_TRUE(form.last_run.chkNoHomePages.Checked());
    EXPECT_TRUE(session.WithoutHomePages);
    EXPECT_EQ(told, 0);
}

TEST_F(LastRunRoom, TheCommandLineAloneLeavesThePagesClosed) {
    const session::LastRunRoom room(form, session, {.without_home_pages = true});

    EXPECT_TRUE(session.WithoutHomePages);
    EXPECT_FALSE(session.HomePagesWait);
    EXPECT_FALSE(form.last_run.fraLastRun.Visible());
}

}  // namespace
