#include <cstdint>
#include <limits>

#include "session/SessionHarness.h"

namespace {

using session_tests::Count;
using session_tests::Row;
using session_tests::Texts;

constexpr int kEndMark = store::NumberOf(store::SettingsRow::EndMark);

class SettingsRoom : public session_tests::CoreTest {
protected:
    SettingsRoom() {
        BindSettings();
        splash.SetStage("Media Library");
    }

    Texts Types() {
        Texts types;
        for (int i = 0; i < w.cmbType.ListCount(); ++i)
            types.emplace_back(w.cmbType.List(i));
        return types;
    }
};

TEST_F(SettingsRoom, RepeatAndShuffleNeedTheTextTrue) {
    const struct {
        const char* text;
        bool on;
    } cases[] = {{"True", true}, {"", false}, {"true", false}, {"False", false}, {"yes", false}};
    for (const auto& one : cases) {
        SetSetting(1, one.text);
        SetSetting(2, one.text);

        settings.LoadSettings();

        EXPECT_EQ(w.mnuRepeat.Checked(), one.on) << one.text;
        EXPECT_EQ(w.mnuShuffle.Checked(), one.on) << one.text;
    }
}

TEST_F(SettingsRoom, LoadingTwiceKeepsRepeatOn) {
    SetSetting(1, "True");
    settings.LoadSettings();

    settings.LoadSettings();

    EXPECT_TRUE(w.mnuRepeat.Checked());
}

TEST_F(SettingsRoom, TheRefreshSecondsAreTakenAsText) {
    SetSetting(3, "often");

    settings.LoadSettings();

    EXPECT_EQ(w.txtRefresh.Text(), "often");
}

TEST_F(SettingsRoom, TheSearchFieldChecksItsEntryOnly) {
    const struct {
        const char* text;
        controls::Menu* entry;
    } cases[] = {
        {"Broad", &w.mnuSearchBroad},       {"Title", &w.mnuSearchTitle}, {"Artist", &w.mnuSearchArtist},
        {"Filename", &w.mnuSearchFilename}, {"broad", nullptr},           {"", nullptr}};
    for (const auto& one : cases) {
        SetSetting(4, one.text);

        settings.LoadSettings();

        for (controls::Menu* entry :
             {&w.mnuSearchBroad, &w.mnuSearchTitle, &w.mnuSearchArtist, &w.mnuSearchFilename}) {
            EXPECT_EQ(entry->Checked(), entry == one.entry) << one.text << " " << entry->Name();
        }
    }
}

TEST_F(SettingsRoom, ADateOfZeroBecomesToday) {
    SetSetting(5, "0");
    SetSetting(6, "0");

    settings.LoadSettings();

    EXPECT_EQ(Setting(5), "20260309");
    EXPECT_EQ(Setting(6), "20260309");
    EXPECT_EQ(options.DaysStampA, 0);
    EXPECT_EQ(options.LastPlayListBackUp, 20260309);
}

TEST_F(SettingsRoom, AnAgeIsThePlainDifferenceOfTheStamps) {
    SetSetting(5, "20251231");
    SetSetting(6, "20260228");

    settings.LoadSettings();

    EXPECT_EQ(options.DaysStampA, 9078);
    EXPECT_EQ(options.LastPlayListBackUp, 20260228);
    EXPECT_EQ(Setting(5), "20251231");
    EXPECT_EQ(Setting(6), "20260228");
}

TEST_F(SettingsRoom, ADateBeyond32BitsStaysAtTheEndOfTheirRange) {
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
    const struct {
        const char* text;
        std::int32_t stamp;
        std::int32_t age;
    } cases[] = {{"20260309123456", kMost, 20260309 - kMost},
                 {"1e300", kMost, 20260309 - kMost},
                 {"-1e300", kLeast, kMost},
                 {"99999999999999999999", kMost, 20260309 - kMost}};
    for (const auto& one : cases) {
        SetSetting(5, one.text);
        SetSetting(6, one.text);

        settings.LoadSettings();

        EXPECT_EQ(options.DaysStampA, one.age) << one.text;
        EXPECT_EQ(options.LastPlayListBackUp, one.stamp) << one.text;
    }
}

TEST_F(SettingsRoom, TheTitleScrollsUnlessTheTextIsFalse) {
    const struct {
        const char* text;
        bool on;
    } cases[] = {{"False", false}, {"", true}, {"maybe", true}, {"false", true}};
    for (const auto& one : cases) {
        SetSetting(8, one.text);
        player.ScrollTitle = !one.on;

        settings.LoadSettings();

        EXPECT_EQ(player.ScrollTitle, one.on) << one.text;
    }
}

TEST_F(SettingsRoom, EachOptionHasItsFlagAndItsBox) {
    const struct {
        int id;
        bool session::SessionOptions::*flag;
        controls::CheckBox* box;
    } cases[] = {{9, &session::SessionOptions::Save_Settings, &checks.chkSettings},
                 {10, &session::SessionOptions::Open_Home_Pages, &checks.chkHomePages},
                 {11, &session::SessionOptions::Allow_MSN_Name, &checks.chkMSN},
                 {12, &session::SessionOptions::Allow_MSN_Custom, &checks.chkCustom},
                 {13, &session::SessionOptions::Save_MSN_names, &checks.chkSaveMSN},
                 {15, &session::SessionOptions::Auto_Login, &checks.chkAutoLogin},
                 {16, &session::SessionOptions::Save_History, &checks.chkHistory},
                 {17, &session::SessionOptions::Allow_Search, &checks.chkGoogle},
                 {18, &session::SessionOptions::Allow_Open_File, &checks.chkFile},
                 {19, &session::SessionOptions::Include_Sub_Folders, &checks.chkSubFolders}};
    for (const auto& one : cases) {
        for (const auto& [text, on] :
             {std::pair{"False", false}, {"", true}, {"unknown", true}, {"True", true}}) {
            SetSetting(one.id, text);

            settings.LoadSettings();

            EXPECT_EQ(options.*one.flag, on) << one.id << " " << text;
            EXPECT_EQ(one.box->Checked(), on) << one.id << " " << text;
        }
    }
}

TEST_F(SettingsRoom, TheOptionsStartAsTheRowsAreShipped) {
    for (const session::Option& option : session::kOptions) {
        const store::Setting& setting = store::SettingOf(option.row);
        if (option.flag == nullptr) continue;
        EXPECT_EQ(options.*option.flag, store::IsOn(setting.row, setting.shipped))
            << store::NumberOf(setting.row);
    }
}

TEST_F(SettingsRoom, NoFlagAndNoBoxHasTwoRows) {
    for (const session::Option& one : session::kOptions) {
        for (const session::Option& other : session::kOptions) {
            if (one.row == other.row) continue;
            EXPECT_NE(one.box, other.box) << store::NumberOf(one.row);
            EXPECT_TRUE(one.flag == nullptr || one.flag != other.flag) << store::NumberOf(one.row);
        }
    }
}

TEST_F(SettingsRoom, OneOptionLeavesTheOthersAlone) {
    SetSetting(16, "False");

    settings.LoadSettings();

    EXPECT_FALSE(options.Save_History);
    EXPECT_TRUE(options.Auto_Login);
    EXPECT_TRUE(options.Allow_Search);
}

TEST_F(SettingsRoom, WithoutTheMessengerNameItsBoxesAreDisabled) {
    SetSetting(11, "False");
    SetSetting(12, "False");

    settings.LoadSettings();

    EXPECT_FALSE(checks.chkCustom.Enabled());
    EXPECT_FALSE(checks.chkSaveMSN.Enabled());
}

TEST_F(SettingsRoom, TheMessengerNamesBoxFollowsTheCustomText) {
    SetSetting(12, "False");
    settings.LoadSettings();
    EXPECT_FALSE(checks.chkSaveMSN.Enabled());
    SetSetting(12, "True");

    settings.LoadSettings();

    EXPECT_TRUE(checks.chkSaveMSN.Enabled());
}

TEST_F(SettingsRoom, MultipleUsersEnableTheirControls) {
    for (const auto& [text, on] :
         {std::pair{"False", false}, {"True", true}, {"False", false}, {"", true}, {"unknown", true}}) {
        SetSetting(14, text);

        settings.LoadSettings();

        EXPECT_EQ(checks.chkMultiLogin.Checked(), on) << text;
        EXPECT_EQ(checks.chkAutoLogin.Enabled(), on) << text;
        EXPECT_EQ(checks.cmdNewUser.Visible(), on) << text;
    }
}

TEST_F(SettingsRoom, TheMessengerTextEnablesTheBoxOfItsNamesAlsoWithoutTheMessenger) {
    SetSetting(11, "False");
    SetSetting(12, "True");

    settings.LoadSettings();

    EXPECT_FALSE(checks.chkCustom.Enabled());
    EXPECT_TRUE(checks.chkSaveMSN.Enabled());
}

TEST_F(SettingsRoom, NothingAfterTheEndMarkIsRead) {
    stores.Seed("tblHistory", {{"16", "Settings", "False"}});

    settings.LoadSettings();

    EXPECT_TRUE(options.Save_History);
}

TEST_F(SettingsRoom, HistoryRowsOfADeletedSettingsNumberAreTakenForIt) {
    store::DataSource source("datSeed");
    stores.Bind(source, "tblHistory");
    source.Open("SELECT * from tblHistory");
    store::RecordSet& rows = source.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (store::HistoryNumber(rows) > store::NumberOf(store::kLastRowOfDeletedHistory)) rows.Delete();
    }
    for (int number = store::NumberOf(store::kLastRowOfDeletedHistory) + 1; number <= kEndMark; ++number) {
        rows.AddNew();
        rows.Set(store::tblHistory::HistoryID, base::ToText(number));
        rows.Set(store::tblHistory::HistoryType, "Web");
        rows.Set(store::tblHistory::HistoryText, "http://one.example/");
        rows.Update();
    }
    options.Save_History = false;

