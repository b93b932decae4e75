// The start after a run that crashed.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;

constexpr std::string_view kPage = "http://one.example/";

class CrashStory : public testing::Test {
protected:
    CrashStory() {
        computer.AddUser("Ada", "sesame");
        computer.AddPage(kPage, "One");
        computer.database.Seed(scenario::kFavouritesPath, "tblFavs",
                               {{"2", "Home Pages", "First", std::string(kPage)}});
    }
    void StartAfterACrash() {
        program.emplace(computer, "",
                        session::StartFacts{.crash_report = "/state/run-1.log",
                                            .show_report = [this] { ++shown; },
                                            .tell_left_closed = [this] { ++told; }});
        program->Start();
    }
    int OpenTabs() {
        int open = 0;
        auto& tabs = program->Browser().web.tabs.tabtab;
        for (int i = 1; i < tabs.Count(); ++i)
            open += tabs(i).Visible() ? 1 : 0;
        return open;
    }
    void LogInAndWait() {
        program->LogIn("Ada", "sesame");
        program->Wait(12'000);
    }

    Computer computer;
    std::optional<Program> program;
    int shown = 0;
    int told = 0;
};

TEST_F(CrashStory, TheLoginTellsItAndHomePagesWaitForTheAnswer) {
    StartAfterACrash();

    EXPECT_TRUE(program->windows.login.last_run.fraLastRun.Visible());
    EXPECT_TRUE(program->BoxTexts().empty());
    EXPECT_EQ(OpenTabs(), 0);

    LogInAndWait();

    EXPECT_EQ(OpenTabs(), 1);
    EXPECT_TRUE(program->Browser().Visible());
    EXPECT_TRUE(program->Browser().web.tabs.imgMusicTab.Visible())
        << "the music tab is in front, as after any start";
    EXPECT_EQ(told, 0);
}

TEST_F(CrashStory, WithoutHomePagesNoneOpenUntilTheNextLogin) {
    StartAfterACrash();
    program->windows.login.last_run.chkNoHomePages.SetChecked(true);
    program->Click(program->windows.login.last_run.chkNoHomePages);

    LogInAndWait();
    EXPECT_EQ(OpenTabs(), 0);

    program->Click(program->Browser().menus.mnuLogout);
    LogInAndWait();
    EXPECT_EQ(OpenTabs(), 1);
}

TEST_F(CrashStory, AUserWhoIsLoggedInAutomaticallyGetsNoneAndIsTold) {
    {
        Program before(computer);
        before.Start();
        before.windows.login.chkAuto.SetChecked(true);
        before.LogIn("Ada", "sesame");
        before.Wait(12'000);
        before.main_window.End();
    }

    StartAfterACrash();
    program->Wait(12'000);

    EXPECT_TRUE(program->Browser().Visible());
    EXPECT_EQ(OpenTabs(), 0);
    EXPECT_EQ(told, 1);
}

TEST_F(CrashStory, AStartThatWasAskedForNoneOpensNone) {
    program.emplace(computer, "", session::StartFacts{.without_home_pages = true});

    program->StartAndLogIn("Ada", "sesame");

    EXPECT_FALSE(program->windows.login.last_run.fraLastRun.Visible());
    EXPECT_EQ(OpenTabs(), 0);
}

}  // namespace
