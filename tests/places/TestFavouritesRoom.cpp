#include "places/PlacesHarness.h"

namespace {

using places_tests::Row;
using places_tests::RowsOf;
using places_tests::Texts;
using FavouritesRoom = places_tests::FavouritesTest;

controls::DropData Files(Texts files) {
    controls::DropData data;
    data.Files = std::move(files);
    return data;
}

TEST_F(FavouritesRoom, LoadingReadsTheNumberOfTheLastRow) {
    SeedFavourites();

    room.LoadFavs();

    EXPECT_EQ(panel.lblEntryCount.Caption(), "6");
}

TEST_F(FavouritesRoom, AnEmptyTableLeavesTheOldNumber) {
    stores.Database.Remove(fakes::SeededStores::kFavouritesPath);
    stores.Database.MakeStore(fakes::SeededStores::kFavouritesPath);

    room.LoadFavs();

    EXPECT_EQ(panel.lblEntryCount.Caption(), "Song ID");
}

TEST_F(FavouritesRoom, GroupsShowInOneListAndFavouritesInTheOther) {
    SeedFavourites();

    Load();

    EXPECT_EQ(RowsOf(panel.lstFavs), (Texts{"  [All Favourites]", "Empty", "Home Pages", "News"}));
    EXPECT_EQ(RowsOf(panel.lstFavsAlt), (Texts{"  [Favourite Groups]", "  - Post", "  - Start", "  - Echo"}));
    EXPECT_EQ(RowsOf(form.lstGroup), (Texts{"Empty", "Home Pages", "News"}));
}

TEST_F(FavouritesRoom, WithAnEmptyTableTheListsHoldTheirFirstLines) {
    stores.Database.Remove(fakes::SeededStores::kFavouritesPath);
    stores.Database.MakeStore(fakes::SeededStores::kFavouritesPath);

    Load();

    EXPECT_EQ(RowsOf(panel.lstFavs), Texts{"  [All Favourites]"});
    EXPECT_EQ(RowsOf(panel.lstFavsAlt), Texts{"  [Favourite Groups]"});
}

TEST_F(FavouritesRoom, FillingTwiceShowsEverythingOnce) {
    SeedFavourites();
    Load();

    room.populatefavs();

    EXPECT_EQ(panel.lstFavs.ListCount(), 4);
    EXPECT_EQ(panel.lstFavsAlt.ListCount(), 4);
    EXPECT_EQ(form.lstGroup.ListCount(), 3);
}

TEST_F(FavouritesRoom, AClickOnAGroupOpensItAndSelectsNothing) {
    SeedFavourites();
    Load();

    Select(panel.lstFavs, "News");

    EXPECT_EQ(RowsOf(panel.lstFavs),
              (Texts{"  [All Favourites]", "Empty", "Home Pages", "News", "  - Echo", "  - Post"}));
    EXPECT_EQ(panel.lstFavs.ListIndex(), -1);
}

TEST_F(FavouritesRoom, OnlyOneGroupIsOpenAtATime) {
    SeedFavourites();
    Load();
    Select(panel.lstFavs, "News");

    Select(panel.lstFavs, "Home Pages");

    EXPECT_EQ(RowsOf(panel.lstFavs),
              (Texts{"  [All Favourites]", "Empty", "Home Pages", "  - Start", "News"}));
}

TEST_F(FavouritesRoom, AClickOnTheOpenGroupLeavesItOpen) {
    SeedFavourites();
    Load();
    Select(panel.lstFavs, "News");
    const Texts open = RowsOf(panel.lstFavs);

    Select(panel.lstFavs, "News");

    EXPECT_EQ(RowsOf(panel.lstFavs), open);
    EXPECT_EQ(panel.lstFavs.ListIndex(), -1);
}

TEST_F(FavouritesRoom, AClickWithoutASelectionClosesAllGroups) {
    SeedFavourites();
    Load();
    Select(panel.lstFavs, "News");

    room.lstFavs_Click();

    EXPECT_EQ(RowsOf(panel.lstFavs), (Texts{"  [All Favourites]", "Empty", "Home Pages", "News"}));
}

TEST_F(FavouritesRoom, AClickOnAnEmptyListDoesNothing) {
    panel.lstFavs.Clear();

    room.lstFavs_Click();

    EXPECT_EQ(panel.lstFavs.ListCount(), 0);
}

TEST_F(FavouritesRoom, AClickOnAFavouritePreparesItsAddress) {
    SeedFavourites();
    Load();
    Select(panel.lstFavs, "News");

    Select(panel.lstFavs, "  - Echo");

    EXPECT_EQ(address.Text, "http://echo.example/");
    EXPECT_EQ(address.Typed, "http://echo.example/");
    EXPECT_TRUE(opener.WentTo.empty());
    EXPECT_EQ(panel.lstFavs.Text(), "  - Echo");
}

TEST_F(FavouritesRoom, OfOneNameInTwoGroupsTheLastRowsAddressStays) {
    stores.Seed("tblFavs", {{"2", "A", " ", " "},
                            {"3", "A", "  - Same", "http://first.example/"},
                            {"4", "B", "  - Same", "http://second.example/"}});
    Load();
    Select(panel.lstFavs, "A");

    Select(panel.lstFavs, "  - Same");

    EXPECT_EQ(address.Text, "http://second.example/");
}

TEST_F(FavouritesRoom, ADoubleClickGoesToTheFavourite) {
    SeedFavourites();
    Load();
    Select(panel.lstFavs, "News");
    Select(panel.lstFavs, "  - Post");

    panel.lstFavs.DblClick.Raise();

    EXPECT_EQ(opener.WentTo, Texts{"http://post.example/"});
}

TEST_F(FavouritesRoom, ADoubleClickOnAGroupGoesNowhere) {
    SeedFavourites();
    Load();
    Select(panel.lstFavs, "News");

    panel.lstFavs.DblClick.Raise();

    EXPECT_TRUE(opener.WentTo.empty());
}

TEST_F(FavouritesRoom, TwoFavouritesOfOneNameAreBothGoneTo) {
    stores.Seed("tblFavs", {{"2", "A", " ", " "},
                            {"3", "A", "  - Same", "http://first.example/"},
                            {"4", "A", "  - Same", "http://second.example/"}});
    Load();
    Select(panel.lstFavs, "A");
    Select(panel.lstFavs, "  - Same");

    panel.lstFavs.DblClick.Raise();

    EXPECT_EQ(opener.WentTo, (Texts{"http://first.example/", "http://second.example/"}));
}

TEST_F(FavouritesRoom, ANameWithAStarLosesItAndDoesNothing) {
    stores.Seed("tblFavs", {{"2", "A", " ", " "}, {"3", "A", "  - St*r", "http://star.example/"}});
    Load();
    Select(panel.lstFavs, "A");

    Select(panel.lstFavs, "  - Str");

    EXPECT_EQ(address.Text, "");
}

TEST_F(FavouritesRoom, TheFirstLineSwitchesToAllFavouritesAndBack) {
    Load();
    room.ShowFavs(true);

    Select(panel.lstFavs, "  [All Favourites]");
    EXPECT_FALSE(panel.lstFavs.Visible());
    EXPECT_TRUE(panel.lstFavsAlt.Visible());
    Select(panel.lstFavsAlt, "  [Favourite Groups]");

    EXPECT_TRUE(panel.lstFavs.Visible());
    EXPECT_FALSE(panel.lstFavsAlt.Visible());
    EXPECT_EQ(address.Focuses, 2);
}

TEST_F(FavouritesRoom, TheViewButtonSwitchesTheList) {
    room.ShowFavs(true);

    panel.imgViewOver.Click.Raise();

    EXPECT_TRUE(panel.lstFavsAlt.Visible());
    EXPECT_FALSE(panel.lstFavs.Visible());
}

TEST_F(FavouritesRoom, AClickInTheListOfAllPreparesTheAddress) {
    SeedFavourites();
    Load();

    Select(panel.lstFavsAlt, "  - Start");

    EXPECT_EQ(address.Text, "http://start.example/");
    EXPECT_EQ(address.Typed, "http://start.example/");
    EXPECT_TRUE(opener.WentTo.empty());
}

TEST_F(FavouritesRoom, ADoubleClickInTheListOfAllGoesThere) {
    SeedFavourites();
    Load();
    Select(panel.lstFavsAlt, "  - Start");

    panel.lstFavsAlt.DblClick.Raise();

    EXPECT_EQ(opener.WentTo, Texts{"http://start.example/"});
}

TEST_F(FavouritesRoom, EnterInTheListOfAllEntersTheNameAsItStands) {
    SeedFavourites();
    Load();
    Select(panel.lstFavsAlt, "  - Start");

    panel.lstFavsAlt.KeyDown.Raise(controls::kKeyEnter, 0);

    EXPECT_EQ(opener.Entered, Texts{"  - Start"});
}

TEST_F(FavouritesRoom, OtherKeysInTheListOfAllReachTheMultimediaKeys) {
    panel.lstFavsAlt.KeyDown.Raise(174, 1);

    EXPECT_EQ(window.Log, Texts{"KeyDown 174 1"});
    EXPECT_TRUE(opener.Entered.empty());
}

TEST_F(FavouritesRoom, TheButtonOpensThePanel) {
    panel.cmdFavs.Click.Raise();

    EXPECT_EQ(panel.cmdFavs.Caption(), "<");
    EXPECT_TRUE(panel.lblFavs.Visible());
    EXPECT_TRUE(panel.fraFavs.Visible());
    EXPECT_TRUE(panel.lstFavs.Visible());
    EXPECT_FALSE(panel.lstFavsAlt.Visible());
    EXPECT_EQ(window.Log, Texts{"Form_Resize"});
}

TEST_F(FavouritesRoom, TheButtonClosesThePanelAndItsVideo) {
    panel.cmdFavs.Click.Raise();
    window.Log.clear();

    panel.cmdFavs.Click.Raise();

    EXPECT_EQ(panel.cmdFavs.Caption(), ">");
    EXPECT_FALSE(panel.lblFavs.Visible());
    EXPECT_FALSE(panel.fraFavs.Visible());
    EXPECT_FALSE(panel.lstFavs.Visible());
    EXPECT_FALSE(panel.lstFavsAlt.Visible());
    EXPECT_EQ(window.Log, (Texts{"ClosePane", "Form_Resize"}));
}

TEST_F(FavouritesRoom, OpeningLeavesThePlaceOfTheButtonToTheLayout) {
    panel.cmdFavs.Move(120, 1290, 195, 5000);

    panel.cmdFavs.Click.Raise();

    EXPECT_EQ(panel.cmdFavs.Left(), 120);
    EXPECT_EQ(window.Log, Texts{"Form_Resize"});
}

TEST_F(FavouritesRoom, AnAttachedVideoComesBackWithThePanel) {
    window.VideoAttached = true;

    panel.cmdFavs.Click.Raise();

    EXPECT_EQ(window.Log, (Texts{"ShowPane", "Form_Resize"}));
}

TEST_F(FavouritesRoom, TheChosenListOutlastsClosingThePanel) {
    Load();
    panel.cmdFavs.Click.Raise();
    Select(panel.lstFavs, "  [All Favourites]");
    panel.cmdFavs.Click.Raise();

    panel.cmdFavs.Click.Raise();

    EXPECT_TRUE(panel.lstFavsAlt.Visible());
    EXPECT_FALSE(panel.lstFavs.Visible());
}

TEST_F(FavouritesRoom, ShowingThePanelLeavesTheButtonAlone) {
    room.ShowFavs(true);

    EXPECT_TRUE(panel.fraFavs.Visible());
    EXPECT_EQ(panel.cmdFavs.Caption(), ">");
    EXPECT_TRUE(window.Log.empty());
}

TEST_F(FavouritesRoom, TheViewEntryOpensThePanelAndNeverClosesIt) {
    menu.mnuViewFavs.Click.Raise();
    menu.mnuViewFavs.Click.Raise();

    EXPECT_EQ(panel.cmdFavs.Caption(), "<");
}

TEST_F(FavouritesRoom, ThePlainPicturesShowTheirBrightTwins) {
    panel.imgAdd.MouseMove.Raise(0, 0, 1, 1);
    panel.imgdelete.MouseMove.Raise(0, 0, 1, 1);
    panel.imgView.MouseMove.Raise(0, 0, 1, 1);

    EXPECT_TRUE(panel.imgAddOver.Visible());
    EXPECT_TRUE(panel.imgdeleteover.Visible());
    EXPECT_TRUE(panel.imgViewOver.Visible());
}

TEST_F(FavouritesRoom, TheMouseOverListOrButtonHidesTheBrightTwins) {
    panel.lstFavs.MouseMove.Raise(0, 0, 1, 1);
    panel.cmdFavs.MouseMove.Raise(0, 0, 1, 1);

    EXPECT_EQ(window.Log, (Texts{"NoMouseOvers", "NoMouseOvers"}));
}

TEST_F(FavouritesRoom, EveryAddEntryOpensTheDialogForThePageInFront) {
    page.Title = "Post";
    page.Url = "http://post.example/";
    for (controls::Menu* entry : {&menu.mnuFav, &menu.mnuAddToFavourites, &menu.mnuEditFavs}) {
        form.frmAdd.Hide();
        form.txtName.SetText("");

        entry->Click.Raise();

        EXPECT_TRUE(form.frmAdd.Visible()) << entry->Name();
        EXPECT_EQ(form.txtName.Text(), "Post") << entry->Name();
        EXPECT_EQ(form.txtURL.Text(), "http://post.example/") << entry->Name();
    }
}

TEST_F(FavouritesRoom, TheDeleteEntryNeedsASelectionInBothLists) {
    SeedFavourites();
    Load();
    Select(panel.lstFavsAlt, "  - Start");

    menu.mnuRemoveFav.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text, "No favourite selected to delete");
    EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::Ok);
    EXPECT_EQ(FavRows().size(), 6U);
}

