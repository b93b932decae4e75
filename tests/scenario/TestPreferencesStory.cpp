#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <set>
#include <utility>

#include "base/Text.h"
#include "scenario/Program.h"

namespace {

using ports::BoxAnswer;
using scenario::Computer;
using scenario::Program;
using Texts = std::vector<std::string>;

class PreferencesStory : public testing::Test {
protected:
    PreferencesStory() {
        computer.AddUser("Ann", "rose");
        computer.AddToLibrary(1, "Sun", "Rise");
        computer.AddToLibrary(2, "Moon", "Fall");
        computer.AddPage("http://one.example/", "One");
        computer.AddPage("http://two.example/", "Two");
    }

    /// Ends the run before, if there is one, and starts and logs in.
    void Run() {
        if (program) program->Click(Browser().menus.mnuExit);
        program.reset();
        program = std::make_unique<Program>(computer);
        program->StartAndLogIn("Ann", "rose");
    }
    /// From the preferences to the second page of the wizard.
    void BeginNewUser(std::string_view name, std::string_view password) {
        program->Click(Browser().menus.mnuPreferences);
        program->Click(Info().options.cmdNewUser);
        auto& login = program->windows.login;
        login.txtNewUser.SetText(name);
        login.txtPass1.SetText(password);
        login.txtPass2.SetText(password);
        program->Click(login.cmdNext);
    }
    window::BrowserForm& Browser() { return program->Browser(); }
    session::InfoForm& Info() { return program->windows.info; }
    session::BackUpControls& BackUp() { return Info().back_up; }
    Texts Rows(const controls::ListBox& list) { return Program::RowsOf(list); }
    Texts History() {
        Texts texts;
        for (const auto& row : computer.database.Rows(scenario::kHistoryPath, "tblHistory"))
            if (row[1] != "Settings") texts.push_back(row[2]);
        return texts;
    }
    Texts Types() {
        const controls::ComboBox& types = Browser().web.address.cmbType;
        Texts texts;
        for (int row = 0; row < types.ListCount(); ++row)
            texts.emplace_back(types.List(row));
        return texts;
    }
    /// Its head row, and a row with the names of each song.
    void SeedPlayList(const std::string& name, const std::vector<std::string>& song_ids) {
        using Row = std::vector<std::string>;
        const std::vector<Row> songs = computer.database.Rows(scenario::kMediaPath, "tblSong");
        std::vector<Row> rows{{std::to_string(++key_), name, "", "", ""}};
        for (const std::string& id : song_ids) {
            const auto song =
                std::find_if(songs.begin(), songs.end(), [&id](const Row& one) { return one[0] == id; });
            rows.push_back({std::to_string(++key_), name, id, song->at(1), song->at(2)});
        }
        computer.database.Seed(scenario::kMediaPath, "tblPlayList", rows);
    }

