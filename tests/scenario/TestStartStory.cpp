#include <gtest/gtest.h>

#include <algorithm>

#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;
using Texts = std::vector<std::string>;

class StartStory : public testing::Test {
protected:
    Computer computer;
};

TEST_F(StartStory, TheFirstStartShowsTheSplashWithTheLoginInFront) {
    Program program(computer);

    program.Start();

    EXPECT_TRUE(program.windows.activate.frmActivate.Visible());
    EXPECT_TRUE(program.windows.login.frmLogin.Visible());
    EXPECT_FALSE(program.Browser().Enabled());
    EXPECT_TRUE(program.BoxTexts().empty());
}

/// The stages of the splash as they come: caption, the bar after it, and the yields since the stage before.
class StageWatch final : private controls::ControlObserver {
public:
    struct Stage {
        std::string caption;
        int bar;
        bool yielded_before;

        bool operator==(const Stage&) const = default;
    };

    explicit StageWatch(Program& program) : program_(program) {
        program_.windows.activate.lblLoading.SetObserver(this);
        program_.windows.activate.pbLoad.SetObserver(this);
    }
    ~StageWatch() override {
        program_.windows.activate.lblLoading.SetObserver(nullptr);
        program_.windows.activate.pbLoad.SetObserver(nullptr);
    }

    std::vector<Stage> Stages;

private:
    void OnPropertyChanged(controls::Control&, controls::Property property) override {
        const auto& splash = program_.windows.activate;
        if (property == controls::Property::Caption) {
            Stages.push_back({splash.lblLoading.Caption(), 0, program_.desktop.Yields > yields_});
            yields_ = program_.desktop.Yields;
        } else if (property == controls::Property::Value && !Stages.empty()) {
            Stages.back().bar = splash.pbLoad.Value();
        }
    }

    Program& program_;
    int yields_ = 0;
};

std::ostream& operator<<(std::ostream& out, const StageWatch::Stage& stage) {
    return out << stage.caption << " " << stage.bar << (stage.yielded_before ? " after a yield" : "");
}

// The lists load in one go; before every other stage the loop had its turn.
TEST_F(StartStory, TheSplashTellsItsStagesInOrderAndTheBarGrowsByTen) {
    Program program(computer);
    StageWatch watch(program);

    program.Start();

    EXPECT_EQ(watch.Stages, (std::vector<StageWatch::Stage>{{"Logging in", 10, true},
                                                            {"Media Library", 20, true},
                                                            {"Favourites", 30, false},
                                                            {"Initial tracks", 40, false},
                                                            {"History files", 50, false},
                                                            {"Previous settings", 60, true},
                                                            {"Library search", 70, true},
                                                            {"Home pages", 80, true},
                                                            {"Media GUI", 90, true}}));
}

TEST_F(StartStory, TheStartSetsThePlayerUp) {
    Program program(computer);
    auto& player = program.Browser().player;
    player.transport.lblProgress.SetVisible(true);
    player.levels.lblMute.SetVisible(true);
    program.Browser().menus.mnuMusicMute.SetChecked(true);
    program.windows.frmVideo.picVid.SetBackColor(0x00FF00);

    program.main_window.Start();

    EXPECT_FALSE(player.transport.lblProgress.Visible());
    EXPECT_FALSE(player.levels.lblMute.Visible());
    EXPECT_FALSE(program.Browser().menus.mnuMusicMute.Checked());
    EXPECT_EQ(program.windows.frmVideo.picVid.BackColor(), 0x000000U);
    EXPECT_TRUE(program.Browser().menus.mnuQuickFade.Checked());
    EXPECT_EQ(program.main_window.Known().player.MusicVolume, 100);
    EXPECT_EQ(program.main_window.Known().player.SongSpeed, 100);
}

