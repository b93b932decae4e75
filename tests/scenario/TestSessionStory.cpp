#include <gtest/gtest.h>

#include <memory>

#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;
using Texts = std::vector<std::string>;

constexpr const char* kExitQuestion = "You currently have web tabs open, are you sure you want to exit?";
constexpr const char* kLogOutQuestion = "You currently have web tabs open, are you sure you want to log out?";

class SessionStory : public testing::Test {
protected:
    SessionStory() {
        computer.AddUser("Ann", "rose");
        computer.AddToLibrary(1, "Sun", "Rise");
        computer.AddPage("http://one.example/", "One");
        Run();
    }

    /// Ends the run before, if there is one, and starts and logs in.
    void Run() {
        program.reset();
        program = std::make_unique<Program>(computer);
        program->StartAndLogIn("Ann", "rose");
    }
    window::BrowserForm& Browser() { return program->Browser(); }

    Computer computer;
    std::unique_ptr<Program> program;
};

TEST_F(SessionStory, ExitWithoutTabsEndsWithoutAQuestion) {
    program->Click(Browser().menus.mnuExit);

    EXPECT_TRUE(program->BoxTexts().empty());
    EXPECT_TRUE(program->ended);
    for (const controls::Form* window : program->windows.All())
        EXPECT_FALSE(window->IsLoaded()) << window->Name();
}

TEST_F(SessionStory, ExitWithAnOpenTabAsksAndNoKeepsTheProgram) {
    program->GoTo("one.example");
    program->dialogs.Answers = {ports::BoxAnswer::No};

    program->Click(Browser().menus.mnuExit);

    EXPECT_EQ(program->BoxTexts(), (Texts{kExitQuestion}));
    EXPECT_EQ(program->dialogs.Boxes[0].title, "Exit Brindlepost");
    EXPECT_FALSE(program->ended);
    EXPECT_TRUE(Browser().Visible());
    EXPECT_TRUE(Browser().web.tabs.tabtab(1).Visible());
}

TEST_F(SessionStory, ExitWithAnOpenTabAsksAndYesEnds) {
    program->GoTo("one.example");
    program->dialogs.Answers = {ports::BoxAnswer::Yes};

    program->Click(Browser().menus.mnuExit);

    EXPECT_EQ(program->BoxTexts(), (Texts{kExitQuestion}));
    EXPECT_TRUE(program->ended);
}

TEST_F(SessionStory, ExitStopsWhatPlays) {
    Browser().library.lists.lstTracks.SetListIndex(0);
    program->DoubleClick(Browser().library.lists.lstTracks);
    ASSERT_TRUE(computer.media.IsOpen("a"));

    program->Click(Browser().menus.mnuExit);

    EXPECT_FALSE(computer.media.IsOpen("a"));
    EXPECT_TRUE(program->ended);
}

TEST_F(SessionStory, SettingsSurviveToTheNextRun) {
    program->Click(Browser().menus.mnuRepeat);
    program->Click(Browser().menus.mnuShuffle);
    program->Click(Browser().menus.mnuSearchTitle);
    Browser().web.refresh.txtRefresh.SetText("90");
    program->Click(Browser().menus.mnuExit);
    EXPECT_EQ(computer.Setting(1), "True");
    EXPECT_EQ(computer.Setting(2), "True");
    EXPECT_EQ(computer.Setting(3), "90");
    EXPECT_EQ(computer.Setting(4), "Title");

    Run();

    EXPECT_TRUE(Browser().menus.mnuRepeat.Checked());
    EXPECT_TRUE(Browser().player.transport.imgRepeat.Visible());
    EXPECT_TRUE(Browser().menus.mnuShuffle.Checked());
    EXPECT_TRUE(Browser().menus.mnuSearchTitle.Checked());
    EXPECT_FALSE(Browser().menus.mnuSearchBroad.Checked());
    EXPECT_EQ(Browser().web.refresh.txtRefresh.Text(), "90");
}

