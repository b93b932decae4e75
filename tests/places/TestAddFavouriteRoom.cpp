#include "places/PlacesHarness.h"

namespace {

using places_tests::Row;
using places_tests::RowsOf;
using places_tests::Texts;

class AddFavouriteRoom : public places_tests::FavouritesTest {
protected:
    void OpenFilledIn(std::string_view group, std::string_view name, std::string_view url) {
        Load();
        dialog.OpenToAdd(name, url);
        Select(form.lstGroup, group);
    }
};

TEST_F(AddFavouriteRoom, TheAddLayoutShowsThePage) {
    dialog.OpenToAdd("Post", "http://post.example/");

    EXPECT_TRUE(form.frmAdd.Visible());
    EXPECT_EQ(form.frmAdd.Height(), 4950);
    EXPECT_EQ(form.frmAdd.Caption(), "Add Favourite");
    EXPECT_FALSE(form.cmdCancel2.Visible());
    EXPECT_FALSE(form.cmdDelete2.Visible());
    EXPECT_FALSE(frmBrowser.Enabled());
    EXPECT_EQ(form.txtName.Text(), "Post");
    EXPECT_EQ(form.txtURL.Text(), "http://post.example/");
}

TEST_F(AddFavouriteRoom, TheDeleteLayoutCutsTheLowerHalfOff) {
    dialog.OpenToDelete();

    EXPECT_EQ(form.frmAdd.Height(), 2775);
    EXPECT_EQ(form.frmAdd.Caption(), "Delete Group");
    EXPECT_TRUE(form.cmdCancel2.Visible());
    EXPECT_TRUE(form.cmdDelete2.Visible());
    EXPECT_FALSE(frmBrowser.Enabled());
    EXPECT_GE(form.lblURL.Top(), form.frmAdd.ContentHeight());
    EXPECT_LE(form.cmdDelete2.Bottom(), form.frmAdd.ContentHeight());
}

TEST_F(AddFavouriteRoom, WhatTheDeleteLayoutCutsOffIsOutOfReachOfTheKeyboard) {
    const controls::Control* const unseen[] = {&form.cmdDelete, &form.cmdNew,    &form.txtURL,
                                               &form.txtName,   &form.cmdCancel, &form.cmdAdd};
    dialog.OpenToDelete();
    for (const controls::Control* control : unseen)
        EXPECT_FALSE(control->Enabled()) << control->Name();
    EXPECT_TRUE(form.cmdCancel2.IsCancel());
    EXPECT_FALSE(form.cmdCancel.IsCancel());

    dialog.OpenToAdd("Post", "http://post.example/");

    for (const controls::Control* control : unseen)
        EXPECT_TRUE(control->Enabled()) << control->Name();
    EXPECT_FALSE(form.cmdCancel2.IsCancel());
    EXPECT_TRUE(form.cmdCancel.IsCancel());
}

TEST_F(AddFavouriteRoom, TheSecondButtonsLieExactlyOverTheFirst) {
    EXPECT_EQ(form.cmdCancel2.Left(), form.cmdDelete.Left());
    EXPECT_EQ(form.cmdCancel2.Width(), form.cmdDelete.Width());
    EXPECT_EQ(form.cmdCancel2.Top(), form.cmdDelete.Top());
    EXPECT_EQ(form.cmdDelete2.Left(), form.cmdNew.Left());
    EXPECT_EQ(form.cmdDelete2.Width(), form.cmdNew.Width());
    EXPECT_EQ(form.cmdDelete2.Bottom(), form.cmdNew.Bottom());
}

TEST_F(AddFavouriteRoom, EverythingFitsTheAddLayout) {
    for (const controls::Control* control : form.frmAdd.Children()) {
        EXPECT_LE(control->Right(), form.frmAdd.ContentWidth()) << control->Name();
        EXPECT_LE(control->Bottom(), form.frmAdd.ContentHeight()) << control->Name();
    }
}

TEST_F(AddFavouriteRoom, EachActivationFillsGroupsAndPanelAfterAYield) {
    SeedFavourites();
    form.lstGroup.AddItem("old");
    int rows_at_yield = -1;
    desktop.Post([&] { rows_at_yield = form.lstGroup.ListCount(); });

    form.frmAdd.Show();

    EXPECT_EQ(rows_at_yield, 0);
    EXPECT_EQ(RowsOf(form.lstGroup), (Texts{"Empty", "Home Pages", "News"}));
    EXPECT_EQ(panel.lstFavs.ListCount(), 4);
}

TEST_F(AddFavouriteRoom, ACancelDuringTheActivationLeavesTheMainWindowEnabled) {
    for (const bool deleting : {false, true}) {
        SCOPED_TRACE(deleting);
        desktop.Post([this] { form.cmdCancel.Click.Raise(); });

        if (deleting) {
            dialog.OpenToDelete();
        } else {
            dialog.OpenToAdd("Post", "http://post.example/");
        }

        EXPECT_FALSE(form.frmAdd.Visible());
        EXPECT_TRUE(frmBrowser.Enabled());
    }
}

TEST_F(AddFavouriteRoom, AnEndWhileTheStartFillsThePanelBringsNoWindowBack) {
    desktop.Post([this] {
        mainclose = true;
        frmBrowser.UnloadWindow();
    });

    dialog.SettleAtStart();

    EXPECT_FALSE(frmBrowser.IsLoaded());
}

TEST_F(AddFavouriteRoom, TheStartFillsThePanelWithoutShowingTheDialog) {
    SeedFavourites();
    frmBrowser.Hide();
    frmBrowser.SetEnabled(false);

    dialog.SettleAtStart();

    EXPECT_FALSE(form.frmAdd.Visible());
    EXPECT_TRUE(frmBrowser.Visible());
    EXPECT_TRUE(frmBrowser.Enabled());
    EXPECT_EQ(RowsOf(panel.lstFavs), (Texts{"  [All Favourites]", "Empty", "Home Pages", "News"}));
}

TEST_F(AddFavouriteRoom, AddingStoresGroupNameAndAddress) {
    SeedFavourites();
    OpenFilledIn("News", "Times", "http://times.example/");

    form.cmdAdd.Click.Raise();

    EXPECT_EQ(FavRows().back(), (Row{"7", "News", "  - Times", "http://times.example/"}));
    EXPECT_FALSE(form.frmAdd.Visible());
    EXPECT_TRUE(frmBrowser.Enabled());
    EXPECT_TRUE(frmBrowser.Visible());
    EXPECT_EQ(window.Log, Texts{"Command1"});
    EXPECT_EQ(RowsOf(panel.lstFavs), (Texts{"  [All Favourites]", "Empty", "Home Pages", "News"}));
    EXPECT_EQ(panel.lstFavsAlt.List(4), "  - Times");
    EXPECT_EQ(panel.lblEntryCount.Caption(), "7");
}

TEST_F(AddFavouriteRoom, TrailingBlanksOfANameAreStored) {
    OpenFilledIn("Home Pages", "Start  ", " http://start.example/ ");

    form.cmdAdd.Click.Raise();

    EXPECT_EQ(FavRows().back(), (Row{"2", "Home Pages", "  - Start  ", " http://start.example/ "}));
}

TEST_F(AddFavouriteRoom, TheFirstAddToAnEmptyTableStartsAtOne) {
    stores.Database.Remove(fakes::SeededStores::kFavouritesPath);
    stores.Database.MakeStore(fakes::SeededStores::kFavouritesPath);
    Load();
    dialog.OpenToAdd("Post", "http://post.example/");
    boxes.Typed = {"News"};

    form.cmdNew.Click.Raise();

    EXPECT_EQ(FavRows(), (std::vector<Row>{{"1", "News", " ", " "}}));
}

TEST_F(AddFavouriteRoom, AddingNeedsGroupNameAndAddress) {
    const struct {
        const char* name;
        const char* url;
        bool has_group;
    } cases[] = {{"  ", "http://a.example/", true}, {"A", " ", true}, {"A", "http://a.example/", false}};
    for (const auto& one : cases) {
        boxes.Boxes.clear();
        OpenFilledIn("Home Pages", one.name, one.url);
        if (!one.has_group) form.lstGroup.SetListIndex(-1);

        form.cmdAdd.Click.Raise();

        ASSERT_EQ(boxes.Boxes.size(), 1U);
        EXPECT_EQ(boxes.Boxes[0].text, "Please select a group, name and URL");
        EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::Ok);
        EXPECT_TRUE(form.frmAdd.Visible());
        EXPECT_EQ(FavRows().size(), 1U);
    }
}

