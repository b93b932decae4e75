#include "library/PlayListRoom.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>

#include "library/PlayListPane.h"

namespace {

using library_tests::PlayListPane;
using library_tests::PlayListRow;
using library_tests::Rows;
using library_tests::RowsOf;
using ports::BoxAnswer;

class PlayListNames : public PlayListPane {};

TEST_F(PlayListNames, ANewPlayListIsAHeadRowAndIsListed) {
    Dialogs.Typed = {" Evening "};

    menu.mnuNewPlayList.Click.Raise();

    ASSERT_EQ(Dialogs.Inputs.size(), 1U);
    EXPECT_EQ(Dialogs.Inputs[0].prompt, "What would you like to call the new play list?");
    EXPECT_EQ(Dialogs.Inputs[0].title, "New Play List");
    EXPECT_EQ(Dialogs.Inputs[0].default_text, "New_Playlist");
    EXPECT_EQ(Stores.Rows("tblPlayList").back(), PlayListRow("7", "Evening"));
    EXPECT_EQ(Lists.lstPlayLists.List(5), "Evening");
}

TEST_F(PlayListNames, AnEmptyNameMakesNoPlayList) {
    Dialogs.Typed = {"  "};

    menu.mnuNewPlayList.Click.Raise();

    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
    EXPECT_TRUE(Neighbours.Calls.empty());
}

TEST_F(PlayListNames, ATakenNameAsksForAnother) {
    Dialogs.Typed = {"Road", "Sunday", "Evening"};

    menu.mnuNewPlayList.Click.Raise();

    ASSERT_EQ(Dialogs.Inputs.size(), 3U);
    EXPECT_EQ(Dialogs.Inputs[1].prompt, "You already have a playlist with that name, please state another.");
    EXPECT_EQ(Dialogs.Inputs[1].title, "New Playlist");
    EXPECT_EQ(Dialogs.Inputs[0].default_text, "New_Playlist");
    EXPECT_EQ(Dialogs.Inputs[1].default_text, "");
    EXPECT_EQ(Dialogs.Inputs[2].prompt, "You already have a playlist with that name, please state another.");
    EXPECT_EQ(Stores.Rows("tblPlayList").back(), PlayListRow("7", "Evening"));
}

TEST_F(PlayListNames, AnEmptyAnswerToEitherBoxEndsIt) {
    for (const std::deque<std::string>& typed :
         {std::deque<std::string>{""}, std::deque<std::string>{"Road", ""},
          std::deque<std::string>{"Road", " "}}) {
        Dialogs.Typed = typed;

        menu.mnuNewPlayList.Click.Raise();

        EXPECT_TRUE(Dialogs.Typed.empty());
        EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
    }
    EXPECT_TRUE(Neighbours.Calls.empty());
}

TEST_F(PlayListNames, ThePanelStaysInFrontOfThePaneUntilItIsAnswered) {
    controls::Frame window("frmBrowser");
    controls::Frame pane("fraMusicTab");
    window.Add(PlayLists.fraAddToPlaylist, pane);
    Lists.lstTracks.SetListIndex(0);
    PlayLists.imgAddSongOver.Click.Raise();

    pane.BringToFront();
    EXPECT_EQ(window.Children().back(), &PlayLists.fraAddToPlaylist);
    PlayLists.imgCancelOver.Click.Raise();
    pane.BringToFront();

    EXPECT_EQ(window.Children().back(), &pane);
}

TEST_F(PlayListNames, ABuiltInViewsNameIsTaken) {
    Dialogs.Typed = {"[Top 20]", ""};

    menu.mnuNewPlayList.Click.Raise();

    EXPECT_EQ(Dialogs.Inputs.size(), 2U);
    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
}

TEST_F(PlayListNames, NoBuiltInViewGivesItsNameAway) {
    for (const auto* name : {"[All Media]", "  [Last 20]", " [Top 20] "}) {
        Dialogs.Inputs.clear();
        Dialogs.Typed = {name, ""};

        menu.mnuNewPlayList.Click.Raise();

        EXPECT_EQ(Dialogs.Inputs.size(), 2U) << name;
    }
    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
}

TEST_F(PlayListNames, ANameIsTakenWhateverBlanksStandAroundIt) {
    Dialogs.Typed = {"  Road ", ""};

    menu.mnuNewPlayList.Click.Raise();

    EXPECT_EQ(Dialogs.Inputs.size(), 2U);
}

TEST_F(PlayListNames, ANameThatDiffersInCaseIsFree) {
    Dialogs.Typed = {"road"};

    menu.mnuNewPlayList.Click.Raise();

    EXPECT_EQ(Stores.Rows("tblPlayList").back(), PlayListRow("7", "road"));
}

TEST_F(PlayListNames, ANameOfTenThousandCharactersIsAPlayListLikeAnyOther) {
    const std::string name = std::string(9'998, 'x') + "\"'";
    Dialogs.Typed = {name};
    menu.mnuNewPlayList.Click.Raise();
    ASSERT_TRUE(Lists.lstPlayLists.SelectText(name));
    PlayListsRoom.addsong("1", name);
    ListsRoom.OpenPlayList(name);
    EXPECT_EQ(RowsOf(Lists.lstTracks), Rows{"Lark - Brindle"});
    OpenPanelFor(0);
    PlayLists.lstAddToPlaylist.SelectText(name);
    Dialogs.Answers = {BoxAnswer::Yes};

    PlayLists.imgDeletePlayListOver.Click.Raise();

    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
}

TEST_F(PlayListNames, ANewPlayListThatCannotBeStoredStaysInViewAndIsToldOnce) {
    Stores.Database.FailApply(fakes::SeededStores::kMediaPath, ports::DatabaseError::DiskFull);
    Dialogs.Typed = {"Evening"};

    menu.mnuNewPlayList.Click.Raise();
    Desktop.EndHandler();

    EXPECT_EQ(Stores.Trouble.Troubles.size(), 1U);
    EXPECT_TRUE(Lists.lstPlayLists.SelectText("Evening"));
    Stores.Database.FailApply(fakes::SeededStores::kMediaPath, ports::DatabaseError::None);
    EXPECT_EQ(Stores.Rows("tblPlayList").back(), PlayListRow("7", "Evening"));
}

TEST_F(PlayListNames, APlayListIsDeletedWhateverBlanksItsRowsCarry) {
    Sources.datPlayList.Open(store::kAllPlayListRows);
    store::RecordSet& rows = Sources.datPlayList.Recordset();
    rows.AddNew();
    rows.Set(store::tblPlayList::PlayListID, "7");
    rows.Set(store::tblPlayList::Name, "  Road ");
    rows.Update();
    OpenPanelFor(0);
    PlayLists.lstAddToPlaylist.SelectText("Road");
    Dialogs.Answers = {BoxAnswer::Yes};

    PlayLists.imgDeletePlayListOver.Click.Raise();

    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 2U);
}

TEST_F(PlayListNames, DeletingAPlayListTakesAllItsRows) {
    OpenPanelFor(0);
    PlayLists.lstAddToPlaylist.SelectText("Road");
    Dialogs.Answers = {BoxAnswer::Yes};

    PlayLists.imgDeletePlayListOver.Click.Raise();

    ExpectQuestion("Are you sure you want to delete the playlist Road?", "Delete Playlist");
    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 2U);
    EXPECT_EQ(RowsOf(PlayLists.lstAddToPlaylist), (Rows{"Sunday"}));
}

TEST_F(PlayListNames, DeletingNeedsASelectedPlayListAndAYes) {
    OpenPanelFor(0);
    PlayLists.imgDeletePlayListOver.Click.Raise();
    EXPECT_TRUE(Dialogs.Boxes.empty());
    PlayLists.lstAddToPlaylist.SelectText("Road");

    PlayLists.imgDeletePlayListOver.Click.Raise();

    EXPECT_EQ(Dialogs.Boxes.size(), 1U);
    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
}

}  // namespace