    settings.LoadSettings();
    settings.StoreSettings();

    EXPECT_TRUE(options.Save_History);
    EXPECT_EQ(Setting(kEndMark - 1), "http://one.example/");
    EXPECT_EQ(stores.Rows("tblHistory").back(), (Row{base::ToText(kEndMark), "Settings", "False"}));
}

TEST_F(SettingsRoom, RowsOutsideTheTableArePassedOver) {
    store::DataSource source("datSeed");
    stores.Bind(source, "tblHistory");
    source.Open("SELECT * from tblHistory");
    source.Recordset().MoveFirst();
    source.Recordset().Edit();
    source.Recordset().Set(store::tblHistory::HistoryID, "0");
    source.Recordset().Set(store::tblHistory::HistoryText, "True");
    source.Recordset().Update();
    SetSetting(2, "True");

    settings.LoadSettings();

    EXPECT_FALSE(w.mnuRepeat.Checked());
    EXPECT_TRUE(w.mnuShuffle.Checked());
}

TEST_F(SettingsRoom, AMissingRowLeavesItsSettingAsItIs) {
    store::DataSource source("datSeed");
    stores.Bind(source, "tblHistory");
    source.Open("SELECT * from tblHistory");
    store::RecordSet& rows = source.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
        rows.Delete();

    settings.LoadSettings();

    EXPECT_TRUE(options.Save_Settings);
    EXPECT_TRUE(options.Save_History);
    EXPECT_EQ(Count(near.Log, "BringMusicTabToFront"), 1);
}

