#include "base/Text.h"
#include "session/PreferencesPane.h"

namespace {

using session::kOptions;
using session::Option;
using session_tests::kHistoryPath;
using session_tests::Row;
using session_tests::Texts;
using store::SettingsRow;

constexpr const char* kSaved =
    "Your settings have been saved.\r\nMost changes will only take affect when you restart this application.";

class PreferencesRoom : public session_tests::PreferencesTest {
protected:
    void Open() { menu.mnuPreferences.Click.Raise(); }
    std::string Setting(SettingsRow row) { return CoreTest::Setting(store::NumberOf(row)); }
    void Tick(bool msn, bool custom, bool save) {
        checks.chkMSN.SetChecked(msn);
        checks.chkCustom.SetChecked(custom);
        checks.chkSaveMSN.SetChecked(save);
    }
};

TEST_F(PreferencesRoom, TheMenuOpensTheWindowOnTheOptions) {
    Open();

    EXPECT_TRUE(info.frmInfo.Visible());
    EXPECT_EQ(info.frmInfo.Caption(), "Brindlepost - Preferences");
    EXPECT_TRUE(info.fraOptions.Visible());
    EXPECT_FALSE(info.maintenance.fraMisc.Visible());
    EXPECT_FALSE(info.back_up.fraBackUp.Visible());
    EXPECT_TRUE(info.datHistory.IsBound());
}

TEST_F(PreferencesRoom, TheMenuOfThePlaylistsOpensTheWindowOnTheBackUp) {
    menu.mnuEditPlaylists.Click.Raise();

    EXPECT_TRUE(info.frmInfo.Visible());
    EXPECT_TRUE(info.back_up.fraBackUp.Visible());
    EXPECT_FALSE(info.fraOptions.Visible());
    EXPECT_EQ(near.Log.back(), "DisplayPlayLists");
}

TEST_F(PreferencesRoom, EachButtonShowsItsPaneAlone) {
    Open();
    const struct {
        controls::CommandButton* button;
        controls::Frame* pane;
    } cases[] = {{&info.cmdHistory, &info.maintenance.fraMisc}, {&info.cmdBackingUp, &info.back_up.fraBackUp},
                 {&info.cmdOptions, &info.fraOptions},          {&info.cmdBackingUp, &info.back_up.fraBackUp},
                 {&info.cmdHistory, &info.maintenance.fraMisc}, {&info.cmdOptions, &info.fraOptions}};
    for (const auto& one : cases) {
        one.button->Click.Raise();

        for (const controls::Frame* frame :
             {&info.fraOptions, &info.maintenance.fraMisc, &info.back_up.fraBackUp}) {
            EXPECT_EQ(frame->Visible(), frame == one.pane) << frame->Name() << " by " << one.button->Name();
        }
        for (const controls::CommandButton* button : {&info.cmdOptions, &info.cmdHistory, &info.cmdBackingUp})
            EXPECT_EQ(button->Look() == "ambertext", button == one.button) << button->Name();
    }
}

TEST_F(PreferencesRoom, TheCaptionsAreThese) {
    const struct {
        const controls::CheckBox& box;
        const char* caption;
    } cases[] = {{checks.chkSettings, "Save settings on log out and close"},
                 {checks.chkHomePages, "Open home pages on startup"},
                 {checks.chkMSN, "Show \"What I'm listening to\" on MSN"},
                 {checks.chkCustom, "Allow custom MSN message"},
                 {checks.chkSaveMSN, "Save MSN custom messages"},
                 {checks.chkMultiLogin, "Allow multiple logins"},
                 {checks.chkAutoLogin, "Use auto-logins (hotmail + myspace)"},
                 {checks.chkHistory, "Save history"},
                 {checks.chkGoogle, "Allow quick Google searching on address bar"},
                 {checks.chkFile, "Allow file open on address bar"},
                 {checks.chkSubFolders, "Include sub-folders when adding new media."},
                 {checks.chkWebAddress, "Use address bar for more than just websites"}};
    for (const auto& one : cases)
        EXPECT_EQ(one.box.Caption(), one.caption) << one.box.Name();
    EXPECT_EQ(checks.cmdNewUser.Caption(), "Create New User");
    EXPECT_TRUE(base::Contains(info.lblFileType.Caption(), "audio/mpeg"));
    EXPECT_TRUE(base::Contains(info.lblFileType.Caption(), "mimeapps.list read-only"));
}

TEST_F(PreferencesRoom, EveryControlOfThePanesHasItsOwnPlace) {
    for (const controls::Frame* frame :
         {&info.fraOptions, &info.maintenance.fraMisc, &info.back_up.fraBackUp}) {
        for (const controls::Control* one : frame->Children()) {
            if (!one->Visible()) continue;
            EXPECT_GT(one->Width(), 0) << one->Name();
            EXPECT_LE(one->Right(), frame->Width()) << one->Name();
            EXPECT_LE(one->Bottom(), frame->Height()) << one->Name();
            for (const controls::Control* other : frame->Children()) {
                if (one == other || !other->Visible()) continue;
                const bool apart = one->Right() <= other->Left() || other->Right() <= one->Left() ||
                                   one->Bottom() <= other->Top() || other->Bottom() <= one->Top();
                EXPECT_TRUE(apart) << one->Name() << " lies over " << other->Name();
            }
        }
    }
}

TEST_F(PreferencesRoom, ApplyStoresEachBoxInItsRowAndNothingElse) {
    for (const bool ticked : {false, true}) {
        for (const Option& changed : kOptions) {
            Open();
            for (const Option& option : kOptions)
                (checks.*option.box).SetChecked(true);
            (checks.*changed.box).SetChecked(ticked);
            const std::vector<Row> before = stores.Rows("tblHistory");

            info.cmdApply.Click.Raise();

            EXPECT_EQ(Setting(changed.row), base::FlagText(ticked)) << store::NumberOf(changed.row);
            for (const Row& row : before) {
                const auto number = static_cast<int>(base::WholeVal(row[0]));
                if (store::SettingOf(static_cast<SettingsRow>(number)).writer !=
                    store::SettingsWriter::Preferences) {
                    EXPECT_EQ(CoreTest::Setting(number), row[2]) << number;
                }
            }
        }
    }
}

TEST_F(PreferencesRoom, ARowThatDependsOnAnotherIsOnOnlyWithIt) {
    for (int ticks = 0; ticks < 32; ++ticks) {
        const bool msn = (ticks & 1) != 0;
        const bool custom = (ticks & 2) != 0;
        const bool save = (ticks & 4) != 0;
        const bool multi = (ticks & 8) != 0;
        const bool auto_login = (ticks & 16) != 0;
        Open();
        Tick(msn, custom, save);
        checks.chkMultiLogin.SetChecked(multi);
        checks.chkAutoLogin.SetChecked(auto_login);

        info.cmdApply.Click.Raise();

        EXPECT_EQ(Setting(SettingsRow::MessengerName), base::FlagText(msn)) << ticks;
        EXPECT_EQ(Setting(SettingsRow::MessengerCustom), base::FlagText(msn && custom)) << ticks;
        EXPECT_EQ(Setting(SettingsRow::SaveMessengerNames), base::FlagText(msn && custom && save)) << ticks;
        EXPECT_EQ(Setting(SettingsRow::MultipleUsers), base::FlagText(multi)) << ticks;
        EXPECT_EQ(Setting(SettingsRow::AutoLogin), base::FlagText(multi && auto_login)) << ticks;
    }
}

TEST_F(PreferencesRoom, ApplySaysSoAndHidesTheWindow) {
    Open();

    info.cmdApply.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text, kSaved);
    EXPECT_EQ(boxes.Boxes[0].title, "Settings Saved");
    EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::Information);
    EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::Ok);
    EXPECT_FALSE(info.frmInfo.Visible());
    EXPECT_TRUE(info.frmInfo.IsLoaded());
}

