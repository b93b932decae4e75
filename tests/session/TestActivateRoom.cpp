#include "session/SessionHarness.h"

namespace {

using ActivateRoom = session_tests::CoreTest;
using session_tests::Count;
using session_tests::Texts;

constexpr std::string_view kMissingText =
    "Some of your databases are not in there correct directory, please re-install the application to ensure "
    "all "
    "databases and components are corerct.\r\nBrindlepost can be downloaded from brindlepost://start/";

TEST_F(ActivateRoom, TheSplashIsDesignedAtRest) {
    EXPECT_EQ(activate.lblLoading.Caption(), "Brindlepost");
    EXPECT_EQ(activate.lblNowLoading.Caption(), "Now Loading...");
    EXPECT_EQ(activate.lblNoConnection.Caption(), "Cannot find Internet connection");
    EXPECT_EQ(activate.cmdRetry.Caption(), "Retry");
    EXPECT_EQ(activate.cmdJustMusic.Caption(), "Skip");
    EXPECT_EQ(activate.cmdClose.Caption(), "X");
    EXPECT_FALSE(activate.fraConnection.Visible());
    for (const controls::Timer* timer : {&activate.Timer1, &activate.Timer2}) {
        EXPECT_FALSE(timer->Enabled());
        EXPECT_EQ(timer->Interval(), 100);
    }
}

TEST_F(ActivateRoom, ConnectionFlagsStartAsTheyShould) {
    EXPECT_TRUE(connection.Internet_Connection);
    EXPECT_FALSE(connection.Just_Music);
}

TEST_F(ActivateRoom, TheFirstStageLoadsTheSplashAndBringsUpTheLogin) {
    connection.Internet_Connection = false;
    connection.Just_Music = true;

    splash.SetStage("Media Library");

    EXPECT_TRUE(activate.frmActivate.Visible());
    EXPECT_TRUE(login_form.frmLogin.Visible());
    EXPECT_TRUE(connection.Internet_Connection);
    EXPECT_FALSE(connection.Just_Music);
    EXPECT_EQ(activate.lblLoading.Caption(), "Media Library");
    EXPECT_EQ(activate.Browser.WaitingAddress(), "brindlepost://start/");
    EXPECT_TRUE(boxes.Boxes.empty());
}

/// Counts the yields after a window was shown.
class YieldsAfterShow final : private controls::ControlObserver {
public:
    YieldsAfterShow(controls::Form& form, const fakes::FakeDesktop& desktop)
        : form_(form), desktop_(desktop) {
        form_.SetObserver(this);
    }
    ~YieldsAfterShow() override { form_.SetObserver(nullptr); }

    int Count() const { return before_ < 0 ? 0 : desktop_.Yields - before_; }

private:
    void OnPropertyChanged(controls::Control& control, controls::Property property) override {
        if (&control == &form_ && property == controls::Property::Visible) before_ = desktop_.Yields;
    }

    controls::Form& form_;
    const fakes::FakeDesktop& desktop_;
    int before_ = -1;
};

// The lists that are filled next may be long.
TEST_F(ActivateRoom, TheLoginIsSeenBeforeTheFirstStageIsOver) {
    const YieldsAfterShow yields(login_form.frmLogin, desktop);

    splash.SetStage("Media Library");

    EXPECT_EQ(yields.Count(), 1);
}

TEST_F(ActivateRoom, LoadingSetsTheBarToZero) {
    activate.pbLoad.SetValue(50);

    splash.SetStage("Logging in");

    EXPECT_EQ(activate.lblLoading.Caption(), "Logging in");
    EXPECT_EQ(activate.pbLoad.Value(), 10);
}

TEST_F(ActivateRoom, LaterStagesLoadNothing) {
    splash.SetStage("Media Library");
    login_form.frmLogin.Hide();

    splash.SetStage("Favourites");

    EXPECT_FALSE(login_form.frmLogin.Visible());
    EXPECT_EQ(activate.lblLoading.Caption(), "Favourites");
}

TEST_F(ActivateRoom, AMissingStoreIsRefusedWithABox) {
    for (const auto* file : {"\\dbFavs.mdb", "\\dbMedia.mdb", "\\dbHistory.mdb", "\\dbLogin.mdb"}) {
        RemoveFile(file);
        boxes.Boxes.clear();

        splash.DoLoading();

        ASSERT_EQ(boxes.Boxes.size(), 1U) << file;
        EXPECT_EQ(boxes.Boxes[0].text, kMissingText) << file;
        EXPECT_EQ(boxes.Boxes[0].title, "Database missing...") << file;
        EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::Critical) << file;
        EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::Ok) << file;
        files.AddFile(std::string(session_tests::kAppPath).append(file));
    }
}