TEST_F(SettingsRoom, ARowThatYieldsDoesNotLoseItsPlace) {
    desktop.Post([this] {
        w.datHistory.Open("SELECT * from tblHistory");
        w.datHistory.Recordset().MoveLast();
    });
    SetSetting(19, "False");

    settings.LoadSettings();

    EXPECT_FALSE(options.Include_Sub_Folders);
}

TEST_F(SettingsRoom, TheTypesFollowConnectionAndOptions) {
    settings.LoadSettings();
    EXPECT_EQ(Types(), (Texts{"Web", "MSN", "File", "Search"}));
    EXPECT_TRUE(w.cmbType.Enabled());
    EXPECT_EQ(w.cmbType.ListIndex(), -1);
    SetSetting(12, "False");
    SetSetting(17, "False");

    settings.LoadSettings();

    EXPECT_EQ(Types(), (Texts{"Web", "File"}));
}

TEST_F(SettingsRoom, MessengerTextsNeedNameAndCustomText) {
    SetSetting(11, "False");

    settings.LoadSettings();

    EXPECT_EQ(Types(), (Texts{"Web", "File", "Search"}));
}

TEST_F(SettingsRoom, ASingleTypeIsChosenForGood) {
    for (const int id : {11, 17, 18})
        SetSetting(id, "False");

    settings.LoadSettings();

    EXPECT_EQ(Types(), Texts{"Web"});
    EXPECT_EQ(w.cmbType.Text(), "Web");
    EXPECT_FALSE(w.cmbType.Enabled());
}

