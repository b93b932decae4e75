#include "session/SessionHarness.h"

namespace {

using session_tests::Count;
using session_tests::Texts;

class HomePages : public session_tests::CoreTest {
protected:
    HomePages() {
        BindSettings();
        splash.SetStage("Media Library");
    }
};

TEST_F(HomePages, HomePagesOpenInTableOrder) {
    stores.Seed("tblFavs", {{"2", "Home Pages", "  - One", "http://one.example/"},
                            {"3", "News", "  - Not", "http://not.example/"},
                            {"4", "Home Pages", "  - Blank", "   "},
                            {"5", "Home Pages", "  - Two", "http://two.example/"}});

    settings.OpenHomePages();

    EXPECT_EQ(near.Log, (Texts{"EnterAsWeb http://one.example/", "NameTab 1   - One",
                               "EnterAsWeb http://two.example/", "NameTab 2   - Two"}));
    EXPECT_TRUE(web.TabsShown);
    EXPECT_EQ(web.currentbrowser, 1);
    EXPECT_EQ(activate.lblLoading.Caption(), "Home pages");
}

TEST_F(HomePages, PagesBeginWithTheSettingsAndBeforeTheHomePages) {
    stores.Seed("tblFavs", {{"2", "Home Pages", "  - One", "http://one.example/"}});
    std::vector<Texts> seen;
    pages.OnBegin = [&] { seen.push_back(near.Log); };
    settings.LoadSettings();
    EXPECT_TRUE(pages.Log.empty()) << "nobody is logged in";
    near.Log.clear();
    session.LoggedIn = true;
    session.UserName = "Ann";

    settings.LoadSettings();

    EXPECT_EQ(pages.Log, Texts{"Begin Ann kept"});
    EXPECT_EQ(seen, std::vector<Texts>{{}});
}

TEST_F(HomePages, PagesOfAUserWhoKeepsNoHistoryKeepNothing) {
    SetSetting(16, "False");
    session.LoggedIn = true;
    session.UserName = "Ann";

    settings.LoadSettings();

    EXPECT_EQ(pages.Log, Texts{"Begin Ann forgotten"});
}

TEST_F(HomePages, WhereSettingsCannotBeReadPagesWorkAndKeepNothing) {
    session.LoggedIn = true;
    session.UserName = "Ann";
    settings.BeginPages();
    EXPECT_TRUE(pages.Log.empty()) << "nothing was tried yet";
    w.datHistory.SetDatabaseName(stores.Stores, "C:\\nowhere.mdb");

    settings.LoadSettings();

    EXPECT_EQ(pages.Log, Texts{"Begin Ann forgotten"});
}

TEST_F(HomePages, AfterALogOutTheFirstHomePageIsTheFrontTab) {
    stores.Seed("tblFavs", {{"2", "Home Pages", "  - One", "http://one.example/"},
                            {"3", "Home Pages", "  - Two", "http://two.example/"}});
    near.TabsVisible = {false, false, false};

    settings.OpenHomePages();

    EXPECT_EQ(web.currentbrowser, 3);
}

TEST_F(HomePages, AClosedTabIsNeverBroughtForward) {
    SetSetting(7, "False");
    near.TabsVisible = {false, false, true};
    settings.LoadSettings();
    EXPECT_EQ(near.Log, (Texts{"CloseMusicTab", "BringTabToFront 2"}));
    near.Log.clear();
    near.TabsVisible = {false, false, false};

    settings.LoadSettings();

    EXPECT_EQ(near.Log, Texts{"CloseMusicTab"});
}

TEST_F(HomePages, APageThatMovesTheRecordSetStopsNothing) {
    stores.Seed("tblFavs", {{"2", "Home Pages", "  - One", "http://one.example/"},
                            {"3", "Home Pages", "  - Two", "http://two.example/"}});
    near.OnEnter = [this] {
        w.datFav.Open("SELECT * from tblFavs");
        w.datFav.Recordset().MoveFirst();
    };

    settings.OpenHomePages();

    EXPECT_EQ(near.Count(), 3);
}

TEST_F(HomePages, NoHomePagesOpenWithoutConnectionOrOption) {
    stores.Seed("tblFavs", {{"2", "Home Pages", "  - One", "http://one.example/"}});
    connection.Internet_Connection = false;
    settings.OpenHomePages();
    connection.Internet_Connection = true;
    options.Open_Home_Pages = false;

    settings.OpenHomePages();

    EXPECT_TRUE(near.Log.empty());
    EXPECT_EQ(activate.lblLoading.Caption(), "Media Library");
}

TEST_F(HomePages, NoMorePagesOpenOnceTheProgramEnds) {
    stores.Seed("tblFavs", {{"2", "Home Pages", "  - One", "http://one.example/"},
                            {"3", "Home Pages", "  - Two", "http://two.example/"}});
    near.OnEnter = [this] { desktop.Ending = true; };

    settings.OpenHomePages();

    EXPECT_EQ(near.Count(), 2);
}

TEST_F(HomePages, WithoutHomePagesTheMusicTabDecides) {
    settings.LoadSettings();

    EXPECT_EQ(near.Log, Texts{"BringMusicTabToFront"});
    EXPECT_EQ(activate.lblLoading.Caption(), "Media GUI");
}

TEST_F(HomePages, AMusicTabThatWasNotInFrontIsClosed) {
    for (const auto* text : {"False", "", "true"}) {
        SetSetting(7, text);
        near.Log.clear();

        settings.LoadSettings();

        EXPECT_EQ(near.Log, Texts{"CloseMusicTab"}) << text;
        EXPECT_FALSE(web.MusicTabActive);
    }
}

TEST_F(HomePages, AClosedMusicTabBringsTheFirstPageToTheFront) {
    SetSetting(7, "False");
    near.TabsVisible = {false, true};

    settings.LoadSettings();

    EXPECT_EQ(near.Log, (Texts{"CloseMusicTab", "BringTabToFront 1"}));
}

TEST_F(HomePages, AStartWithACommandOpensOnTheMusicTab) {
    SetSetting(7, "False");
    session.StartedWithArguments = true;

    settings.LoadSettings();

    EXPECT_EQ(near.Log, Texts{"BringMusicTabToFront"});
}

TEST_F(HomePages, AHomePageInFrontDoesNotUnsetWhatWasRead) {
    stores.Seed("tblFavs", {{"2", "Home Pages", "  - One", "http://one.example/"}});
    near.OnEnter = [this] { web.MusicTabActive = false; };

    settings.LoadSettings();

    EXPECT_EQ(Count(near.Log, "BringMusicTabToFront"), 1);
    EXPECT_EQ(Count(near.Log, "CloseMusicTab"), 0);
}

}  // namespace
