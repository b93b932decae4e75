#include "session/SessionHarness.h"

namespace {

using session_tests::Row;

constexpr int kEndMark = store::NumberOf(store::SettingsRow::EndMark);

class StoredSettings : public session_tests::CoreTest {
protected:
    StoredSettings() {
        BindSettings();
        splash.SetStage("Media Library");
    }
};

TEST_F(StoredSettings, StoringWritesWhatIsSet) {
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

TEST_F(StoredSettings, StoredRowsAreOfTheKindSettings) {
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

TEST_F(StoredSettings, TheStoredSearchFieldIsTheFirstChecked) {
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

TEST_F(StoredSettings, WithoutSavingOnlyTheEndMarkIsWritten) {
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

TEST_F(StoredSettings, TheEndMarkIsWrittenFromTheActivationFlag) {
    SetSetting(9, "False");
    SetSetting(kEndMark, "False");
    settings.LoadSettings();
    options.Show_Activation = true;

    settings.StoreSettings();

    EXPECT_EQ(Setting(kEndMark), "True");
}

TEST_F(StoredSettings, RowsOfThePreferencesAndDatesStay) {
    SetSetting(5, "20250101");
    SetSetting(6, "20250101");
    SetSetting(12, "odd");
    settings.LoadSettings();

    settings.StoreSettings();

    EXPECT_EQ(Setting(5), "20250101");
    EXPECT_EQ(Setting(6), "20250101");
    EXPECT_EQ(Setting(12), "odd");
}

TEST_F(StoredSettings, SettingsThatWereNeverLoadedAreNotOverwritten) {
    SetSetting(3, "45");

    settings.StoreSettings();

    EXPECT_EQ(Setting(3), "45");
    EXPECT_EQ(Setting(1), "False");
}

TEST_F(StoredSettings, StoringFailsWithTheStore) {
    stores.Database.FailOpen(fakes::SeededStores::kHistoryPath, ports::DatabaseError::Damaged);

    EXPECT_FALSE(settings.StoreSettings());
}

}  // namespace