TEST_F(AddFavouriteRoom, EnterInNameOrAddressAdds) {
    OpenFilledIn("Home Pages", "A", "http://a.example/");
    form.txtName.KeyDown.Raise(controls::kKeyEnter, 0);
    OpenFilledIn("Home Pages", "B", "http://b.example/");

    form.txtURL.KeyDown.Raise(controls::kKeyEnter, 0);

    EXPECT_EQ(FavRows().size(), 3U);
}

TEST_F(AddFavouriteRoom, OtherKeysAddNothing) {
    OpenFilledIn("Home Pages", "A", "http://a.example/");

    form.txtName.KeyDown.Raise(65, 0);
    form.lstGroup.KeyDown.Raise(65, 0);

    EXPECT_EQ(FavRows().size(), 1U);
}

TEST_F(AddFavouriteRoom, EnterInTheGroupsAddsOrDeletesByLayout) {
    SeedFavourites();
    OpenFilledIn("News", "A", "http://a.example/");
    form.lstGroup.KeyDown.Raise(controls::kKeyEnter, 0);
    EXPECT_EQ(FavRows().size(), 7U);
    dialog.OpenToDelete();
    Select(form.lstGroup, "News");
    boxes.Answers = {ports::BoxAnswer::Yes};

    form.lstGroup.KeyDown.Raise(controls::kKeyEnter, 0);

    EXPECT_EQ(FavRows().size(), 3U);
}