TEST_F(FavouritesRoom, TheDeleteEntryDeletesWithASelectionInBothLists) {
    SeedFavourites();
    Load();
    Select(panel.lstFavs, "News");
    Select(panel.lstFavs, "  - Post");
    Select(panel.lstFavsAlt, "  - Start");
    boxes.Answers = {ports::BoxAnswer::Yes};

    menu.mnuRemoveFav.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text, "Are you sure you want to delete the favourite?");
    EXPECT_EQ(FavRows().size(), 5U);
}

TEST_F(FavouritesRoom, TheDeleteImageDeletesTheSelectedFavourite) {
    SeedFavourites();
    Load();
    room.ShowFavs(true);
    Select(panel.lstFavs, "News");
    Select(panel.lstFavs, "  - Post");
    boxes.Answers = {ports::BoxAnswer::Yes};

    panel.imgdeleteover.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].title, "Delete Favourite");
    EXPECT_EQ(boxes.Boxes[0].text, "Are you sure you want to delete the favourite?");
    EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::YesNo);
    EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::None);
    EXPECT_EQ(FavRows().size(), 5U);
    EXPECT_EQ(RowsOf(panel.lstFavsAlt), (Texts{"  [Favourite Groups]", "  - Start", "  - Echo"}));
    EXPECT_EQ(address.Focuses, 1);
}

