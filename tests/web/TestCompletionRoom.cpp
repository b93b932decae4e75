#include "web/CompletionRoom.h"

#include "controls/KeyCodes.h"
#include "web/WebHarness.h"

namespace {

using web_tests::Calls;
using web_tests::WebTest;

class CompletionTest : public WebTest {
protected:
    CompletionTest() {
        near.Known = {{"One", "http://one.example/"},
                      {"", "http://two.example/"},
                      {"", "http://three.example/Name_(band)"}};
    }
    controls::TextBox& Box() { return groups.address.txtAddress; }
    controls::ListBox& List() { return groups.completion.lstSuggestions; }
    void Type(const std::string& text) { Box().SetText(text); }
    void Press(int key, int shift = 0) { Box().KeyDown.Raise(key, shift); }
    Calls Rows() {
        Calls rows;
        for (int i = 0; i < List().ListCount(); ++i)
            rows.emplace_back(List().List(i));
        return rows;
    }
};

TEST_F(CompletionTest, WhatIsTypedBringsTheListUnderTheRow) {
    Box().Move(2640, 690, 9000, 390);

    Type("example");

    EXPECT_TRUE(List().Visible());
    EXPECT_EQ(Rows(), (Calls{"One  \xC2\xB7  http://one.example/", "http://two.example/",
                             "http://three.example/Name_(band)"}));
    EXPECT_EQ(List().ListIndex(), -1);
    EXPECT_EQ(List().Left(), Box().Left());
    EXPECT_EQ(List().Width(), Box().Width());
    EXPECT_GE(List().Top(), Box().Bottom());
    EXPECT_EQ(form.Children().back(), &List());
}

TEST_F(CompletionTest, EveryLetterAsksAgainAndWithoutAMatchTheListGoes) {
    Type("example");
    Type("two");
    EXPECT_EQ(Rows(), (Calls{"http://two.example/"}));

    Type("two owls");

    EXPECT_FALSE(List().Visible());
}

TEST_F(CompletionTest, EnterTakesWhatWasTypedAsLongAsNothingWasPicked) {
    Type("one.example");
    ASSERT_TRUE(List().Visible());

    Press(controls::kKeyEnter);

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "one.example");
    EXPECT_FALSE(List().Visible());
}

TEST_F(CompletionTest, DownAndUpPutSuggestionsIntoTheRowAndGoRoundOverWhatWasTyped) {
    Type("example");

    Calls seen;
    for (const int key : {controls::kKeyDown, controls::kKeyDown, controls::kKeyDown, controls::kKeyDown,
                          controls::kKeyUp, controls::kKeyUp}) {
        Press(key);
        seen.push_back(Box().Text());
    }

    EXPECT_EQ(seen, (Calls{"http://one.example/", "http://two.example/", "http://three.example/Name_(band)",
                           "example", "http://three.example/Name_(band)", "http://two.example/"}));
    EXPECT_TRUE(List().Visible());
    EXPECT_EQ(List().ListIndex(), 1);
}

TEST_F(CompletionTest, EnterOpensThePickedOne) {
    Type("example");
    Press(controls::kKeyDown);
    Press(controls::kKeyDown);

    Press(controls::kKeyEnter);

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "http://two.example/");
    EXPECT_FALSE(List().Visible());
    EXPECT_EQ(Box().Text(), "");
}

TEST_F(CompletionTest, APickedAddressWithABracketArrivesWhole) {
    Type("band");
    Press(controls::kKeyDown);

    Press(controls::kKeyEnter);

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "http://three.example/Name_(band)");
}

TEST_F(CompletionTest, ABracketThatWasTypedIsCutAsEver) {
    Type("http://three.example/Name_(band)");

    Press(controls::kKeyEnter);

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "http://three.example/Name_(band");
}

TEST_F(CompletionTest, AClickOpensTheRow) {
    Type("example");

    List().SetListIndex(2);

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "http://three.example/Name_(band)");
    EXPECT_FALSE(List().Visible());
}

TEST_F(CompletionTest, EscapeClosesTheListAndBringsBackWhatWasTyped) {
    Type("example");
    Press(controls::kKeyDown);

    EXPECT_TRUE(rooms.Keys().Take(controls::kKeyEscape, 0));

    EXPECT_FALSE(List().Visible());
    EXPECT_EQ(Box().Text(), "example");
    EXPECT_FALSE(rooms.Keys().Take(controls::kKeyEscape, 0));
}

TEST_F(CompletionTest, TypingOnAfterAPickIsTypingAgain) {
    Type("example");
    Press(controls::kKeyDown);

    Type("http://one.example/x");
    Press(controls::kKeyEnter);

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "http://one.example/x");
}

TEST_F(CompletionTest, TheListGoesWhenTheKeyboardLeavesTheRow) {
    Type("example");

    Box().LostFocus.Raise();

    EXPECT_FALSE(List().Visible());
}

TEST_F(CompletionTest, AnAddressThatTheProgramShowsSuggestsNothing) {
    Open("one.example");
    ASSERT_EQ(Box().Text(), "http://one.example/");

    EXPECT_FALSE(List().Visible());
}

TEST_F(CompletionTest, AnotherTabClosesTheList) {
    Open("one.example");
    Open("two.example");
    Type("example");

    Click(groups.tabs.tabtab(1));

    EXPECT_FALSE(List().Visible());
}

TEST_F(CompletionTest, OtherModesSuggestNothing) {
    ChooseMode("Search");

    Type("example");

    EXPECT_FALSE(List().Visible());
}

TEST_F(CompletionTest, WithShiftTheArrowsBelongToTheRow) {
    Type("example");

    Press(controls::kKeyDown, controls::kShiftMask);

    EXPECT_EQ(Box().Text(), "example");
}

TEST_F(CompletionTest, AVisitIsNotedOnlyWhileTheHistoryIsKept) {
    Open("one.example");
    EXPECT_TRUE(Logged("NoteVisit http://one.example/"));
    session.Save_History = false;

    Open("two.example");

    EXPECT_FALSE(Logged("NoteVisit http://two.example/"));
}

}  // namespace