TEST_F(SettingsRoom, MoreTypesAtALaterLoginCanBeChosenAgain) {
    for (const int id : {11, 17, 18})
        SetSetting(id, "False");
    settings.LoadSettings();
    SetSetting(18, "True");

    settings.LoadSettings();

    EXPECT_TRUE(w.cmbType.Enabled());
    EXPECT_EQ(Types(), (Texts{"Web", "File"}));
}

TEST_F(SettingsRoom, WithoutAConnectionOnlyFilesAreLeft) {
    connection.Internet_Connection = false;

    settings.LoadSettings();

    EXPECT_EQ(Types(), Texts{"File"});
    EXPECT_EQ(w.cmbType.Text(), "File");
    EXPECT_FALSE(w.cmbType.Enabled());
}

TEST_F(SettingsRoom, WithoutConnectionAndFilesNothingIsLeft) {
    connection.Internet_Connection = false;
    SetSetting(18, "False");

    settings.LoadSettings();

    EXPECT_TRUE(Types().empty());
    EXPECT_FALSE(w.cmbType.Enabled());
}

TEST_F(SettingsRoom, HomePagesOpenInTableOrder) {
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

TEST_F(SettingsRoom, PagesBeginWithTheSettingsAndBeforeTheHomePages) {
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

TEST_F(SettingsRoom, PagesOfAUserWhoKeepsNoHistoryKeepNothing) {
    SetSetting(16, "False");
    session.LoggedIn = true;
    session.UserName = "Ann";

    settings.LoadSettings();

    EXPECT_EQ(pages.Log, Texts{"Begin Ann forgotten"});
}

TEST_F(SettingsRoom, WhereSettingsCannotBeReadPagesWorkAndKeepNothing) {
    session.LoggedIn = true;
    session.UserName = "Ann";
    settings.BeginPages();
    EXPECT_TRUE(pages.Log.empty()) << "nothing was tried yet";
    w.datHistory.SetDatabaseName(stores.Stores, "C:\\nowhere.mdb");

    settings.LoadSettings();

    EXPECT_EQ(pages.Log, Texts{"Begin Ann forgotten"});
}

TEST_F(SettingsRoom, AfterALogOutTheFirstHomePageIsTheFrontTab) {
    stores.Seed("tblFavs", {{"2", "Home Pages", "  - One", "http://one.example/"},
                            {"3", "Home Pages", "  - Two", "http://two.example/"}});
    near.TabsVisible = {false, false, false};

    settings.OpenHomePages();

    EXPECT_EQ(web.currentbrowser, 3);
}

TEST_F(SettingsRoom, AClosedTabIsNeverBroughtForward) {
    SetSetting(7, "False");
    near.TabsVisible = {false, false, true};
    settings.LoadSettings();
    EXPECT_EQ(near.Log, (Texts{"CloseMusicTab", "BringTabToFront 2"}));
    near.Log.clear();
    near.TabsVisible = {false, false, false};

    settings.LoadSettings();

    EXPECT_EQ(near.Log, Texts{"CloseMusicTab"});
}

TEST_F(SettingsRoom, APageThatMovesTheRecordSetStopsNothing) {
    stores.Seed("tblFavs", {{"2", "Home Pages", "  - One", "http://one.example/"},
                            {"3", "Home Pages", "  - Two", "http://two.example/"}});
    near.OnEnter = [this] {
        w.datFav.Open("SELECT * from tblFavs");
        w.datFav.Recordset().MoveFirst();
    };

    settings.OpenHomePages();

    EXPECT_EQ(near.Count(), 3);
}

TEST_F(SettingsRoom, NoHomePagesOpenWithoutConnectionOrOption) {
    stores.Seed("tblFavs", {{"2", "Home Pages", "  - One", "http://one.example/"}});
    connection.Internet_Connection = false;
    settings.OpenHomePages();
    connection.Internet_Connection = true;
    options.Open_Home_Pages = false;

    settings.OpenHomePages();

    EXPECT_TRUE(near.Log.empty());
    EXPECT_EQ(activate.lblLoading.Caption(), "Media Library");
}

TEST_F(SettingsRoom, NoMorePagesOpenOnceTheProgramEnds) {
    stores.Seed("tblFavs", {{"2", "Home Pages", "  - One", "http://one.example/"},
                            {"3", "Home Pages", "  - Two", "http://two.example/"}});
    near.OnEnter = [this] { desktop.Ending = true; };

    settings.OpenHomePages();

    EXPECT_EQ(near.Count(), 2);
}

TEST_F(SettingsRoom, WithoutHomePagesTheMusicTabDecides) {
    settings.LoadSettings();

    EXPECT_EQ(near.Log, Texts{"BringMusicTabToFront"});
    EXPECT_EQ(activate.lblLoading.Caption(), "Media GUI");
}

TEST_F(SettingsRoom, AMusicTabThatWasNotInFrontIsClosed) {
    for (const auto* text : {"False", "", "true"}) {
        SetSetting(7, text);
        near.Log.clear();

        settings.LoadSettings();

        EXPECT_EQ(near.Log, Texts{"CloseMusicTab"}) << text;
        EXPECT_FALSE(web.MusicTabActive);
    }
}

TEST_F(SettingsRoom, AClosedMusicTabBringsTheFirstPageToTheFront) {
    SetSetting(7, "False");
    near.TabsVisible = {false, true};

    settings.LoadSettings();

    EXPECT_EQ(near.Log, (Texts{"CloseMusicTab", "BringTabToFront 1"}));
}

TEST_F(SettingsRoom, AStartWithACommandOpensOnTheMusicTab) {
    SetSetting(7, "False");
    session.StartedWithArguments = true;

    settings.LoadSettings();

    EXPECT_EQ(near.Log, Texts{"BringMusicTabToFront"});
}

TEST_F(SettingsRoom, AHomePageInFrontDoesNotUnsetWhatWasRead) {
    stores.Seed("tblFavs", {{"2", "Home Pages", "  - One", "http://one.example/"}});
    near.OnEnter = [this] { web.MusicTabActive = false; };

    settings.LoadSettings();

    EXPECT_EQ(Count(near.Log, "BringMusicTabToFront"), 1);
    EXPECT_EQ(Count(near.Log, "CloseMusicTab"), 0);
}

TEST_F(SettingsRoom, AStoreThatCannotBeReadEndsTheLoading) {
    stores.Database.FailOpen(fakes::SeededStores::kHistoryPath, ports::DatabaseError::Locked);

    settings.LoadSettings();

    EXPECT_EQ(w.cmbType.ListCount(), 0);
    EXPECT_TRUE(near.Log.empty());
    EXPECT_EQ(stores.Trouble.Troubles.size(), 1U);
}

TEST_F(SettingsRoom, StoringWritesWhatIsSet) {
    settings.LoadSettings();
    w.mnuRepeat.SetChecked(true);
    w.mnuShuffle.SetChecked(true);
    w.txtRefresh.SetText("15x");
    w.mnuSearchBroad.SetChecked(false);
    w.mnuSearchArtist.SetChecked(true);
    web.MusicTabActive = false;
    player.ScrollTitle = false;

    EXPECT_TRUE(settings.StoreSettings());

    EXPECT_EQ(Setting(1), "True");
    EXPECT_EQ(Setting(2), "True");
    EXPECT_EQ(Setting(3), "15x");
    EXPECT_EQ(Setting(4), "Artist");
    EXPECT_EQ(Setting(7), "False");
    EXPECT_EQ(Setting(8), "False");
    EXPECT_EQ(Setting(kEndMark), "False");
}

TEST_F(SettingsRoom, StoredRowsAreOfTheKindSettings) {
    settings.LoadSettings();
    store::DataSource source("datSeed");
    stores.Bind(source, "tblHistory");
    source.Open("SELECT * from tblHistory");
    store::RecordSet& rows = source.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        rows.Edit();
        rows.Set(store::tblHistory::HistoryType, "Web");
        rows.Update();
    }

    settings.StoreSettings();

    for (const Row& row : stores.Rows("tblHistory")) {
        const store::SettingsWriter writer =
            store::kSettings[static_cast<std::size_t>(base::WholeVal(row[0]) - 1)].writer;
        const bool is_stored = writer == store::SettingsWriter::EndOfSession ||
                               writer == store::SettingsWriter::EveryEndOfSession;
        EXPECT_EQ(row[1], is_stored ? "Settings" : "Web") << row[0];
    }
}

TEST_F(SettingsRoom, TheStoredSearchFieldIsTheFirstChecked) {
    settings.LoadSettings();
    w.mnuSearchBroad.SetChecked(false);
    settings.StoreSettings();
    EXPECT_EQ(Setting(4), "Filename");
    w.mnuSearchArtist.SetChecked(true);
    w.mnuSearchTitle.SetChecked(true);
    settings.StoreSettings();
    EXPECT_EQ(Setting(4), "Title");
    w.mnuSearchBroad.SetChecked(true);

    settings.StoreSettings();

    EXPECT_EQ(Setting(4), "Broad");
}

TEST_F(SettingsRoom, WithoutSavingOnlyTheEndMarkIsWritten) {
    SetSetting(9, "False");
    settings.LoadSettings();
    const std::vector<Row> before = stores.Rows("tblHistory");
    w.mnuRepeat.SetChecked(true);
    w.txtRefresh.SetText("99");
    options.Show_Activation = false;

    settings.StoreSettings();

    std::vector<Row> after = stores.Rows("tblHistory");
    EXPECT_EQ(after[kEndMark - 1], (Row{base::ToText(kEndMark), "Settings", "False"}));
    after[kEndMark - 1] = before[kEndMark - 1];
    EXPECT_EQ(after, before);
}

TEST_F(SettingsRoom, TheEndMarkIsWrittenFromTheActivationFlag) {
    SetSetting(9, "False");
    SetSetting(kEndMark, "False");
    settings.LoadSettings();
    options.Show_Activation = true;

    settings.StoreSettings();

    EXPECT_EQ(Setting(kEndMark), "True");
}

TEST_F(SettingsRoom, RowsOfThePreferencesAndDatesStay) {
    SetSetting(5, "20250101");
    SetSetting(6, "20250101");
    SetSetting(12, "odd");
    settings.LoadSettings();

    settings.StoreSettings();

    EXPECT_EQ(Setting(5), "20250101");
    EXPECT_EQ(Setting(6), "20250101");
    EXPECT_EQ(Setting(12), "odd");
}

TEST_F(SettingsRoom, SettingsThatWereNeverLoadedAreNotOverwritten) {
    SetSetting(3, "45");

    settings.StoreSettings();

    EXPECT_EQ(Setting(3), "45");
    EXPECT_EQ(Setting(1), "False");
}

TEST_F(SettingsRoom, StoringFailsWithTheStore) {
    stores.Database.FailOpen(fakes::SeededStores::kHistoryPath, ports::DatabaseError::Damaged);

    EXPECT_FALSE(settings.StoreSettings());
}

}  // namespace