TEST_F(ActivateRoom, AMissingStoreStopsBothTimers) {
    splash.SetStage("Media Library");
    RemoveFile("\\dbMedia.mdb");
    activate.Timer1.SetEnabled(true);
    activate.Timer2.SetEnabled(true);
    bool timers_run = true;
    boxes.OnBox = [&] { timers_run = activate.Timer1.Enabled() || activate.Timer2.Enabled(); };

    splash.DoLoading();

    EXPECT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_FALSE(timers_run);
}

TEST_F(ActivateRoom, LoadingGoesOnWithTheMainWindowShownAndHidden) {
    splash.SetStage("Logging in");
    w.frmBrowser.LoadWindow();
    near.Log.clear();

    splash.DoLoading();

    EXPECT_EQ(near.Log, (Texts{"NoMouseOvers", "FocusAddress"})) << "its activation";
    EXPECT_FALSE(w.frmBrowser.Visible());
    EXPECT_TRUE(activate.Timer1.Enabled());
    EXPECT_EQ(activate.lblLoading.Caption(), "Media Library");
}

TEST_F(ActivateRoom, AMissingStoreStopsTheProgramAtTheSplash) {
    RemoveFile("\\dbMedia.mdb");
    w.frmBrowser.Show();

    desktop.Advance(2000);

    EXPECT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_FALSE(activate.frmActivate.IsLoaded());
    EXPECT_FALSE(login_form.frmLogin.IsLoaded());
    EXPECT_FALSE(w.frmBrowser.IsLoaded());
    EXPECT_EQ(Count(near.Log, "PopulateHistory Web"), 0);
    EXPECT_EQ(Count(near.Log, "SettleFavourites"), 0);
    EXPECT_EQ(stores.Database.Opens, 0);
}

TEST_F(ActivateRoom, AFolderOfThatNameCountsAsMissing) {
    RemoveFile("\\dbMedia.mdb");
    files.AddFolder("C:\\app\\dbMedia.mdb");

    splash.SetStage("Media Library");

    EXPECT_EQ(LastBox(), kMissingText);
    EXPECT_FALSE(activate.frmActivate.IsLoaded());
    EXPECT_FALSE(login_form.frmLogin.Visible());
}

TEST_F(ActivateRoom, AStageAfterTheRefusalDoesNotBringTheSplashBack) {
    RemoveFile("\\dbMedia.mdb");
    splash.SetStage("Media Library");

    splash.SetStage("Favourites");

    EXPECT_FALSE(activate.frmActivate.IsLoaded());
    EXPECT_EQ(boxes.Boxes.size(), 1U);
}

TEST_F(ActivateRoom, EachNewStageAddsTen) {
    splash.SetStage("Media Library");
    const int before = activate.pbLoad.Value();

    splash.SetStage("Favourites");
    splash.SetStage("Favourites");

    EXPECT_EQ(before, 20);
    EXPECT_EQ(activate.pbLoad.Value(), 30);
}

TEST_F(ActivateRoom, AStageThatWouldPassTheEndIsIgnored) {
    splash.SetStage("Media Library");
    activate.pbLoad.SetValue(95);

    splash.SetStage("Favourites");

    EXPECT_EQ(activate.pbLoad.Value(), 95);
}

TEST_F(ActivateRoom, CountingAddsOneATickAndRevealsAtOneHundred) {
    splash.SetStage("Media Library");
    activate.pbLoad.SetValue(97);
    splash.StartCounting();

    desktop.Advance(200);
    EXPECT_EQ(activate.pbLoad.Value(), 99);
    EXPECT_FALSE(w.frmBrowser.Visible());
    desktop.Advance(100);

    EXPECT_TRUE(w.frmBrowser.Visible());
    EXPECT_TRUE(w.frmBrowser.Enabled());
    EXPECT_TRUE(w.mnuExit.Enabled());
    EXPECT_TRUE(w.mnuLogout.Enabled());
    EXPECT_FALSE(activate.frmActivate.Visible());
    EXPECT_TRUE(activate.frmActivate.IsLoaded());
    EXPECT_FALSE(activate.Timer1.Enabled());
}

