#include "session/SessionHarness.h"

namespace {

using session_tests::Count;
using session_tests::Texts;
using StartUpRoom = session_tests::CoreTest;

class StartUpWithFiles : public session_tests::CoreTest {
protected:
    StartUpWithFiles() : CoreTest("\"C:\\a b.mp3\" \"C:\\c.mp3\"") {}
};

TEST_F(StartUpRoom, LoadingSetsTheStartValuesAndStartsTheTimer) {
    web.currentbrowser = 7;
    web.MusicTabActive = false;
    web.TabsShown = false;
    web.BackdropHidden = false;

    w.frmBrowser.LoadWindow();

    EXPECT_EQ(web.currentbrowser, 0);
    EXPECT_TRUE(web.MusicTabActive);
    EXPECT_TRUE(web.TabsShown);
    EXPECT_TRUE(web.BackdropHidden);
    EXPECT_FALSE(session.FirstLoadDone);
    EXPECT_TRUE(session.SplashPending);
    EXPECT_EQ(session.VideoPaneSize, "2400,2790");
    EXPECT_TRUE(start.IsLoading());
    EXPECT_TRUE(w.mnuExit.Enabled());
    EXPECT_FALSE(w.mnuLogout.Enabled());
}

TEST_F(StartUpRoom, LoadingDoesItsStepsInOrder) {
    player.SongSpeed = 30;

    w.frmBrowser.LoadWindow();

    EXPECT_EQ(near.Log, (Texts{"mailbox ", "mailbox Excuted with command: ", "SetDefaults",
                               "ClearVideoPicture", "TogglePanel", "NoMouseOvers", "ChooseQuickFade"}));
}

TEST_F(StartUpRoom, LogOutFollowsTheMultipleUsers) {
    login.Allow_Multiple_Users = true;

    w.frmBrowser.LoadWindow();

    EXPECT_TRUE(w.mnuLogout.Enabled());
}

TEST_F(StartUpRoom, LoadingReadsNoStore) {
    w.frmBrowser.LoadWindow();

    EXPECT_EQ(stores.Database.Opens, 0);
    EXPECT_TRUE(w.datSong.IsBound());
    EXPECT_TRUE(w.datPlayList.IsBound());
    EXPECT_TRUE(w.datFav.IsBound());
    EXPECT_TRUE(w.datHistory.IsBound());
}

TEST_F(StartUpRoom, AMissingFileIsPassedOverWithoutABox) {
    RemoveFile("\\dbMedia.mdb");

    w.frmBrowser.LoadWindow();

    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_FALSE(w.datSong.IsBound());
    EXPECT_FALSE(w.datPlayList.IsBound());
    EXPECT_TRUE(w.datFav.IsBound());
    EXPECT_TRUE(start.IsLoading());
}

TEST_F(StartUpRoom, EachMissingFileLeavesItsOwnSourcesUnbound) {
    const std::pair<const char*, const store::DataSource*> files_and_sources[] = {
        {"\\dbFavs.mdb", &w.datFav}, {"\\dbHistory.mdb", &w.datHistory}};
    for (const auto& [file, source] : files_and_sources)
        RemoveFile(file);

    w.frmBrowser.LoadWindow();

    for (const auto& [file, source] : files_and_sources)
        EXPECT_FALSE(source->IsBound()) << file;
    EXPECT_TRUE(w.datSong.IsBound());
    EXPECT_TRUE(boxes.Boxes.empty());
    EXPECT_TRUE(start.IsLoading());
}

TEST_F(StartUpRoom, ThePictureIsClearedAfterAYieldThatFollowsTheDefaults) {
    desktop.Post([this] { near.Log.emplace_back("yield"); });

    w.frmBrowser.LoadWindow();

    const int yielded = session_tests::PlaceOf(near.Log, "yield");
    EXPECT_EQ(yielded, session_tests::PlaceOf(near.Log, "SetDefaults") + 1);
    EXPECT_EQ(yielded, session_tests::PlaceOf(near.Log, "ClearVideoPicture") - 1);
}

TEST_F(StartUpRoom, AStartWithoutACommandHasNoArguments) {
    w.frmBrowser.LoadWindow();

    EXPECT_FALSE(session.StartedWithArguments);
    EXPECT_TRUE(session.StartArguments.empty());
    EXPECT_EQ(Count(near.Log, "NavigateBackdrop"), 0);
}

TEST_F(StartUpWithFiles, ACommandIsDeliveredAndSplit) {
    w.frmBrowser.LoadWindow();

    EXPECT_EQ(Count(near.Log, "mailbox Excuted with command: \"C:\\a b.mp3\" \"C:\\c.mp3\""), 1);
    EXPECT_TRUE(session.StartedWithArguments);
    EXPECT_EQ(session.StartArguments, (Texts{"\"C:\\a b.mp3", "C:\\c.mp3\""}));
    EXPECT_EQ(session.StartArgument, 0U);
    EXPECT_EQ(near.Log.back(),
              "NavigateBackdrop brindlepost://start/?referrer=quennet&origin=Brindlepost_BG");
    EXPECT_TRUE(start.IsLoading());
}

TEST_F(StartUpWithFiles, ASecondRunHandsOverAndUnloads) {
    near.Running = ports::Instance::Second;

    w.frmBrowser.Show();
    desktop.Advance(5000);

    EXPECT_EQ(near.Log, (Texts{"mailbox ", "HandOver \"C:\\a b.mp3\" \"C:\\c.mp3\"", "Unload frmBrowser"}));
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
    EXPECT_FALSE(w.frmBrowser.Visible());
    EXPECT_FALSE(activate.frmActivate.IsLoaded());
    EXPECT_FALSE(login_form.frmLogin.IsLoaded());
    EXPECT_FALSE(start.IsLoading());
    EXPECT_EQ(stores.Database.Opens, 0);
}

TEST_F(StartUpWithFiles, ARunThatCannotBeTheOnlyOneSaysSoAndUnloads) {
    near.Running = ports::Instance::Failed;

    w.frmBrowser.Show();
    desktop.Advance(5000);

    EXPECT_EQ(LastBox(), "The folder is gone.");
    EXPECT_EQ(near.Log, (Texts{"mailbox ", "Unload frmBrowser"}));
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
    EXPECT_EQ(stores.Database.Opens, 0);
}

TEST_F(StartUpRoom, TheListsAreLoadedOnTheFifthTick) {
    w.frmBrowser.LoadWindow();

    desktop.Advance(4 * session::kLoadInterval);
    EXPECT_EQ(Count(near.Log, "Command1"), 0);
    desktop.Advance(session::kLoadInterval);

    EXPECT_EQ(Count(near.Log, "Command1"), 1);
    EXPECT_FALSE(start.IsLoading());
}

TEST_F(StartUpRoom, TheFifthTickDoesItsStepsInOrder) {
    w.frmBrowser.Show();
    near.Log.clear();

    desktop.Advance(1000);

    EXPECT_EQ(near.Log, (Texts{"Command1", "PopulateHistory Web", "BringMusicTabToFront", "SettleFavourites",
                               "CorrectTabs"}));
    EXPECT_TRUE(session.FirstLoadDone);
    EXPECT_FALSE(session.SplashPending);
    EXPECT_TRUE(activate.frmActivate.Visible());
    EXPECT_TRUE(login_form.frmLogin.Visible());
    EXPECT_FALSE(w.frmBrowser.Enabled());
}

TEST_F(StartUpRoom, TheTimerIsStillOnWhileTheListsFill) {
    bool was_loading = false;
    near.OnCommand1 = [&] {
        splash.SetStage("Media Library");
        was_loading = start.IsLoading();
    };

    StartProgram();

    EXPECT_TRUE(was_loading);
    EXPECT_FALSE(start.IsLoading());
}

TEST_F(StartUpRoom, AnAddressThatIsThereAlreadyIsOpened) {
    near.Typed = "http://one.example/";

    StartProgram();

    EXPECT_EQ(Count(near.Log, "Enter http://one.example/"), 1);
    EXPECT_EQ(activate.lblLoading.Caption(), "Initial pages");
}

TEST_F(StartUpRoom, ABlankAddressIsNotOpened) {
    near.Typed = "   ";

    StartProgram();

    EXPECT_EQ(near.Count(), 1);
}

TEST_F(StartUpRoom, SettingsAreLoadedOnceOnly) {
    session.FirstLoadDone = true;
    w.frmBrowser.LoadWindow();
    session.FirstLoadDone = true;

    desktop.Advance(1000);

    EXPECT_EQ(Count(near.Log, "BringMusicTabToFront"), 0);
    EXPECT_EQ(w.cmbType.ListCount(), 0);
}

TEST_F(StartUpRoom, ASplashThatIsNotPendingIsNotShown) {
    w.frmBrowser.LoadWindow();
    session.SplashPending = false;
    w.frmBrowser.SetEnabled(true);

    desktop.Advance(1000);

    EXPECT_TRUE(w.frmBrowser.Enabled());
}

TEST_F(StartUpRoom, TheMainWindowIsRevealedAfterTheLogin) {
    SeedUser("ann", "a");
    StartProgram();
    TypeLogin("ann", "a");

    login_form.cmdLogin.Click.Raise();
    EXPECT_FALSE(w.frmBrowser.Visible());
    desktop.Advance(12000);

    EXPECT_TRUE(w.frmBrowser.Visible());
    EXPECT_TRUE(w.frmBrowser.Enabled());
    EXPECT_FALSE(activate.frmActivate.Visible());
    EXPECT_FALSE(login_form.frmLogin.Visible());
}

TEST_F(StartUpRoom, AnAutomaticLoginWhileTheListsFillStillReveals) {
    SeedUser("ann", "a", "False", "True");
    near.OnCommand1 = [this] {
        splash.SetStage("Media Library");
        for (int i = 0; i < 400; ++i)
            desktop.Advance(100);
    };
    near.OnSettle = [this] {
        w.frmBrowser.Show();
        w.frmBrowser.SetEnabled(true);
    };

    StartProgram();
    desktop.Advance(12000);

    EXPECT_TRUE(session.LoggedIn);
    EXPECT_TRUE(w.frmBrowser.Visible());
    EXPECT_TRUE(w.frmBrowser.Enabled());
    EXPECT_FALSE(activate.frmActivate.Visible());
}

TEST_F(StartUpRoom, TheSplashThatCountsAgainHidesTheMainWindow) {
    SeedUser("ann", "a", "False", "True");
    near.OnCommand1 = [this] {
        splash.SetStage("Media Library");
        for (int i = 0; i < 400; ++i)
            desktop.Advance(100);
    };
    near.OnSettle = [this] { w.frmBrowser.Show(); };
    w.frmBrowser.Show();

    desktop.Advance(50);

    EXPECT_TRUE(session.LoggedIn);
    EXPECT_FALSE(w.frmBrowser.Visible());
    EXPECT_TRUE(activate.frmActivate.Visible());
    EXPECT_TRUE(activate.Timer1.Enabled());
}

TEST_F(StartUpRoom, ALoginClosedWhileTheListsFillEndsTheStart) {
    SetSetting(3, "45");
    near.OnCommand1 = [this] {
        splash.SetStage("Media Library");
        login_form.frmLogin.UnloadWindow();
    };

    StartProgram();

    EXPECT_FALSE(w.frmBrowser.IsLoaded());
    EXPECT_EQ(Count(near.Log, "PopulateHistory Web"), 0);
    EXPECT_EQ(Count(near.Log, "SettleFavourites"), 0);
    EXPECT_EQ(Setting(3), "45");
}

TEST_F(StartUpRoom, AProgramThatEndsStopsTheStart) {
    near.OnCommand1 = [this] { desktop.Ending = true; };

    StartProgram();

    EXPECT_EQ(Count(near.Log, "SettleFavourites"), 0);
    EXPECT_FALSE(start.IsLoading());
}

}  // namespace