TEST_F(PreferencesRoom, AppliedRowsAreOfTheKindSettings) {
    store::DataSource source("datSeed");
    stores.Bind(source, "tblHistory");
    source.Open(store::kAllHistory);
    store::RecordSet& rows = source.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        rows.Edit();
        rows.Set(store::tblHistory::HistoryType, "Web");
        rows.Update();
    }
    Open();

    info.cmdApply.Click.Raise();

    for (const Row& row : stores.Rows("tblHistory")) {
        const auto number = static_cast<int>(base::WholeVal(row[0]));
        EXPECT_EQ(row[1], number >= 9 && number <= 19 ? "Settings" : "Web") << number;
    }
}

TEST_F(PreferencesRoom, AChangedOptionHasNoEffectBeforeTheSettingsAreLoaded) {
    settings.LoadSettings();
    Open();
    checks.chkHistory.SetChecked(false);
    checks.chkSubFolders.SetChecked(false);

    info.cmdApply.Click.Raise();

    EXPECT_TRUE(options.Save_History);
    EXPECT_TRUE(options.Include_Sub_Folders);

    settings.LoadSettings();

    EXPECT_FALSE(options.Save_History);
    EXPECT_FALSE(options.Include_Sub_Folders);
}

TEST_F(PreferencesRoom, NothingIsSaidToBeSavedThatIsNot) {
    for (const auto error :
         {ports::DatabaseError::DiskFull, ports::DatabaseError::ReadOnly, ports::DatabaseError::Locked}) {
        Open();
        checks.chkHistory.SetChecked(!checks.chkHistory.Checked());
        stores.Database.FailApply(kHistoryPath, error);
        boxes.Boxes.clear();

        info.cmdApply.Click.Raise();

        ASSERT_EQ(boxes.Boxes.size(), 1U);
        EXPECT_TRUE(base::StartsWith(
            boxes.Boxes[0].text, "Your settings could not be saved.\r\nThe file \"dbHistory.mdb\" can not"))
            << boxes.Boxes[0].text;
        EXPECT_TRUE(info.frmInfo.Visible());
        EXPECT_EQ(stores.Trouble.Troubles.back().error, error);

        stores.Database.FailApply(kHistoryPath, ports::DatabaseError::None);
        info.cmdApply.Click.Raise();

        EXPECT_EQ(BoxTexts().back(), kSaved);
        EXPECT_EQ(Setting(SettingsRow::SaveHistory), base::FlagText(checks.chkHistory.Checked()));
    }
}