TEST_F(SessionStory, HomePagesOpenAtTheNextStart) {
    computer.database.Seed(scenario::kFavouritesPath, "tblFavs",
                           {{"2", "Home Pages", "First", "http://one.example/"}});

    Run();
    program->LetPagesArrive();

    ASSERT_EQ(Browser().web.tabs.tabtab.Count(), 2);
    EXPECT_EQ(Browser().web.tabs.Browser(1).LocationURL(), "http://one.example/");
    EXPECT_EQ(Browser().web.tabs.tabLabel(1).Caption(), "One");
}

TEST_F(SessionStory, AHomePageThatIsASongPlaysAndLeavesNoTabInFront) {
    computer.AddSong("C:\\a.mp3");
    computer.database.Seed(scenario::kFavouritesPath, "tblFavs", {{"2", "Home Pages", "Song", "C:\\a.mp3"}});
    Run();
    ASSERT_EQ(Browser().web.tabs.tabtab.Count(), 1);
    ASSERT_TRUE(computer.media.IsOpen("a"));

    program->Click(Browser().web.navigation.imgBackOver);
    program->Click(Browser().favourites.imgAddOver);
    program->Click(program->windows.add.cmdCancel);
    program->Click(Browser().web.tabs.tabMusicClose);
    program->Click(Browser().menus.mnuCloseCurrentTab);

    EXPECT_EQ(Browser().Caption(), "Brindlepost - Music Player");
    EXPECT_EQ(program->windows.add.txtURL.Text(), "");
}