    Computer computer;
    std::unique_ptr<Program> program;

private:
    int key_ = 0;
};

TEST_F(PreferencesStory, AChangedOptionHoldsFromTheNextStart) {
    Run();
    program->Click(Browser().menus.mnuPreferences);
    ASSERT_TRUE(Info().frmInfo.Visible());
    Info().options.chkHistory.SetChecked(false);
    Info().options.chkFile.SetChecked(false);
    program->Click(Info().cmdApply);
    EXPECT_FALSE(Info().frmInfo.Visible());
    EXPECT_EQ(computer.Setting(16), "False");
    EXPECT_EQ(computer.Setting(18), "False");

    program->GoTo("one.example");
    program->LetPagesArrive();
    EXPECT_EQ(History(), Texts{"http://one.example/"}) << "the running session keeps its options";
    EXPECT_EQ(Types(), (Texts{"Web", "MSN", "File", "Search"}));
    program->dialogs.Answers = {BoxAnswer::Yes};
    Run();

    EXPECT_EQ(Types(), (Texts{"Web", "MSN", "Search"}));
    program->GoTo("two.example");
    program->LetPagesArrive();
    EXPECT_EQ(History(), Texts{"http://one.example/"});
    program->Click(Browser().menus.mnuPreferences);
    EXPECT_FALSE(Info().options.chkHistory.Checked());
    EXPECT_FALSE(Info().options.chkFile.Checked());
    EXPECT_TRUE(Info().options.chkGoogle.Checked());
}

TEST_F(PreferencesStory, WithoutTheMessengerItsOtherRowsAreOffAndStayDisabled) {
    Run();
    program->Click(Browser().menus.mnuPreferences);
    Info().options.chkMSN.SetChecked(false);
    program->Click(Info().cmdApply);
    for (const int row : {11, 12, 13})
        EXPECT_EQ(computer.Setting(row), "False") << row;

    Run();

    EXPECT_FALSE(Info().options.chkCustom.Enabled());
    EXPECT_FALSE(Info().options.chkSaveMSN.Enabled());
}

TEST_F(PreferencesStory, SettingsAreNotSavedOnceThatIsOff) {
    Run();
    program->Click(Browser().menus.mnuPreferences);
    Info().options.chkSettings.SetChecked(false);
    program->Click(Info().cmdApply);
    Run();
    program->Click(Browser().menus.mnuShuffle);

    Run();

    EXPECT_FALSE(Browser().menus.mnuShuffle.Checked());
}

TEST_F(PreferencesStory, ClosedTheWindowHidesAndTheExitUnloadsIt) {
    Run();
    program->Click(Browser().menus.mnuPreferences);
    Info().frmInfo.UnloadWindow();
    EXPECT_FALSE(Info().frmInfo.Visible());
    EXPECT_TRUE(Info().frmInfo.IsLoaded());
    program->Click(Browser().menus.mnuPreferences);

    program->Click(Browser().menus.mnuExit);

    EXPECT_TRUE(program->ended);
    EXPECT_FALSE(Info().frmInfo.IsLoaded());
}

TEST_F(PreferencesStory, ANewUserIsMadeFromThePreferencesAndCancelReturnsToThem) {
    Run();
    program->Click(Browser().menus.mnuPreferences);
    program->Click(Info().options.cmdNewUser);
    auto& login = program->windows.login;
    ASSERT_TRUE(login.fraNew.Visible());

    program->Click(login.cmdCancel);

    EXPECT_FALSE(login.frmLogin.Visible());
    EXPECT_TRUE(Info().frmInfo.Visible());

    program->Click(Info().options.cmdNewUser);
    login.txtNewUser.SetText("Bob");
    login.txtPass1.SetText("oak");
    login.txtPass2.SetText("oak");
    program->Click(login.cmdNext);
    program->Click(login.cmdFinish);

    const auto users = computer.database.Rows(scenario::kLoginPath, "tblLogin");
    ASSERT_EQ(users.size(), 2U);
    EXPECT_EQ(users[1][0], "Bob");
}

TEST_F(PreferencesStory, ALogOutWithTheWizardOpenShowsTheLogin) {
    Run();
    auto& login = program->windows.login;
    BeginNewUser("Bob", "oak");
    login.txtHotmailP.SetText("secret");

    program->Click(Browser().menus.mnuLogout);

    EXPECT_TRUE(login.frmLogin.Visible());
    EXPECT_TRUE(login.fraLogin.Visible());
    EXPECT_FALSE(login.fraSetup.Visible());
    for (const controls::TextBox* box :
         {&login.txtNewUser, &login.txtPass1, &login.txtPass2, &login.txtHotmailP})
        EXPECT_EQ(box->Text(), "") << box->Name();
    program->LogIn("Ann", "rose");
    program->Wait(12'000);
    EXPECT_TRUE(Browser().Visible());
}

TEST_F(PreferencesStory, ANewUserMadeWhileAnnIsLoggedInTakesHerPlaceAndFindsNothingOfHers) {
    Run();
    program->GoTo("one.example");
    program->LetPagesArrive();
    Browser().library.lists.lstTracks.SetListIndex(0);
    program->DoubleClick(Browser().library.lists.lstTracks);
    Browser().web.address.txtAddress.SetText("a secret");
    auto& login = program->windows.login;
    BeginNewUser("Bob", "oak");
    program->Click(login.cmdFinish);
    ASSERT_EQ(login.cmbUser.Text(), "Bob");
    program->dialogs.Answers = {ports::BoxAnswer::Yes};
    program->dialogs.Boxes.clear();

    program->Click(login.cmdLogin);

    EXPECT_EQ(
        program->BoxTexts(),
        std::vector<std::string>{"You currently have web tabs open, are you sure you want to log out?"});
    EXPECT_FALSE(Info().frmInfo.Visible());
    EXPECT_FALSE(login.frmLogin.Visible());
    EXPECT_FALSE(computer.media.IsOpen("a"));
    program->Wait(12'000);
    EXPECT_TRUE(Browser().Visible());
    EXPECT_TRUE(Browser().Enabled());
    EXPECT_FALSE(Browser().web.tabs.tabtab(1).Visible());
    EXPECT_EQ(program->PageOf(1), nullptr);
    EXPECT_EQ(Browser().web.address.txtAddress.Text(), "");
    EXPECT_EQ(program->pages.Log,
              (std::vector<std::string>{"Begin Ann kept", "Remove Bob", "End", "Begin Bob kept"}));
    program->GoTo("one.example");
    program->LetPagesArrive();
    EXPECT_EQ(Browser().web.tabs.Browser(2).LocationURL(), "http://one.example/");
}

TEST_F(PreferencesStory, AnEmptiedLibraryIsEmptyEverywhereAndCanBeFilledAgain) {
    SeedPlayList("Evening", {"2", "1"});
    Run();
    program->Click(Browser().menus.mnuPreferences);
    program->Click(Info().cmdHistory);
    program->dialogs.Answers = {BoxAnswer::Yes, BoxAnswer::Yes};

    program->Click(Info().maintenance.cmdEmpty);

    EXPECT_EQ(Browser().library.lists.lstTracks.ListCount(), 0);
    EXPECT_EQ(Rows(Browser().library.lists.lstPlayLists),
              (Texts{"  [All Media]", "  [Last 20]", "  [Top 20]"}));
    EXPECT_EQ(Rows(Browser().library.lists.lstArtists), Texts{"  [All Artists]"});
    for (const char* table : {"tblSong", "tblPlayList", "tblFolder"})
        EXPECT_TRUE(computer.database.Rows(scenario::kMediaPath, table).empty()) << table;
    auto& dialog = program->windows.add_media;
    ASSERT_TRUE(dialog.frmAddMedia.Visible());
    computer.AddSong("C:\\Songs\\Star - Light.mp3");
    ASSERT_TRUE(dialog.Dir1.SetPath("C:\\Songs"));
    program->Click(dialog.cmdGetFiles);
    program->Wait(500);
    program->Click(dialog.imgAddAllOver);
    EXPECT_EQ(Rows(Browser().library.lists.lstTracks), Texts{"Star - Light"});
    EXPECT_EQ(computer.database.Rows(scenario::kMediaPath, "tblSong")[0][0], "1");
}

TEST_F(PreferencesStory, APlayedSongStaysInTheHistoryWhenItsCountIsReset) {
    Run();
    Browser().library.lists.lstTracks.SetListIndex(0);
    program->DoubleClick(Browser().library.lists.lstTracks);
    ASSERT_EQ(computer.database.Rows(scenario::kMediaPath, "tblSong")[0][4], "1");
    program->Click(Browser().menus.mnuPreferences);
    program->Click(Info().cmdHistory);
    program->dialogs.Answers = {BoxAnswer::Yes};

    program->Click(Info().maintenance.cmdReset);

    EXPECT_EQ(computer.database.Rows(scenario::kMediaPath, "tblSong")[0][4], "0");
    EXPECT_EQ(History().size(), 1U);
}

TEST_F(PreferencesStory, AddMediaOfTheMaintenanceOpensTheDialog) {
    Run();
    program->Click(Browser().menus.mnuPreferences);
    program->Click(Info().cmdHistory);

    program->Click(Info().maintenance.cmdAddMedia);

    EXPECT_TRUE(program->windows.add_media.frmAddMedia.Visible());
}

// Rows 11 to 20 go with the history. The next rows get their numbers, and are options from then on.
TEST_F(PreferencesStory, AfterTheHistoryIsDeletedItsNumbersAreHistoryAndOptionsAtOnce) {
    Run();
    program->GoTo("one.example");
    program->LetPagesArrive();
    program->Click(Browser().menus.mnuPreferences);
    program->Click(Info().cmdHistory);
    program->dialogs.Answers = {BoxAnswer::Yes};
    program->Click(Info().maintenance.cmdDeleteHistory);
    EXPECT_EQ(program->BoxTexts(), Texts{"Are you sure you want to delete all of your history?"});
    EXPECT_TRUE(History().empty());
    ASSERT_EQ(computer.database.Rows(scenario::kHistoryPath, "tblHistory").size(), 10U);

    program->GoTo("two.example");
    program->LetPagesArrive();
    EXPECT_EQ(History(), Texts{"http://two.example/"});
    program->Click(Info().cmdApply);

    const auto rows = computer.database.Rows(scenario::kHistoryPath, "tblHistory");
    ASSERT_EQ(rows.size(), 11U);
    EXPECT_EQ(rows[10], (std::vector<std::string>{"11", "Settings", "True"}));
}

TEST_F(PreferencesStory, ThePlaylistsEntryBacksUpWhatTheMusicPaneShows) {
    SeedPlayList("Evening", {"2", "1"});
    SeedPlayList("AC/DC", {"1"});
    Run();
    program->Click(Browser().menus.mnuEditPlaylists);
    ASSERT_TRUE(Info().frmInfo.Visible());
    ASSERT_TRUE(BackUp().fraBackUp.Visible());
    EXPECT_EQ(Rows(BackUp().lstEditPlayList), Rows(Browser().library.lists.lstPlayLists));
    EXPECT_EQ(BackUp().lblLastBackup.Caption(), "0 days ago.");

    BackUp().lstEditPlayList.SelectText("Evening");
    EXPECT_EQ(Rows(BackUp().lstEditPlayListTracks), (Texts{"Fall", "Rise"}));
    program->Click(BackUp().cmdBackUpAll);
    EXPECT_EQ(computer.files.TextOf("C:\\app\\BackUp\\Evening.mpl"), "Moon - Fall\r\nSun - Rise\r\n\r\n");

    program->Click(BackUp().cmdBackUp);
    EXPECT_EQ(computer.files.ListFolder("C:\\app\\BackUp")->Files.size(), 2U);
    EXPECT_TRUE(program->BoxTexts().empty());
}

/// What the user sees of every play list: its name, and the tracks in their order.
using PlayLists = std::vector<std::pair<std::string, Texts>>;

class BackUpStory : public PreferencesStory {
protected:
    PlayLists Shown() {
        controls::ListBox& names = Browser().library.lists.lstPlayLists;
        PlayLists lists;
        for (int row = 3; row < names.ListCount(); ++row) {
            const std::string name(names.List(row));
            names.SetListIndex(row);
            lists.emplace_back(name, Rows(Browser().library.lists.lstTracks));
        }
        std::sort(lists.begin(), lists.end());
        return lists;
    }
    void BackUpAll() {
        program->Click(Browser().menus.mnuEditPlaylists);
        BackUp().txtBackFolder.SetText("C:\\kept");
        program->Click(BackUp().cmdBackUp);
        Info().frmInfo.UnloadWindow();
    }
    void EmptyLibrary() {
        program->dialogs.Answers = {BoxAnswer::Yes, BoxAnswer::Yes};
        program->Click(Browser().menus.mnuPreferences);
        program->Click(Info().cmdHistory);
        program->Click(Info().maintenance.cmdEmpty);
        Info().frmInfo.UnloadWindow();
    }
    void AddMusicAgain() {
        auto& dialog = program->windows.add_media;
        ASSERT_TRUE(dialog.frmAddMedia.Visible());
        ASSERT_TRUE(dialog.Dir1.SetPath("C:\\Music"));
        program->Click(dialog.cmdGetFiles);
        program->Wait(500);
        program->Click(dialog.imgAddAllOver);
    }
    /// Drops every file of the folder on the playlists.
    void OpenBackUps() {
        const auto listing = computer.files.ListFolder("C:\\kept");
        ASSERT_TRUE(listing.has_value());
        for (const std::string& name : listing->Files) {
            controls::DropData data;
            data.Files = {"C:\\kept\\" + name};
            Browser().library.lists.lstPlayLists.OLEDragDrop.Raise(data, 0, 0);
            program->desktop.EndHandler();
            program->Wait(100);
        }
    }
    int Successes() {
        const Texts texts = program->BoxTexts();
        return static_cast<int>(std::count(texts.begin(), texts.end(), "Playlist was added successfully."));
    }
};

TEST_F(BackUpStory, PlayListsOfAnEmptiedLibraryComeBackFromTheirFiles) {
    SeedPlayList("Evening", {"2", "1", "2"});
    SeedPlayList("AC/DC\\live", {"1"});
    SeedPlayList("..", {"2"});
    Run();
    PlayLists before = Shown();
    BackUpAll();
    EmptyLibrary();
    ASSERT_TRUE(Shown().empty());
    AddMusicAgain();

    OpenBackUps();

    EXPECT_EQ(Successes(), 3);
    EXPECT_TRUE(program->dialogs.Inputs.empty());
    EXPECT_EQ(Shown(), before);
}

/// Random libraries whose songs the search for a line can tell apart, and play lists of them under any name.
class RandomLists : public BackUpStory, public testing::WithParamInterface<unsigned> {
protected:
    std::string Word(const std::vector<std::string>& letters, int least, int most) {
        std::string word;
        const int length = std::uniform_int_distribution(least, most)(chance_);
        for (int i = 0; i < length; ++i)
            word += letters[std::uniform_int_distribution<std::size_t>(0, letters.size() - 1)(chance_)];
        return word;
    }
    /// Words of one length: none is part of another. No "a" and "c", which the search puts in front. Every
    /// second library fits into the code page.
    std::string SongWord() {
        if (GetParam() % 2 == 0) return Word({"B", "D", "E", "R", "T", "ö", "é", "ß", "ñ", "Š"}, 6, 6);
        return Word({"B", "D", "E", "R", "ö", "é", "ß", "Ω", "あ", "и"}, 6, 6);
    }
    std::string ListName() {
        return std::string(
            base::Trim(Word({"a", "B", "/", "\\", ".", " ", "é", "あ", "'", "%", "#", ":", "-"}, 1, 9)));
    }
    void SeedLibrary() {
        std::set<std::string> titles;
        while (titles.size() < 12)
            titles.insert(SongWord());
        int id = std::uniform_int_distribution(1, 500)(chance_);
        for (const std::string& title : titles) {
            songs_.push_back(std::to_string(++id));
            computer.database.Seed(scenario::kMediaPath, "tblSong",
                                   {{songs_.back(), SongWord(), title, "C:\\Music\\" + title + ".mp3", "0"}});
        }
    }
    void SeedPlayLists() {
        std::set<std::string> names;
        while (names.size() < 6)
            if (const std::string name = ListName(); !name.empty()) names.insert(name);
        for (const std::string& name : names) {
            std::vector<std::string> list(std::uniform_int_distribution<std::size_t>(1, 20)(chance_));
            for (std::string& song : list)
                song = songs_[std::uniform_int_distribution<std::size_t>(0, songs_.size() - 1)(chance_)];
            SeedPlayList(name, list);
        }
    }

private:
    std::mt19937 chance_{GetParam()};
    std::vector<std::string> songs_;
};

TEST_P(RandomLists, ABackUpReadAgainGivesTheSamePlayLists) {
    SeedLibrary();
    SeedPlayLists();
    Run();
    const PlayLists before = Shown();
    BackUpAll();
    ASSERT_TRUE(program->BoxTexts().empty()) << program->BoxTexts()[0];
    for (const auto& [name, tracks] : before) {
        auto& panel = Browser().library.playlists;
        ASSERT_TRUE(panel.lstAddToPlaylist.SelectText(name));
        program->dialogs.Answers = {BoxAnswer::Yes};
        program->Click(panel.imgDeletePlayListOver);
    }
    ASSERT_TRUE(Shown().empty());

    OpenBackUps();

    EXPECT_EQ(Successes(), static_cast<int>(before.size()));
    EXPECT_EQ(Shown(), before);
}

INSTANTIATE_TEST_SUITE_P(Libraries, RandomLists, testing::Range(1U, 21U));

}  // namespace