TEST_F(PreferencesRoom, AStoreThatCannotBeOpenedIsNotSavedTo) {
    stores.Database.FailOpen(kHistoryPath, ports::DatabaseError::Damaged);
    Open();

    info.cmdApply.Click.Raise();

    EXPECT_EQ(BoxTexts(), Texts{"Your settings could not be saved."});
    EXPECT_TRUE(info.frmInfo.Visible());
}

// The numbers of deleted rows belong to whatever row has them now.
TEST_F(PreferencesRoom, ApplyWritesRowsByTheirNumberWhateverTheyWere) {
    SetSetting(16, "http://one.example/");
    Open();
    checks.chkHistory.SetChecked(false);

    info.cmdApply.Click.Raise();

    EXPECT_EQ(Setting(SettingsRow::SaveHistory), "False");
}

TEST_F(PreferencesRoom, TheMessengersBoxesFollowOneAnother) {
    Tick(true, true, true);
    EXPECT_TRUE(checks.chkCustom.Enabled());
    EXPECT_TRUE(checks.chkSaveMSN.Enabled());

    checks.chkMSN.SetChecked(false);
    EXPECT_FALSE(checks.chkCustom.Enabled());
    EXPECT_FALSE(checks.chkSaveMSN.Enabled());

    checks.chkMSN.SetChecked(true);
    EXPECT_TRUE(checks.chkCustom.Enabled());
    EXPECT_TRUE(checks.chkSaveMSN.Enabled());

    checks.chkCustom.SetChecked(false);
    EXPECT_FALSE(checks.chkSaveMSN.Enabled());

    checks.chkMSN.SetChecked(false);
    checks.chkMSN.SetChecked(true);
    EXPECT_TRUE(checks.chkCustom.Enabled());
    EXPECT_FALSE(checks.chkSaveMSN.Enabled());

    checks.chkCustom.SetChecked(true);
    EXPECT_TRUE(checks.chkSaveMSN.Enabled());
}