TEST_F(SessionStory, LogOutGoesBackToTheLoginAndIn) {
    program->Click(Browser().menus.mnuLogout);
    EXPECT_FALSE(program->ended);
    EXPECT_FALSE(Browser().Visible());
    EXPECT_TRUE(program->windows.login.frmLogin.Visible());

    program->LogIn("Ann", "rose");
    program->Wait(12'000);

    EXPECT_TRUE(Browser().Visible());
    EXPECT_FALSE(program->windows.login.frmLogin.Visible());
}

TEST_F(SessionStory, EachUserIsKnownToSitesAsThemselves) {
    computer.AddUser("Bob", "thorn");
    computer.web["http://in.example/"] = {
        .title = "Sign in", .frames = {}, .pop_up = "", .gives_cookie = true, .title_with_cookie = "Welcome"};
    Run();
    const auto visit = [this] {
        program->GoTo("in.example");
        program->LetPagesArrive();
        return Browser().web.tabs.tabLabel(program->main_window.Known().web.currentbrowser).Caption();
    };
    const auto change_to = [this](const char* name, const char* password) {
        program->dialogs.Answers = {ports::BoxAnswer::Yes};
        program->Click(Browser().menus.mnuLogout);
        program->LogIn(name, password);
        program->Wait(12'000);
    };

    EXPECT_EQ(visit(), "Sign in");
    EXPECT_EQ(visit(), "Welcome");
    change_to("Bob", "thorn");
    EXPECT_EQ(visit(), "Sign in");
    change_to("Ann", "rose");
    EXPECT_EQ(visit(), "Welcome");
}

TEST_F(SessionStory, TheNextUserFindsTheirHomePageInFrontAndNothingOfTheTabsBefore) {
    computer.AddUser("Bob", "thorn");
    computer.AddPage("http://two.example/", "Two");
    computer.database.Seed(scenario::kFavouritesPath, "tblFavs",
                           {{"2", "Home Pages", "First", "http://one.example/"}});
    Run();
    program->LetPagesArrive();
    program->GoTo("two.example");
    program->LetPagesArrive();
    Browser().web.address.cmbType.SetText("Search");
    program->Click(Browser().web.tabs.tabMusicClose);
    program->dialogs.Answers = {ports::BoxAnswer::Yes};

    program->Click(Browser().menus.mnuLogout);
    program->LogIn("Bob", "thorn");
    program->Wait(12'000);
    program->LetPagesArrive();

    auto& tabs = Browser().web.tabs;
    ASSERT_EQ(tabs.tabtab.Count(), 4);
    EXPECT_FALSE(tabs.tabtab(1).Visible());
    EXPECT_FALSE(tabs.tabtab(2).Visible());
    EXPECT_TRUE(tabs.tabtab(3).Visible());
    EXPECT_EQ(tabs.Browser(3).LocationURL(), "http://one.example/");
    EXPECT_EQ(program->PageOf(1), nullptr) << "a page of the user before";
    program->Click(Browser().web.navigation.lblRefresh2);
    program->LetPagesArrive();
    EXPECT_EQ(program->PageOf(3)->Calls.back(), "Refresh");
    EXPECT_EQ(Browser().Caption(), "Brindlepost - One");
}

TEST_F(SessionStory, AutomaticRefreshEndsWithTheLogin) {
    program->GoTo("one.example");
    program->LetPagesArrive();
    Browser().web.refresh.txtRefresh.SetText("2");
    program->Click(Browser().web.refresh.imgCheck);
    program->dialogs.Answers = {ports::BoxAnswer::Yes};

    program->Click(Browser().menus.mnuLogout);

    EXPECT_FALSE(Browser().web.refresh.tmrRefresh.Enabled());
    EXPECT_FALSE(Browser().web.refresh.imgCheckChecked.Visible());
    EXPECT_EQ(Browser().web.refresh.txtRefresh.Text(), "2") << "it is a setting";
}

TEST_F(SessionStory, NoPageLoadsBeforeTheLogin) {
    computer.database.Seed(scenario::kFavouritesPath, "tblFavs",
                           {{"2", "Home Pages", "First", "http://one.example/"}});
    program.reset();
    program = std::make_unique<Program>(computer);

    program->Start();
    ASSERT_EQ(Browser().web.tabs.Browser.Count(), 2);
    EXPECT_EQ(program->PageOf(1), nullptr);
    EXPECT_TRUE(program->pages.Log.empty());

    program->LogIn("Ann", "rose");
    EXPECT_EQ(program->pages.Log, Texts{"Begin Ann kept"});
    program->LetPagesArrive();
    EXPECT_EQ(Browser().web.tabs.Browser(1).LocationURL(), "http://one.example/");
}

TEST_F(SessionStory, ALoginPageGetsWhatTheUserStoredAndOnlyFromItsOwnHost) {
    computer.database.Seed(
        scenario::kLoginPath, "tblLogin",
        {{"Eve", "fern", " owl", " hoot", " lark@one.example", " trill", " ", " ", "False", "False"}});
    const fakes::FakePage form{"Sign in", {}, "", {"email", "password"}, "theForm", "https://pal.example/in"};
    computer.web["https://pal.example/"] = form;
    computer.web["https://pal.example/in?email=owl&password=hoot"] = {"Welcome", {}, ""};
    computer.web["http://one.example/?pal.example"] = form;
    program.reset();
    program = std::make_unique<Program>(computer);
    program->StartAndLogIn("Eve", "fern");

    program->GoTo("https://pal.example/");
    program->LetPagesArrive();
    program->GoTo("http://one.example/?pal.example");
    program->LetPagesArrive();

    EXPECT_EQ(Browser().web.tabs.tabLabel(1).Caption(), "Welcome");
    EXPECT_EQ(Browser().web.tabs.Browser(2).LocationURL(), "http://one.example/?pal.example");
    EXPECT_EQ(program->PageOf(2)->Hosts, Texts{"pal.example"}) << "the routine is called there, too";
}

TEST_F(SessionStory, LogOutLeavesNothingOfTheUserToTheNext) {
    computer.AddUser("Bob", "thorn");
    Run();
    program->GoTo("one.example");
    program->LetPagesArrive();
    program->GoTo("two.example");
    program->Click(Browser().web.tabs.tabClose(1));
    Browser().library.lists.lstTracks.SetListIndex(0);
    program->DoubleClick(Browser().library.lists.lstTracks);
    program->Click(Browser().menus.mnuPreferences);
    program->Click(Browser().menus.mnuSoundTest);
    Browser().web.address.txtAddress.SetText("a secret");
    program->dialogs.Answers = {ports::BoxAnswer::Yes};

    program->Click(Browser().menus.mnuLogout);

    for (const controls::Form* window : program->windows.All())
        EXPECT_EQ(window->Visible(), window == &program->windows.login.frmLogin) << window->Name();
    EXPECT_EQ(program->pages.User, "");
    for (int i = 1; i < Browser().web.tabs.Browser.Count(); ++i)
        EXPECT_EQ(Browser().web.tabs.Browser(i).Engine(), nullptr) << i;
    EXPECT_FALSE(computer.media.IsOpen("a"));
    EXPECT_EQ(program->board.Shown.status, ports::PlaybackStatus::Stopped);
    EXPECT_EQ(program->board.Shown.title, "");
    EXPECT_FALSE(program->board.Shown.can_play);
    program->board.Listener->OnPlay();
    program->desktop.EndHandler();
    EXPECT_FALSE(computer.media.IsOpen("a"));
    EXPECT_EQ(Browser().web.address.txtAddress.Text(), "");

    program->LogIn("Bob", "thorn");
    program->Wait(12'000);
    EXPECT_TRUE(Browser().Visible());
    EXPECT_TRUE(Browser().Enabled());
    EXPECT_TRUE(program->board.Shown.can_play);
    program->GoTo("one.example");
    program->LetPagesArrive();
    EXPECT_EQ(Browser().web.tabs.Browser(Browser().web.tabs.Browser.Count() - 1).LocationURL(),
              "http://one.example/");
}

TEST_F(SessionStory, LogOutEndsAVideoAndItsWindow) {
    const std::string path = computer.AddToLibrary(2, "Owls", "Flight", {}, "avi");
    Run();
    program->GoTo(path);
    program->Wait(500);
    ASSERT_TRUE(program->windows.frmVideo.Visible());
    ASSERT_TRUE(program->screen_saver.Inhibited);

    program->Click(Browser().menus.mnuLogout);

    EXPECT_FALSE(program->windows.frmVideo.Visible());
    EXPECT_FALSE(Browser().player.video.picVideo.Visible());
    EXPECT_FALSE(program->screen_saver.Inhibited);
}

TEST_F(SessionStory, LogOutWithAnOpenTabAsksAndYesClosesTheTabs) {
    program->GoTo("one.example");
    program->dialogs.Answers = {ports::BoxAnswer::Yes};

    program->Click(Browser().menus.mnuLogout);

    EXPECT_EQ(program->BoxTexts(), (Texts{kLogOutQuestion}));
    EXPECT_FALSE(Browser().web.tabs.tabtab(1).Visible());
    EXPECT_TRUE(program->windows.login.frmLogin.Visible());
}

TEST_F(SessionStory, ClosingTheLoginAfterALogOutEndsTheProgram) {
    program->Click(Browser().menus.mnuLogout);

    program->windows.login.frmLogin.UnloadWindow();
    program->desktop.EndHandler();

    EXPECT_TRUE(program->ended);
}

TEST_F(SessionStory, WhatIsPlayedIsThereInTheNextRun) {
    Browser().library.lists.lstTracks.SetListIndex(0);
    program->DoubleClick(Browser().library.lists.lstTracks);
    program->Click(Browser().menus.mnuExit);

    Run();
    Browser().library.lists.lstPlayLists.SelectText("  [Top 20]");
    program->desktop.EndHandler();

    ASSERT_EQ(Browser().library.lists.lstTracks.ListCount(), 1);
    EXPECT_NE(Browser().library.lists.lstTracks.List(0).find("Sun"), std::string_view::npos);
}

TEST_F(SessionStory, AnExitThatCannotSaveSaysWhyAndStaysUntilTheUserGivesUp) {
    const std::pair<ports::DatabaseError, const char*> troubles[] = {
        {ports::DatabaseError::DiskFull, "the disk is full"},
        {ports::DatabaseError::Locked, "another program is holding it"},
        {ports::DatabaseError::ReadOnly, "the file or its folder is read-only"}};
    for (const auto& [trouble, reason] : troubles) {
        SCOPED_TRACE(reason);
        Run();
        program->Click(Browser().menus.mnuShuffle);
        computer.database.FailApply(scenario::kHistoryPath, trouble);

        program->Click(Browser().menus.mnuExit);
        program->Wait(1000);
        ASSERT_EQ(program->BoxTexts().size(), 1U);
        EXPECT_NE(program->BoxTexts()[0].find(reason), std::string::npos);
        EXPECT_FALSE(program->ended);
        EXPECT_TRUE(Browser().Visible());
        EXPECT_TRUE(Browser().Enabled());

        program->dialogs.Answers = {ports::BoxAnswer::Yes};
        program->Click(Browser().menus.mnuExit);
        EXPECT_EQ(program->BoxTexts().size(), 2U);
        EXPECT_TRUE(program->ended);
        for (const controls::Form* window : program->windows.All())
            EXPECT_FALSE(window->IsLoaded()) << window->Name();
        computer.database.FailApply(scenario::kHistoryPath, ports::DatabaseError::None);
    }
}

TEST_F(SessionStory, AnExitSavesWhatOnlyTheStoresOfOthersCouldNotTakeBefore) {
    Browser().library.lists.lstTracks.SetListIndex(0);
    computer.database.FailApply(scenario::kMediaPath, ports::DatabaseError::Locked);
    program->DoubleClick(Browser().library.lists.lstTracks);
    program->Wait(1000);
    EXPECT_EQ(program->BoxTexts().size(), 1U) << "told while it ran";

    program->Click(Browser().menus.mnuExit);
    EXPECT_FALSE(program->ended);
    computer.database.FailApply(scenario::kMediaPath, ports::DatabaseError::None);
    program->Click(Browser().menus.mnuExit);

    EXPECT_TRUE(program->ended);
    EXPECT_EQ(computer.database.Rows(scenario::kMediaPath, "tblSong")[0][4], "1");
}

TEST_F(SessionStory, AnEndByTheSystemGoesOnThoughNothingCanBeSaved) {
    program->Click(Browser().menus.mnuShuffle);
    computer.database.FailApply(scenario::kHistoryPath, ports::DatabaseError::DiskFull);

    program->main_window.End();

    EXPECT_TRUE(program->BoxTexts().empty());
    EXPECT_TRUE(program->ended);
}

TEST_F(SessionStory, ADamagedHistoryStoreIsToldAtTheStartAndHoldsUpNoExit) {
    computer.database.FailOpen(scenario::kHistoryPath, ports::DatabaseError::Damaged);
    Run();
    const std::size_t told = program->BoxTexts().size();
    EXPECT_EQ(told, 1U);

    program->Click(Browser().menus.mnuExit);

    EXPECT_EQ(program->BoxTexts().size(), told);
    EXPECT_TRUE(program->ended);
    for (const controls::Form* window : program->windows.All())
        EXPECT_FALSE(window->IsLoaded()) << window->Name();
}

TEST_F(SessionStory, AStoreThatCannotBeWrittenIsToldAndTheProgramGoesOn) {
    computer.database.FailApply(scenario::kHistoryPath, ports::DatabaseError::DiskFull);

    program->GoTo("one.example");
    program->LetPagesArrive();
    program->Wait(5000);

    EXPECT_EQ(program->BoxTexts().size(), 1U);
    EXPECT_FALSE(program->ended);
    computer.database.FailApply(scenario::kHistoryPath, ports::DatabaseError::None);
    program->Wait(5000);
    EXPECT_EQ(computer.database.Rows(scenario::kHistoryPath, "tblHistory").back()[1], "Web");
    EXPECT_EQ(program->BoxTexts().size(), 1U);
}

}  // namespace