TEST_F(AddFavouriteRoom, ANewGroupIsAskedForStoredAndOffered) {
    SeedFavourites();
    Load();
    dialog.OpenToAdd("", "");
    boxes.Typed = {" My Group "};

    form.cmdNew.Click.Raise();

    ASSERT_EQ(boxes.Inputs.size(), 1U);
    EXPECT_EQ(boxes.Inputs[0].title, "New Group");
    EXPECT_EQ(boxes.Inputs[0].prompt, "What would you like to call the new group?");
    EXPECT_EQ(boxes.Inputs[0].default_text, "New_Group");
    EXPECT_EQ(FavRows().back(), (Row{"7", " My Group ", " ", " "}));
    EXPECT_EQ(RowsOf(form.lstGroup), (Texts{" My Group ", "Empty", "Home Pages", "News"}));
    EXPECT_EQ(window.Log, Texts{"Command1"});
}

TEST_F(AddFavouriteRoom, ABlankAnswerMakesNoGroup) {
    Load();
    dialog.OpenToAdd("", "");
    boxes.Typed = {"  "};

    form.cmdNew.Click.Raise();
    form.cmdNew.Click.Raise();

    EXPECT_EQ(FavRows().size(), 1U);
    EXPECT_TRUE(window.Log.empty());
}

TEST_F(AddFavouriteRoom, ASecondGroupOfOneNameIsASecondLine) {
    Load();
    dialog.OpenToAdd("", "");
    boxes.Typed = {"Home Pages"};

    form.cmdNew.Click.Raise();

    EXPECT_EQ(RowsOf(form.lstGroup), (Texts{"Home Pages", "Home Pages"}));
}

TEST_F(AddFavouriteRoom, DeletingAGroupAsksAndTakesAllItsFavourites) {
    SeedFavourites();
    Load();
    dialog.OpenToDelete();
    Select(form.lstGroup, "News");
    boxes.Answers = {ports::BoxAnswer::Yes};

    form.cmdDelete2.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].title, "Delete Group");
    EXPECT_EQ(boxes.Boxes[0].text,
              "Are you sure you want to delete this group of favourites?\r\n"
              "All the favourites in the group will also be lost.");
    EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::YesNo);
    EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::None);
    EXPECT_EQ(FavRows(), (std::vector<Row>{{"1", "Home Pages", " ", " "},
                                           {"4", "Home Pages", "  - Start", "http://start.example/"},
                                           {"5", "Empty", " ", " "}}));
    EXPECT_EQ(RowsOf(form.lstGroup), (Texts{"Empty", "Home Pages"}));
    EXPECT_TRUE(form.frmAdd.Visible());
    EXPECT_EQ(panel.datFav.RecordSource(), "SELECT * from tblMySpace");
}