TEST_F(ActivateRoom, TheRevealGoesInOrder) {
    splash.SetStage("Media Library");
    activate.pbLoad.SetValue(99);
    w.frmBrowser.LoadWindow();
    w.frmBrowser.SetEnabled(false);
    w.mnuExit.SetEnabled(false);
    struct : controls::ControlObserver {
        void OnPropertyChanged(controls::Control& control, controls::Property property) override {
            if (property == controls::Property::Enabled) Log->push_back("enabled " + control.Name());
            if (property == controls::Property::Visible)
                Log->push_back((control.Visible() ? "shown " : "hidden ") + control.Name());
        }
        Texts* Log = nullptr;
    } watch;
    watch.Log = &near.Log;
    const std::vector<controls::Control*> watched = {&w.frmBrowser, &w.mnuExit, &w.mnuLogout,
                                                     &activate.frmActivate};
    for (controls::Control* control : watched)
        control->SetObserver(&watch);
    near.Log.clear();

    activate.Timer1.Tick.Raise();

    for (controls::Control* control : watched)
        control->SetObserver(nullptr);
    EXPECT_EQ(near.Log,
              (Texts{"enabled frmBrowser", "enabled mnuExit", "enabled mnuLogout", "shown frmBrowser",
                     "NoMouseOvers", "FocusAddress", "hidden frmActivate", "OpenMusicTab"}));
}

TEST_F(ActivateRoom, AFullBarStillWaitsForATick) {
    splash.SetStage("Media Library");
    activate.pbLoad.SetValue(90);
    splash.StartCounting();

    splash.SetStage("Media GUI");
    EXPECT_EQ(activate.pbLoad.Value(), 100);
    EXPECT_FALSE(w.frmBrowser.Visible());
    desktop.Advance(100);

    EXPECT_TRUE(w.frmBrowser.Visible());
}

TEST_F(ActivateRoom, TheSplashStaysInFrontWhileItCounts) {
    splash.SetStage("Media Library");
    splash.StartCounting();
    activate.frmActivate.Hide();

    desktop.Advance(100);

    EXPECT_TRUE(activate.frmActivate.Visible());
}

TEST_F(ActivateRoom, TheRevealOpensTheMusicTabWhenItIsThere) {
    splash.SetStage("Media Library");
    activate.pbLoad.SetValue(100);
    splash.StartCounting();

    desktop.Advance(100);

    EXPECT_EQ(Count(near.Log, "OpenMusicTab"), 1);
}

TEST_F(ActivateRoom, TheRevealLeavesAClosedMusicTabClosed) {
    near.MusicTabVisible = false;
    splash.SetStage("Media Library");
    activate.pbLoad.SetValue(100);
    splash.StartCounting();

    desktop.Advance(100);

    EXPECT_EQ(Count(near.Log, "OpenMusicTab"), 0);
}

TEST_F(ActivateRoom, LogOutIsEnabledAfterTheRevealWhateverTheLoadDecided) {
    w.frmBrowser.LoadWindow();
    splash.SetStage("Media Library");
    ASSERT_FALSE(w.mnuLogout.Enabled());
    activate.pbLoad.SetValue(100);
    splash.StartCounting();

    desktop.Advance(100);

    EXPECT_TRUE(w.mnuLogout.Enabled());
}

TEST_F(ActivateRoom, TheSplashCannotBeClosedByItself) {
    splash.SetStage("Media Library");

    EXPECT_FALSE(activate.frmActivate.UnloadWindow());
}

TEST_F(ActivateRoom, NobodyStartsTheProbeInANormalRun) {
    SeedUser("ann", "pw", "True", "True");
    StartProgram();

    desktop.Advance(20000);

    EXPECT_TRUE(w.frmBrowser.Visible());
    EXPECT_FALSE(activate.Timer2.Enabled());
    EXPECT_FALSE(activate.fraConnection.Visible());
    EXPECT_TRUE(connection.Internet_Connection);
}

/// The probe, with a page engine behind it.
class ConnectionProbe : public session_tests::CoreTest {
protected:
    ConnectionProbe() {
        splash.SetStage("Media Library");
        activate.Browser.Attach(&engine);
    }
    ~ConnectionProbe() override { activate.Browser.Attach(nullptr); }

    struct ProbeEngine final : ports::BrowserControl {
        void SetListener(ports::BrowserListener*) override {}
        void Navigate(std::string_view) override {}
        void GoBack() override {}
        void GoForward() override {}
        void Refresh() override { ++Refreshes; }
        std::string LocationURL() const override { return Url; }
        std::string LocationName() const override { return Url; }
        bool Busy() const override { return BusyAnswers-- > 0; }