TEST_F(FavouritesRoom, TheDeleteImageOpensTheGroupDialogWithoutAFavourite) {
    SeedFavourites();
    Load();

    panel.imgdeleteover.Click.Raise();

    EXPECT_TRUE(form.frmAdd.Visible());
    EXPECT_EQ(form.frmAdd.Caption(), "Delete Group");
    EXPECT_EQ(address.Focuses, 1);
}

TEST_F(FavouritesRoom, DeletingTakesTheNameFromTheListOfAllWhileItShows) {
    SeedFavourites();
    Load();
    room.ShowFavs(true);
    Select(panel.lstFavs, "News");
    Select(panel.lstFavs, "  - Post");
    panel.imgViewOver.Click.Raise();
    Select(panel.lstFavsAlt, "  - Start");
    boxes.Answers = {ports::BoxAnswer::Yes};

    room.DeleteFav();

    for (const Row& row : FavRows())
        EXPECT_NE(row[2], "  - Start");
    EXPECT_EQ(FavRows().size(), 5U);
}

TEST_F(FavouritesRoom, ANameInTwoGroupsGoesFromBoth) {
    stores.Seed("tblFavs", {{"2", "A", " ", " "},
                            {"3", "A", "  - Same", "http://first.example/"},
                            {"4", "B", "  - Same", "http://second.example/"}});
    Load();
    room.ShowFavs(true);
    Select(panel.lstFavs, "A");
    Select(panel.lstFavs, "  - Same");
    boxes.Answers = {ports::BoxAnswer::Yes};

    room.DeleteFav();

    EXPECT_EQ(FavRows(), (std::vector<Row>{{"1", "Home Pages", " ", " "}, {"2", "A", " ", " "}}));
}

