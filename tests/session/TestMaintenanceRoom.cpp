#include "session/PreferencesPane.h"

namespace {

using ports::BoxAnswer;
using session_tests::Count;
using session_tests::kMediaPath;
using session_tests::Row;
using session_tests::Texts;

constexpr const char* kEmptyQuestion = "Are you sure you want to delete every file from your media library?";
constexpr const char* kIsEmpty = "Media library is now empty.\r\nWould you like to add new media now?";
constexpr const char* kResetQuestion = "Are you sure you want to reset all the play counts?";
constexpr const char* kReset = "All media files play count's have been reset to 0.";

class MaintenanceRoom : public session_tests::PreferencesTest {
protected:
    MaintenanceRoom() {
        SeedSong(1, "Sun", "Rise", "7");
        SeedSong(2, "Sun", "Set", "");
        SeedSong(3, "Moon", "Rise", "0");
        SeedPlayList("Evening", {2, 1});
        stores.Seed("tblFolder", {{"C:\\Music"}});
        info.frmInfo.Show();
    }
    Texts PlayCounts() {
        Texts counts;
        for (const Row& row : stores.Rows("tblSong"))
            counts.push_back(row[4]);
        return counts;
    }
};

TEST_F(MaintenanceRoom, TheTextsOfThePaneAreThese) {
    const session::MaintenanceControls& controls = info.maintenance;
    EXPECT_EQ(controls.cmdReset.Caption(), "Reset Play Count");
    EXPECT_EQ(controls.lblReset.Caption(), "Click here to reset the play count on all your media files.");
    EXPECT_EQ(controls.cmdEmpty.Caption(), "Empty Library");
    EXPECT_EQ(controls.lblEmpty.Caption(), "Click here to empty your media library.");
    EXPECT_EQ(controls.cmdAddMedia.Caption(), "Add Media");
    EXPECT_EQ(controls.lblAddMedia.Caption(), "Click here to add media to your library.");
    EXPECT_EQ(controls.cmdDeleteHistory.Caption(), "Delete History");
    EXPECT_EQ(controls.lblDeleteHistory.Caption(), "Click here to delete the history.");
}

TEST_F(MaintenanceRoom, EmptyingAsksAndNoKeepsEverything) {
    boxes.Answers = {BoxAnswer::No};

    info.maintenance.cmdEmpty.Click.Raise();

    ASSERT_EQ(BoxTexts(), Texts{kEmptyQuestion});
    EXPECT_EQ(boxes.Boxes[0].title, "Emptying Library");
    EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::YesNo);
    EXPECT_EQ(stores.Rows("tblSong").size(), 3U);
    EXPECT_EQ(Count(near.Log, "Command1"), 0);
}

TEST_F(MaintenanceRoom, EmptyingDeletesSongsFoldersAndPlayListsInOneGo) {
    boxes.Answers = {BoxAnswer::Yes, BoxAnswer::No};
    const int before = stores.Database.Commits;

    info.maintenance.cmdEmpty.Click.Raise();

    EXPECT_EQ(stores.Database.Commits, before + 1);
    for (const char* table : {"tblSong", "tblFolder", "tblPlayList"})
        EXPECT_TRUE(stores.Rows(table).empty()) << table;
    EXPECT_EQ(BoxTexts(), (Texts{kEmptyQuestion, kIsEmpty}));
    EXPECT_EQ(boxes.Boxes[1].title, "Emptying Library");
    EXPECT_EQ(boxes.Boxes[1].buttons, ports::BoxButtons::YesNo);
    EXPECT_EQ(Count(near.Log, "Command1"), 1);
    EXPECT_FALSE(w.frmAddMedia.Visible());
}

TEST_F(MaintenanceRoom, YesAfterEmptyingOpensTheDialogThatAddsMedia) {
    boxes.Answers = {BoxAnswer::Yes, BoxAnswer::Yes};

    info.maintenance.cmdEmpty.Click.Raise();

    EXPECT_TRUE(w.frmAddMedia.Visible());
    EXPECT_EQ(Count(near.Log, "Command1"), 1);
}

TEST_F(MaintenanceRoom, ALibraryThatCannotBeEmptiedIsNotSaidToBeEmpty) {
    boxes.Answers = {BoxAnswer::Yes};
    stores.Database.FailApply(kMediaPath, ports::DatabaseError::ReadOnly);

    info.maintenance.cmdEmpty.Click.Raise();

    EXPECT_EQ(BoxTexts(),
              (Texts{kEmptyQuestion,
                     "The empty media library could not be saved.\r\nThe file \"dbMedia.mdb\" can not be "
                     "written: the file or its folder is read-only."}));
    EXPECT_EQ(Count(near.Log, "Command1"), 1);
}

TEST_F(MaintenanceRoom, ALibraryThatCannotBeReadIsNotSaidToBeEmpty) {
    boxes.Answers = {BoxAnswer::Yes};
    stores.Database.FailOpen(kMediaPath, ports::DatabaseError::Damaged);

    info.maintenance.cmdEmpty.Click.Raise();

    EXPECT_EQ(BoxTexts(), (Texts{kEmptyQuestion, "The empty media library could not be saved."}));
}

TEST_F(MaintenanceRoom, ResettingAsksAndNoKeepsTheCounts) {
    boxes.Answers = {BoxAnswer::No};

    info.maintenance.cmdReset.Click.Raise();

    ASSERT_EQ(BoxTexts(), Texts{kResetQuestion});
    EXPECT_EQ(boxes.Boxes[0].title, "Reset Play Count");
    EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::YesNo);
    EXPECT_EQ(PlayCounts(), (Texts{"7", "", "0"}));
}

TEST_F(MaintenanceRoom, ResettingSetsEveryCountTo0) {
    boxes.Answers = {BoxAnswer::Yes};

    info.maintenance.cmdReset.Click.Raise();

    EXPECT_EQ(PlayCounts(), (Texts{"0", "0", "0"}));
    ASSERT_EQ(BoxTexts(), (Texts{kResetQuestion, kReset}));
    EXPECT_EQ(boxes.Boxes[1].buttons, ports::BoxButtons::Ok);
}

TEST_F(MaintenanceRoom, CountsThatCannotBeSavedAreNotSaidToBeReset) {
    boxes.Answers = {BoxAnswer::Yes};
    stores.Database.FailApply(kMediaPath, ports::DatabaseError::DiskFull);

    info.maintenance.cmdReset.Click.Raise();

    EXPECT_EQ(BoxTexts(),
              (Texts{kResetQuestion,
                     "The play counts could not be saved.\r\nThe file \"dbMedia.mdb\" can not be written: "
                     "the disk is full."}));
}

TEST_F(MaintenanceRoom, AddMediaOpensItsDialog) {
    info.maintenance.cmdAddMedia.Click.Raise();

    EXPECT_TRUE(w.frmAddMedia.Visible());
}

TEST_F(MaintenanceRoom, DeleteHistoryAsksTheHistory) {
    info.maintenance.cmdDeleteHistory.Click.Raise();

    EXPECT_EQ(Count(near.Log, "DeleteHistory"), 1);
    EXPECT_TRUE(boxes.Boxes.empty());
}

}  // namespace