        std::string Url = "http://elsewhere.example/";
        int Refreshes = 0;
        mutable int BusyAnswers = 0;
    };
    ProbeEngine engine;
};

TEST_F(ConnectionProbe, RetryHidesThePanelAndStartsTheProbe) {
    activate.fraConnection.SetVisible(true);

    activate.cmdRetry.Click.Raise();

    EXPECT_FALSE(activate.fraConnection.Visible());
    EXPECT_TRUE(activate.Timer2.Enabled());
}

TEST_F(ConnectionProbe, AReachedMakerGoesOnLoading) {
    activate.cmdRetry.Click.Raise();
    desktop.Advance(300);
    EXPECT_EQ(activate.lblLoading.Caption(), "Internet connection");
    engine.Url = "brindlepost://start/index.html";

    desktop.Advance(100);

    EXPECT_FALSE(activate.Timer2.Enabled());
    EXPECT_TRUE(activate.Timer1.Enabled());
    EXPECT_EQ(activate.lblLoading.Caption(), "Media Library");
    EXPECT_FALSE(w.frmBrowser.Visible());
    EXPECT_FALSE(activate.fraConnection.Visible());
}

TEST_F(ConnectionProbe, FiveSecondsWithoutTheMakerShowThePanel) {
    activate.cmdRetry.Click.Raise();

    desktop.Advance(4900);
    EXPECT_FALSE(activate.fraConnection.Visible());
    desktop.Advance(100);

    EXPECT_TRUE(activate.fraConnection.Visible());
    EXPECT_FALSE(activate.Timer2.Enabled());
    EXPECT_FALSE(activate.Timer1.Enabled());
}

TEST_F(ConnectionProbe, AFindOnTheLastTickCountsAsAFailure) {
    activate.cmdRetry.Click.Raise();
    desktop.Advance(4900);
    engine.Url = "brindlepost://start/";

    desktop.Advance(100);

    EXPECT_TRUE(activate.fraConnection.Visible());
    EXPECT_FALSE(activate.Timer1.Enabled());
}

TEST_F(ConnectionProbe, TheProbeCountsFromZeroAgainAfterAFailure) {
    activate.cmdRetry.Click.Raise();
    desktop.Advance(5000);
    activate.cmdRetry.Click.Raise();

    desktop.Advance(4900);

    EXPECT_FALSE(activate.fraConnection.Visible());
    EXPECT_TRUE(activate.Timer2.Enabled());
}

TEST_F(ConnectionProbe, SkipAndCloseGoOnWithoutAConnection) {
    for (controls::CommandButton* button : {&activate.cmdJustMusic, &activate.cmdClose}) {
        activate.fraConnection.SetVisible(true);
        activate.Timer1.SetEnabled(false);
        connection = {};

        button->Click.Raise();

        EXPECT_FALSE(activate.fraConnection.Visible()) << button->Name();
        EXPECT_TRUE(activate.Timer1.Enabled()) << button->Name();
        EXPECT_FALSE(connection.Internet_Connection) << button->Name();
        EXPECT_TRUE(connection.Just_Music) << button->Name();
        EXPECT_FALSE(w.frmBrowser.Visible()) << button->Name();
        EXPECT_EQ(activate.lblLoading.Caption(), "Media Library") << button->Name();
        EXPECT_TRUE(activate.frmActivate.IsLoaded()) << button->Name();
    }
}

TEST_F(ConnectionProbe, ResumingWaitsForThePageAndCountsOn) {
    connection.Internet_Connection = false;
    activate.fraConnection.SetVisible(true);
    activate.Browser.SetEnabled(false);
    engine.BusyAnswers = 3;
    const int yields = desktop.Yields;

    splash.ResumeConnection();

    EXPECT_TRUE(connection.Internet_Connection);
    EXPECT_FALSE(activate.fraConnection.Visible());
    EXPECT_TRUE(activate.Browser.Enabled());
    EXPECT_EQ(engine.Refreshes, 1);
    EXPECT_EQ(desktop.Yields - yields, 3);
    EXPECT_TRUE(activate.Timer1.Enabled());
}

TEST_F(ConnectionProbe, WaitingEndsWithTheProgram) {
    engine.BusyAnswers = 1000000000;
    desktop.Ending = true;

    splash.ResumeConnection();

    EXPECT_GT(engine.BusyAnswers, 999999000);
}

}  // namespace