TEST_F(FavouritesRoom, AnswerNoDeletesNothingButFillsTheLists) {
    SeedFavourites();
    Load();
    Select(panel.lstFavs, "News");
    boxes.Answers = {ports::BoxAnswer::No};

    room.DeleteFav();

    EXPECT_EQ(FavRows().size(), 6U);
    EXPECT_EQ(RowsOf(panel.lstFavs), (Texts{"  [All Favourites]", "Empty", "Home Pages", "News"}));
}

TEST_F(FavouritesRoom, TheGroupEntryOpensTheGroupDialog) {
    menu.mnuRemoveFavGroup.Click.Raise();

    EXPECT_EQ(form.frmAdd.Caption(), "Delete Group");
    EXPECT_TRUE(form.cmdDelete2.Visible());
}

TEST_F(FavouritesRoom, PagesAndPicturesDroppedOnAListAreOffered) {
    const struct {
        const char* path;
        bool is_taken;
    } cases[] = {{"C:\\a.gif", true},  {"C:\\a.BMP", true}, {"C:\\a.jpeg", true},   {"C:\\a.jpg", true},
                 {"C:\\a.png", true},  {"C:\\a.htm", true}, {"C:\\a.b.Html", true}, {"C:\\a.txt", false},
                 {"C:\\a.mp3", false}, {"C:\\html", false}};
    for (const auto& one : cases) {
        form.frmAdd.Hide();
        form.txtURL.SetText("");

        panel.lstFavs.OLEDragDrop.Raise(Files({one.path}), 0, 0);

        EXPECT_EQ(form.frmAdd.Visible(), one.is_taken) << one.path;
        EXPECT_EQ(form.txtURL.Text(), one.is_taken ? one.path : "") << one.path;
    }
}

TEST_F(FavouritesRoom, ADropLeavesTheMainWindowEnabledAndTheLayoutAsItWas) {
    dialog.OpenToDelete();
    form.cmdCancel2.Click.Raise();

    panel.lstFavsAlt.OLEDragDrop.Raise(Files({"C:\\a.png", "C:\\b.txt", "C:\\c.htm"}), 0, 0);

    EXPECT_TRUE(frmBrowser.Enabled());
    EXPECT_EQ(form.frmAdd.Caption(), "Delete Group");
    EXPECT_EQ(form.txtURL.Text(), "C:\\c.htm");
}

}  // namespace