TEST_F(AddFavouriteRoom, ThePanelFillsAgainAfterAGroupWasDeleted) {
    SeedFavourites();
    Load();
    dialog.OpenToDelete();
    Select(form.lstGroup, "News");
    boxes.Answers = {ports::BoxAnswer::Yes};
    form.cmdDelete2.Click.Raise();

    room.populatefavs();

    EXPECT_EQ(RowsOf(panel.lstFavs), (Texts{"  [All Favourites]", "Empty", "Home Pages"}));
    EXPECT_TRUE(stores.Trouble.Troubles.empty());
}

TEST_F(AddFavouriteRoom, AnswerNoKeepsTheGroup) {
    SeedFavourites();
    Load();
    dialog.OpenToAdd("", "");
    Select(form.lstGroup, "News");
    boxes.Answers = {ports::BoxAnswer::No};

    form.cmdDelete.Click.Raise();

    EXPECT_EQ(FavRows().size(), 6U);
    EXPECT_EQ(form.lstGroup.ListCount(), 3);
}

TEST_F(AddFavouriteRoom, HomePagesCannotBeDeleted) {
    Load();
    dialog.OpenToDelete();
    Select(form.lstGroup, "Home Pages");

    form.cmdDelete2.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text, "You can not delete this favourites group.");
    EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::Ok);
    EXPECT_EQ(FavRows().size(), 1U);
    EXPECT_EQ(form.lstGroup.ListCount(), 1);
}

TEST_F(AddFavouriteRoom, DeletingWithoutASelectionDoesNothing) {
    Load();
    dialog.OpenToDelete();

    form.cmdDelete2.Click.Raise();

    EXPECT_TRUE(boxes.Boxes.empty());
}

TEST_F(AddFavouriteRoom, CancellingGivesTheMainWindowBackWithAllGroupsClosed) {
    SeedFavourites();
    for (controls::CommandButton* button : {&form.cmdCancel, &form.cmdCancel2}) {
        Load();
        dialog.OpenToAdd("", "");

        button->Click.Raise();

        EXPECT_FALSE(form.frmAdd.Visible());
        EXPECT_TRUE(frmBrowser.Enabled());
        EXPECT_TRUE(frmBrowser.Visible());
        EXPECT_EQ(RowsOf(panel.lstFavs), (Texts{"  [All Favourites]", "Empty", "Home Pages", "News"}));
    }
}

TEST_F(AddFavouriteRoom, EscapeCancels) {
    for (controls::Control* control :
         std::initializer_list<controls::Control*>{&form.txtName, &form.txtURL, &form.lstGroup}) {
        dialog.OpenToAdd("", "");

        control->KeyDown.Raise(controls::kKeyEscape, 0);

        EXPECT_FALSE(form.frmAdd.Visible()) << control->Name();
        EXPECT_TRUE(frmBrowser.Enabled()) << control->Name();
    }
}

TEST_F(AddFavouriteRoom, TheCloseBoxHidesTheDialogAndKeepsItLoaded) {
    dialog.OpenToAdd("", "");

    const bool unloaded = form.frmAdd.UnloadWindow();

    EXPECT_FALSE(unloaded);
    EXPECT_TRUE(form.frmAdd.IsLoaded());
    EXPECT_FALSE(form.frmAdd.Visible());
    EXPECT_TRUE(frmBrowser.Enabled());
}

TEST_F(AddFavouriteRoom, TheDialogUnloadsWhenTheProgramEnds) {
    dialog.OpenToAdd("", "");
    mainclose = true;

    EXPECT_TRUE(form.frmAdd.UnloadWindow());
}

TEST_F(AddFavouriteRoom, ThreeSlashesAtTheEndOfTheAddressLoseOne) {
    form.txtURL.SetText("file:///");

    EXPECT_EQ(form.txtURL.Text(), "file://");
}

TEST_F(AddFavouriteRoom, OtherAddressesStay) {
    form.txtURL.SetText("file:///C:/a//");

    EXPECT_EQ(form.txtURL.Text(), "file:///C:/a//");
}

}  // namespace