TEST_F(StartStory, TheSplashWaitsForTheLogin) {
    Program program(computer);
    program.Start();

    program.Wait(30'000);

    EXPECT_LT(program.windows.activate.pbLoad.Value(), 100);
    EXPECT_TRUE(program.windows.activate.frmActivate.Visible());
    EXPECT_FALSE(program.Browser().Enabled());
}

TEST_F(StartStory, ANewUserIsMadeLogsInAndGetsTheMainWindow) {
    Program program(computer);
    program.Start();
    auto& login = program.windows.login;

    program.Click(login.cmdNew);
    EXPECT_TRUE(login.fraNew.Visible());
    EXPECT_FALSE(login.fraLogin.Visible());
    login.txtNewUser.SetText("Ann");
    login.txtPass1.SetText("rose");
    login.txtPass2.SetText("nose");
    program.Click(login.cmdNext);
    EXPECT_EQ(program.BoxTexts(),
              (Texts{"Your passwords do not match or are of no length, please check and re-enter."}));
    EXPECT_TRUE(login.fraNew.Visible());

    login.txtPass2.SetText("rose");
    program.Click(login.cmdNext);
    EXPECT_TRUE(login.fraSetup.Visible());
    login.txtHotmailE.SetText("ann@example.org");
    program.Click(login.cmdFinish);
    EXPECT_TRUE(login.fraLogin.Visible());
    EXPECT_EQ(login.cmbUser.Text(), "Ann");
    EXPECT_EQ(login.txtPassword.Text(), "rose");

    program.Click(login.cmdLogin);
    EXPECT_FALSE(login.frmLogin.Visible());
    EXPECT_FALSE(program.Browser().Visible());
    program.Wait(12'000);

    EXPECT_EQ(program.windows.activate.pbLoad.Value(), 100);
    EXPECT_FALSE(program.windows.activate.frmActivate.Visible());
    EXPECT_TRUE(program.Browser().Visible());
    EXPECT_TRUE(program.Browser().Enabled());
    EXPECT_TRUE(program.Browser().menus.mnuExit.Enabled());
    EXPECT_TRUE(program.Browser().menus.mnuLogout.Enabled());
    EXPECT_EQ(program.main_window.Known().login.HotmailE, "ann@example.org");
    const auto users = computer.database.Rows(scenario::kLoginPath, "tblLogin");
    ASSERT_EQ(users.size(), 1U);
    EXPECT_EQ(users[0][0], "Ann");
    EXPECT_EQ(users[0][1], "rose");
}

TEST_F(StartStory, AWrongPasswordLeavesTheLoginStanding) {
    computer.AddUser("Ann", "rose");
    Program program(computer);
    program.Start();

    program.LogIn("Ann", "thorn");
    program.Wait(12'000);

    EXPECT_EQ(program.BoxTexts().size(), 1U);
    EXPECT_TRUE(program.windows.login.frmLogin.Visible());
    EXPECT_FALSE(program.Browser().Enabled());
}

TEST_F(StartStory, WhoeverIsLoggedInByItselfSeesNoQuestion) {
    computer.database.Seed(scenario::kLoginPath, "tblLogin",
                           {{"Ann", "rose", " ", " ", " ", " ", " ", " ", "True", "True"}});
    computer.AddToLibrary(1, "Sun", "Rise");
    Program program(computer);

    program.Start();
    program.Wait(15'000);

    EXPECT_TRUE(program.Browser().Visible());
    EXPECT_TRUE(program.Browser().Enabled());
    EXPECT_TRUE(program.BoxTexts().empty());
}

TEST_F(StartStory, ClosingTheLoginEndsTheProgram) {
    Program program(computer);
    program.Start();

    program.windows.login.frmLogin.UnloadWindow();
    program.desktop.EndHandler();

    EXPECT_TRUE(program.ended);
    EXPECT_FALSE(program.Browser().IsLoaded());
}

TEST_F(StartStory, AMissingStoreIsToldOnceAndEndsTheProgram) {
    for (const std::string_view missing :
         {scenario::kMediaPath, scenario::kFavouritesPath, scenario::kHistoryPath, scenario::kLoginPath}) {
        SCOPED_TRACE(missing);
        Computer another;
        another.files.Remove(missing);
        another.database.Remove(missing);
        Program program(another);

        program.Start();

        ASSERT_EQ(program.dialogs.Boxes.size(), 1U);
        EXPECT_EQ(program.dialogs.Boxes[0].title, "Database missing...");
        EXPECT_EQ(program.dialogs.Boxes[0].icon, ports::BoxIcon::Critical);
        EXPECT_TRUE(program.ended);
        EXPECT_EQ(another.database.Opens, 0);
        EXPECT_FALSE(program.Browser().Visible());
        EXPECT_FALSE(program.windows.activate.frmActivate.Visible());
        EXPECT_FALSE(program.windows.login.frmLogin.Visible());
    }
}

TEST_F(StartStory, ACommandAtTheStartReachesTheMailbox) {
    computer.AddUser("Ann", "rose");
    computer.AddSong("C:\\Music\\Sun - Rise.mp3");
    Program program(computer, "\"C:\\Music\\Sun - Rise.mp3\"");

    program.StartAndLogIn("Ann", "rose");

    EXPECT_NE(program.Browser().hand_off.Text1.Text().find("Sun - Rise.mp3"), std::string::npos);
    EXPECT_TRUE(program.Browser().Visible());
}

TEST_F(StartStory, ASecondStartHandsItsCommandOverAndOpensNoStore) {
    computer.AddUser("Ann", "rose");
    Program first(computer);
    first.StartAndLogIn("Ann", "rose");
    first.Browser().SetState(controls::WindowState::Minimised);
    const int opens = computer.database.Opens;
    Program second(computer, "\"C:\\Music\\Sun - Rise.mp3\"");

    second.Start();

    EXPECT_TRUE(second.ended);
    EXPECT_FALSE(second.Browser().Visible());
    EXPECT_FALSE(second.windows.activate.frmActivate.Visible());
    EXPECT_FALSE(second.windows.login.frmLogin.Visible());
    EXPECT_TRUE(second.BoxTexts().empty());
    EXPECT_EQ(computer.database.Opens, opens);
    EXPECT_EQ(first.Browser().State(), controls::WindowState::Normal);
    EXPECT_NE(first.Browser().hand_off.Text1.Text().find("C:\\Music\\Sun - Rise.mp3"), std::string::npos);
    EXPECT_FALSE(first.ended);
}

TEST_F(StartStory, AfterTheFirstHasEndedTheNextStartIsTheFirst) {
    computer.AddUser("Ann", "rose");
    {
        Program first(computer);
        first.StartAndLogIn("Ann", "rose");
        first.Click(first.Browser().menus.mnuExit);
        EXPECT_TRUE(first.ended);
    }
    Program next(computer);

    next.StartAndLogIn("Ann", "rose");

    EXPECT_FALSE(next.ended);
    EXPECT_TRUE(next.Browser().Visible());
}

}  // namespace
