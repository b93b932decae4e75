// What every set of boxes keeps to. A bench sets beforehand what the user will do.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "ports/Dialogs.h"

namespace contracts {

/// Every test has a bench of its own.
class DialogsBench {
public:
    virtual ~DialogsBench() = default;
    virtual ports::Dialogs& Dialogs() = 0;
    /// What the user will press in the next box.
    virtual void WillAnswer(ports::BoxAnswer answer) = 0;
    /// The user will close the next box, whichever kind it is.
    virtual void WillClose() = 0;
    /// The user will write this over what is offered in the next input box, and press OK.
    virtual void WillType(std::string_view text) = 0;
    /// What the last box showed, line breaks as LF, and what the last input box offered.
    virtual std::string ShownText() const = 0;
    virtual std::string ShownTitle() const = 0;
    virtual std::string OfferedText() const = 0;
};

template <class Bench>
class DialogsContract : public testing::Test {
protected:
    Bench bench_;
    ports::Dialogs& dialogs_ = bench_.Dialogs();
};

TYPED_TEST_SUITE_P(DialogsContract);

TYPED_TEST_P(DialogsContract, ABoxShowsItsTextAndTitle) {
    this->bench_.WillAnswer(ports::BoxAnswer::Ok);

    this->dialogs_.MsgBox("First\nSecond & third", ports::BoxButtons::Ok, "A title",
                          ports::BoxIcon::Critical);

    EXPECT_EQ(this->bench_.ShownText(), "First\nSecond & third");
    EXPECT_EQ(this->bench_.ShownTitle(), "A title");
}

TYPED_TEST_P(DialogsContract, ABoxWithOneButtonAnswersOkHoweverItIsLeft) {
    this->bench_.WillAnswer(ports::BoxAnswer::Ok);
    EXPECT_EQ(this->dialogs_.MsgBox("Text"), ports::BoxAnswer::Ok);

    this->bench_.WillClose();
    EXPECT_EQ(this->dialogs_.MsgBox("Text"), ports::BoxAnswer::Ok);
}

TYPED_TEST_P(DialogsContract, AQuestionIsAnsweredByItsButtons) {
    this->bench_.WillAnswer(ports::BoxAnswer::Yes);
    EXPECT_EQ(this->dialogs_.MsgBox("Sure?", ports::BoxButtons::YesNo), ports::BoxAnswer::Yes);

    this->bench_.WillAnswer(ports::BoxAnswer::No);
    EXPECT_EQ(this->dialogs_.MsgBox("Sure?", ports::BoxButtons::YesNo), ports::BoxAnswer::No);
}

TYPED_TEST_P(DialogsContract, AClosedQuestionIsNo) {
    this->bench_.WillClose();

    EXPECT_EQ(this->dialogs_.MsgBox("Sure?", ports::BoxButtons::YesNo), ports::BoxAnswer::No);
}

TYPED_TEST_P(DialogsContract, AnInputBoxOffersItsDefaultAndGivesWhatWasTyped) {
    this->bench_.WillType("C:\\Music\\\xc3\x9c.mp3");

    const std::string typed = this->dialogs_.InputBox("Which file?", "Adding Media", "C:\\");

    EXPECT_EQ(typed, "C:\\Music\\\xc3\x9c.mp3");
    EXPECT_EQ(this->bench_.OfferedText(), "C:\\");
    EXPECT_EQ(this->bench_.ShownText(), "Which file?");
    EXPECT_EQ(this->bench_.ShownTitle(), "Adding Media");
}

TYPED_TEST_P(DialogsContract, AClosedInputBoxGivesTheEmptyText) {
    this->bench_.WillClose();

    EXPECT_EQ(this->dialogs_.InputBox("Which file?", "Adding Media", "C:\\"), "");
}

REGISTER_TYPED_TEST_SUITE_P(DialogsContract, ABoxShowsItsTextAndTitle,
                            ABoxWithOneButtonAnswersOkHoweverItIsLeft, AQuestionIsAnsweredByItsButtons,
                            AClosedQuestionIsNo, AnInputBoxOffersItsDefaultAndGivesWhatWasTyped,
                            AClosedInputBoxGivesTheEmptyText);

}  // namespace contracts
