#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

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

// The tick that lists them has only the boxes to fill.
TEST_F(StartStory, TheUsersAreReadBeforeTheTickThatListsThem) {
    computer.AddUser("Ann", "rose");
    Program program(computer);
    program.main_window.Start();
    program.desktop.EndHandler();
    program.Wait(300);
    const int opens = computer.database.Opens;
    EXPECT_EQ(program.windows.login.cmbUser.ListCount(), 0);

    program.Wait(300);

    EXPECT_EQ(program.windows.login.cmbUser.ListCount(), 1);
    EXPECT_EQ(computer.database.Opens, opens);
}

TEST_F(StartStory, ALoginWhileALargeLibraryIsListedFindsTheListsWhole) {
    constexpr int kSongs = 20'000;
    std::vector<fakes::FakeDatabase::Row> songs;
    for (int i = 1; i <= kSongs; ++i)
        songs.push_back({std::to_string(i), "Owl", "Song", "C:\\Music\\Owl - Song.mp3", "0"});
    computer.database.Seed(scenario::kMediaPath, "tblSong", songs);
    computer.AddUser("Ann", "rose");
    Program program(computer);
    auto& tracks = program.Browser().library.lists.lstTracks;
    int listed = 0;
    std::function<void()> at_each_turn = [&] {
        listed = tracks.ListCount();
        if (listed > 0) {
            program.LogIn("Ann", "rose");
        } else {
            program.desktop.Post(at_each_turn);
        }
    };

    program.main_window.Start();
    program.desktop.Post(at_each_turn);
    program.Wait(30'000);

    EXPECT_GT(listed, 0);
    EXPECT_LT(listed, kSongs);
    EXPECT_TRUE(program.Browser().Visible());
    EXPECT_FALSE(program.windows.activate.frmActivate.Visible());
    EXPECT_EQ(tracks.ListCount(), kSongs);
    EXPECT_TRUE(program.BoxTexts().empty());
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

TEST_F(StartStory, AStartWithTwoFilesPlaysTheFirstAndCuesTheOther) {
    computer.AddUser("Ann", "rose");
    computer.AddSong("C:\\Music\\Sun - Rise.mp3", {60'000, 1000});
    computer.AddSong("C:\\Music\\Moon - Fall.mp3", {60'000, 1000});
    Program program(computer, "\"C:\\Music\\Sun - Rise.mp3\" \"C:\\Music\\Moon - Fall.mp3\"");

    program.StartAndLogIn("Ann", "rose");

    EXPECT_EQ(program.Browser().player.transport.lblFileNowPlaying.Caption(), "C:\\Music\\Sun - Rise.mp3");
    EXPECT_EQ(Program::RowsOf(program.Browser().player.queue.lstCuedSongs), (Texts{"Moon - Fall"}));
    EXPECT_EQ(Program::RowsOf(program.Browser().library.lists.lstTracks),
              (Texts{"Sun - Rise", "Moon - Fall"}));
    EXPECT_TRUE(program.BoxTexts().empty());
}

TEST_F(StartStory, AStartWithAnAddressOpensItOnceTheUserIsIn) {
    computer.AddUser("Ann", "rose");
    computer.AddPage("http://example.org/", "Example");
    Program program(computer, "\"http://example.org/\"");
    program.Start();
    EXPECT_EQ(program.Browser().web.tabs.Browser.Count(), 1);

    program.LogIn("Ann", "rose");
    program.Wait(12'000);
    program.LetPagesArrive();

    ASSERT_EQ(program.Browser().web.tabs.Browser.Count(), 2);
    EXPECT_TRUE(program.Browser().web.tabs.Browser(1).Visible());
    EXPECT_EQ(program.Browser().web.tabs.Browser(1).LocationURL(), "http://example.org/");
    EXPECT_EQ(program.main_window.Known().web.currentbrowser, 1);
}

/// A program that runs, with a user who is logged in, and later starts.
class SecondStart : public testing::Test {
protected:
    SecondStart() {
        computer.AddUser("Ann", "rose");
        computer.AddSong("C:\\Music\\Sun - Rise.mp3", {60'000, 1000});
        computer.AddSong("C:\\Music\\Moon - Fall.mp3", {60'000, 1000});
        first.StartAndLogIn("Ann", "rose");
    }

    /// Starts once more with a command; true when that start has ended without a window.
    bool StartAgain(std::string_view command) {
        Program second(computer, command);
        second.Start();
        first.desktop.EndHandler();
        return second.ended && !second.Browser().Visible() && second.BoxTexts().empty();
    }
    std::string Playing() { return first.Browser().player.transport.lblFileNowPlaying.Caption(); }
    Texts Cued() { return Program::RowsOf(first.Browser().player.queue.lstCuedSongs); }
    int Tabs() { return first.Browser().web.tabs.Browser.Count() - 1; }

    Computer computer;
    Program first{computer};
};

TEST_F(SecondStart, WithTwoFilesTheFirstPlaysAfterASecondAndTheOtherIsCued) {
    EXPECT_TRUE(StartAgain("\"C:\\Music\\Sun - Rise.mp3\" \"C:\\Music\\Moon - Fall.mp3\""));
    EXPECT_EQ(Playing(), "");
    first.Wait(1'000);

    EXPECT_EQ(Playing(), "C:\\Music\\Sun - Rise.mp3");
    EXPECT_EQ(Cued(), (Texts{"Moon - Fall"}));
    EXPECT_EQ(Program::RowsOf(first.Browser().library.lists.lstTracks), (Texts{"Sun - Rise", "Moon - Fall"}));
}

TEST_F(SecondStart, TheCuedFileFollowsTheFirst) {
    StartAgain("\"C:\\Music\\Sun - Rise.mp3\" \"C:\\Music\\Moon - Fall.mp3\"");

    first.Wait(70'000);

    EXPECT_EQ(Playing(), "C:\\Music\\Moon - Fall.mp3");
    EXPECT_TRUE(Cued().empty());
}

TEST_F(SecondStart, AFileOpenedWhileOnePlaysPlaysNow) {
    StartAgain("\"C:\\Music\\Sun - Rise.mp3\"");
    first.Wait(5'000);

    StartAgain("\"C:\\Music\\Moon - Fall.mp3\"");
    first.Wait(1'000);

    EXPECT_EQ(Playing(), "C:\\Music\\Moon - Fall.mp3");
    EXPECT_TRUE(Cued().empty());
}

TEST_F(SecondStart, AnOpenedFileIsCountedWhenItPlaysAndByNoReload) {
    StartAgain("\"C:\\Music\\Sun - Rise.mp3\"");
    first.Wait(2'000);

    StartAgain("\"C:\\Music\\a.mp3\"");

    EXPECT_EQ(computer.database.Rows(scenario::kMediaPath, "tblSong")[0][4], "1");
}

TEST_F(SecondStart, AnAddressOpensATabInFrontWhateverTheMode) {
    computer.AddPage("http://example.org/", "Example");
    auto& cmbType = first.Browser().web.address.cmbType;
    ASSERT_EQ(cmbType.ListCount(), 4);
    for (int mode = 0; mode < 4; ++mode) {
        SCOPED_TRACE(mode);
        const int before = Tabs();
        cmbType.SetListIndex(mode);

        EXPECT_TRUE(StartAgain("\"http://example.org/\""));
        first.Wait(50);
        first.LetPagesArrive();

        ASSERT_EQ(Tabs(), before + 1);
        EXPECT_EQ(first.Browser().web.tabs.Browser(Tabs()).LocationURL(), "http://example.org/");
        EXPECT_EQ(first.main_window.Known().web.currentbrowser, Tabs());
        EXPECT_EQ(cmbType.ListIndex(), mode);
    }
}

TEST_F(SecondStart, WithNothingTheWindowComesToTheFrontAndNothingElseHappens) {
    StartAgain("\"C:\\Music\\Sun - Rise.mp3\"");
    first.Wait(5'000);
    first.Browser().SetState(controls::WindowState::Maximised);
    first.Browser().SetState(controls::WindowState::Minimised);
    computer.media.NewCommands();

    EXPECT_TRUE(StartAgain(""));
    first.Wait(2'000);

    EXPECT_EQ(first.Browser().State(), controls::WindowState::Maximised);
    EXPECT_TRUE(first.Browser().hand_off.Text1.Text().ends_with("Excuted with command: "));
    EXPECT_EQ(Playing(), "C:\\Music\\Sun - Rise.mp3");
    for (const std::string& command : computer.media.NewCommands())
        EXPECT_FALSE(command.starts_with("open") || command.starts_with("play")) << command;
}

TEST_F(SecondStart, DuringALoginWaitsForTheUser) {
    first.Click(first.Browser().menus.mnuLogout);
    ASSERT_TRUE(first.windows.login.frmLogin.Visible());
    EXPECT_TRUE(StartAgain("\"C:\\Music\\Sun - Rise.mp3\""));
    first.Wait(5'000);
    EXPECT_EQ(Playing(), "");

    first.LogIn("Ann", "rose");
    first.Wait(14'000);

    EXPECT_EQ(Playing(), "C:\\Music\\Sun - Rise.mp3");
}

TEST_F(SecondStart, WhatAUserWasHandedDoesNotPlayAfterTheirLogOut) {
    StartAgain("\"C:\\Music\\Sun - Rise.mp3\"");
    first.Wait(300);

    first.Click(first.Browser().menus.mnuLogout);
    first.Wait(5'000);

    EXPECT_EQ(Playing(), "");
    EXPECT_FALSE(computer.media.IsOpen("a"));
}

TEST_F(SecondStart, ALogOutDuringACommandLeavesTheRestOfItOut) {
    first.desktop.Post([this] { first.Browser().menus.mnuLogout.Click.Raise(); });

    StartAgain("\"C:\\Music\\Sun - Rise.mp3\" \"C:\\Music\\Moon - Fall.mp3\" \"http://example.org/\"");
    first.LogIn("Ann", "rose");
    first.Wait(14'000);

    EXPECT_EQ(Program::RowsOf(first.Browser().library.lists.lstTracks), (Texts{"Sun - Rise"}));
    EXPECT_EQ(Playing(), "");
    EXPECT_EQ(Tabs(), 0);
}

TEST_F(SecondStart, ACommandForAProgramThatEndsIsDropped) {
    first.Click(first.Browser().menus.mnuLogout);
    StartAgain("\"C:\\Music\\Sun - Rise.mp3\"");

    first.windows.login.frmLogin.UnloadWindow();
    first.desktop.EndHandler();

    EXPECT_TRUE(first.ended);
    EXPECT_TRUE(computer.database.Rows(scenario::kMediaPath, "tblSong").empty());
}

TEST_F(SecondStart, ALongTextThatIsNoTextHarmsNothing) {
    const std::string nonsense = "\"\xFF\xFE" + std::string(1U << 20U, 'x') + "\"";

    EXPECT_TRUE(StartAgain(nonsense));
    first.Wait(3'000);
    StartAgain("\"C:\\Music\\Sun - Rise.mp3\"");
    first.Wait(1'000);

    EXPECT_EQ(Playing(), "C:\\Music\\Sun - Rise.mp3");
}

TEST_F(SecondStart, FilesChosenInTheMenuTakeTheSameWay) {
    first.dialogs.Chosen = {{"/Music/Moon - Fall.mp3", "/Music/Sun - Rise.mp3"}};

    first.Click(first.Browser().menus.mnuOpenMediaFile);
    first.Wait(1'000);

    EXPECT_EQ(Playing(), "C:\\Music\\Moon - Fall.mp3");
    EXPECT_EQ(Cued(), (Texts{"Sun - Rise"}));
}

TEST_F(StartStory, TheFileTypeIsClaimedAtEveryReloadOfTheLists) {
    computer.AddUser("Ann", "rose");
    Program program(computer);
    const auto claims = [this] {
        return std::count(computer.registry.Operations.begin(), computer.registry.Operations.end(), "notify");
    };
    program.Start();
    EXPECT_EQ(claims(), 1);
    const Texts contents = computer.registry.Contents(ports::RegistryRoot::ClassesRoot);
    EXPECT_EQ(contents.size(), 10U);

    program.LogIn("Ann", "rose");
    program.Wait(12'000);
    program.dialogs.Typed = {"Evening"};
    program.Click(program.Browser().menus.mnuNewPlayList);

    EXPECT_GT(claims(), 1);
    EXPECT_EQ(computer.registry.Contents(ports::RegistryRoot::ClassesRoot), contents);
}

TEST_F(StartStory, ARefusedStartClaimsNoFileType) {
    computer.files.Remove(scenario::kMediaPath);
    Program program(computer);

    program.Start();

    EXPECT_TRUE(computer.registry.Operations.empty());
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