TEST_F(PreferencesRoom, TheAutoLoginFollowsTheMultipleLogins) {
    checks.chkMultiLogin.SetChecked(true);
    checks.chkMultiLogin.SetChecked(false);
    EXPECT_FALSE(checks.chkAutoLogin.Enabled());

    checks.chkMultiLogin.SetChecked(true);
    EXPECT_TRUE(checks.chkAutoLogin.Enabled());
}

// The boxes listen while the settings are loaded as well; what loading enables still holds.
TEST_F(PreferencesRoom, LoadedSettingsDecideWhatIsEnabled) {
    for (int stored = 0; stored < 4; ++stored) {
        const bool msn = (stored & 1) != 0;
        const bool custom = (stored & 2) != 0;
        for (const bool before : {false, true}) {
            Tick(before, before, before);
            SetSetting(11, base::FlagText(msn));
            SetSetting(12, base::FlagText(custom));

            settings.LoadSettings();

            EXPECT_EQ(checks.chkMSN.Checked(), msn) << stored;
            EXPECT_EQ(checks.chkCustom.Checked(), custom) << stored;
            EXPECT_EQ(checks.chkCustom.Enabled(), msn) << stored;
            EXPECT_EQ(checks.chkSaveMSN.Enabled(), custom) << stored;
        }
    }
}

TEST_F(PreferencesRoom, CreateNewUserOpensTheWizardOnItsFirstPage) {
    Open();

    checks.cmdNewUser.Click.Raise();

    EXPECT_TRUE(login_form.frmLogin.Visible());
    EXPECT_TRUE(login_form.fraNew.Visible());
    EXPECT_FALSE(login_form.fraLogin.Visible());
}

TEST_F(PreferencesRoom, ClosingTheWindowOnlyHidesIt) {
    Open();
    checks.chkHistory.SetChecked(!checks.chkHistory.Checked());
    const bool ticked = checks.chkHistory.Checked();

    EXPECT_FALSE(info.frmInfo.UnloadWindow());

    EXPECT_FALSE(info.frmInfo.Visible());
    EXPECT_TRUE(info.frmInfo.IsLoaded());
    EXPECT_EQ(checks.chkHistory.Checked(), ticked);
    EXPECT_EQ(Setting(SettingsRow::SaveHistory), "True");
}

TEST_F(PreferencesRoom, TheEndOfTheProgramUnloadsTheWindow) {
    Open();
    info.unloadme = true;

    EXPECT_TRUE(info.frmInfo.UnloadWindow());

    EXPECT_FALSE(info.frmInfo.IsLoaded());
    EXPECT_FALSE(info.frmInfo.Visible());
}

TEST_F(PreferencesRoom, EscapeHidesTheWindowAndOtherKeysDoNot) {
    Open();
    info.frmInfo.KeyDown.Raise(controls::kKeyDelete, 0);
    EXPECT_TRUE(info.frmInfo.Visible());

    info.frmInfo.KeyDown.Raise(controls::kKeyEscape, 0);

    EXPECT_FALSE(info.frmInfo.Visible());
}

TEST_F(PreferencesRoom, EnterAppliesOnTheOptionsAndBacksUpOnTheBackUp) {
    EXPECT_TRUE(info.cmdApply.IsDefault());
    EXPECT_EQ(info.cmdApply.Parent(), &info.fraOptions);
    EXPECT_TRUE(pane.cmdBackUpAll.IsDefault());
    EXPECT_EQ(pane.cmdBackUpAll.Parent(), &pane.fraBackUp);
    for (const controls::Control* control : info.maintenance.fraMisc.Children()) {
        const auto* const button = dynamic_cast<const controls::CommandButton*>(control);
        EXPECT_TRUE(button == nullptr || !button->IsDefault()) << control->Name();
    }
}

TEST_F(PreferencesRoom, OpenedAgainTheWindowShowsThePaneItWasLeftOn) {
    Open();
    info.cmdHistory.Click.Raise();
    info.frmInfo.UnloadWindow();

    Open();

    EXPECT_TRUE(info.maintenance.fraMisc.Visible());
}

}  // namespace
