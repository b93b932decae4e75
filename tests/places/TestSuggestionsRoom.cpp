#include "places/SuggestionsRoom.h"

#include <gtest/gtest.h>

#include "fakes/SeededStores.h"
#include "store/Tables.h"

namespace {

using Texts = std::vector<std::string>;

class SuggestionsTest : public testing::Test {
protected:
    SuggestionsTest() {
        stores.Seed("tblHistory", {{"21", "Web", "http://one.example/"},
                                   {"22", "Search", "http://not.example/"},
                                   {"23", "Web", "http://two.example/"}});
        stores.Seed("tblFavs", {{"2", "News", " ", " "}, {"3", "News", "  - Post", "http://post.example/"}});
    }
    Texts Suggest(std::string_view typed) {
        Texts found;
        for (const roles::Suggestion& one : room.Suggest(typed, 8))
            found.push_back(one.name.empty() ? one.address : one.name + "|" + one.address);
        return found;
    }
    fakes::SeededStores stores;
    places::SuggestionsRoom room{stores.Stores, "C:\\app"};
};

TEST_F(SuggestionsTest, PagesOfTheHistoryAndFavouritesAreSuggestedAndNothingElse) {
    EXPECT_EQ(Suggest("example"),
              (Texts{"Post|http://post.example/", "http://two.example/", "http://one.example/"}));
}

TEST_F(SuggestionsTest, WhatIsAddedLaterIsSuggestedAsTheNewest) {
    Suggest("x");
    auto rows = stores.OpenTable("tblHistory");
    rows->Recordset().AddNew();
    rows->Recordset().Set(store::tblHistory::HistoryType, "Web");
    rows->Recordset().Set(store::tblHistory::HistoryText, "http://three.example/");
    rows->Recordset().Update();

    EXPECT_EQ(Suggest("example")[1], "http://three.example/");
}

TEST_F(SuggestionsTest, WhatWasDeletedIsNoLongerSuggested) {
    Suggest("x");
    auto rows = stores.OpenTable("tblHistory");
    ASSERT_TRUE(rows->Recordset().MoveToFirst(store::tblHistory::HistoryText, "http://two.example/"));
    rows->Recordset().Delete();
    auto favourites = stores.OpenTable("tblFavs");
    ASSERT_TRUE(favourites->Recordset().MoveToFirst(store::tblFavs::FriendName, "  - Post"));
    favourites->Recordset().Delete();

    EXPECT_EQ(Suggest("example"), (Texts{"http://one.example/"}));
}

TEST_F(SuggestionsTest, ARowDeletedWhileAnotherCameIsNoticed) {
    Suggest("x");
    auto rows = stores.OpenTable("tblHistory");
    ASSERT_TRUE(rows->Recordset().MoveToFirst(store::tblHistory::HistoryText, "http://two.example/"));
    rows->Recordset().Delete();
    rows->Recordset().AddNew();
    rows->Recordset().Set(store::tblHistory::HistoryType, "Web");
    rows->Recordset().Set(store::tblHistory::HistoryText, "http://three.example/");
    rows->Recordset().Update();

    EXPECT_EQ(Suggest("example"),
              (Texts{"Post|http://post.example/", "http://three.example/", "http://one.example/"}));
}

TEST_F(SuggestionsTest, AVisitedPageComesFirst) {
    room.NoteVisit("http://one.example/");
    room.NoteVisit("http://one.example/");

    EXPECT_EQ(Suggest("example")[0], "http://one.example/");
}

TEST_F(SuggestionsTest, ForgottenVisitsCountNoMore) {
    room.NoteVisit("http://one.example/");
    room.NoteVisit("http://one.example/");

    room.ForgetVisits();

    EXPECT_EQ(Suggest("example")[0], "Post|http://post.example/");
}

TEST_F(SuggestionsTest, AStoreThatCannotBeReadSuggestsNothing) {
    places::SuggestionsRoom elsewhere(stores.Stores, "C:\\nowhere");

    EXPECT_TRUE(elsewhere.Suggest("example", 8).empty());
}

}  // namespace
