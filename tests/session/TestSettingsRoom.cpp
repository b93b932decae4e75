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
        bool session::SessionOptions::* flag;
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

TEST_F(SettingsRoom, AStoreThatCannotBeReadEndsTheLoading) {
    stores.Database.FailOpen(fakes::SeededStores::kHistoryPath, ports::DatabaseError::Locked);

    settings.LoadSettings();

    EXPECT_EQ(w.cmbType.ListCount(), 0);
    EXPECT_TRUE(near.Log.empty());
    EXPECT_EQ(stores.Trouble.Troubles.size(), 1U);
}

}  // namespace
