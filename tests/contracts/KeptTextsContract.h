// What every keeper of texts promises: one body of tests for the stand-in and for real files.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ports/KeptTexts.h"

namespace contracts {

/// `Bench` has `Texts()`, the keeper, and `NextRun()`, after which Texts() is another one over the same.
template <class Bench>
class KeptTextsContract : public testing::Test {
protected:
    ports::KeptTexts& Texts() { return bench_.Texts(); }
    void NextRun() { bench_.NextRun(); }

private:
    Bench bench_;
};

TYPED_TEST_SUITE_P(KeptTextsContract);

TYPED_TEST_P(KeptTextsContract, WhatWasNeverWrittenIsNotThere) {
    EXPECT_EQ(this->Texts().Read("place"), std::nullopt);
    EXPECT_TRUE(this->Texts().Names("").empty());
    this->Texts().Remove("place");
    this->Texts().SetAside("place");
}

TYPED_TEST_P(KeptTextsContract, ATextIsThereInTheNextRun) {
    const std::string bytes("a\0\n\xFF%", 5);
    EXPECT_TRUE(this->Texts().Write("place", "old and longer"));
    EXPECT_TRUE(this->Texts().Write("place", bytes));
    EXPECT_TRUE(this->Texts().Write("empty", ""));

    this->NextRun();

    EXPECT_EQ(this->Texts().Read("place"), bytes);
    EXPECT_EQ(this->Texts().Read("empty"), "");
}

TYPED_TEST_P(KeptTextsContract, AnyBytesAreAName) {
    const std::vector<std::string> names{"place of Ann",
                                         "../Bob",
                                         "_2f",
                                         "/",
                                         ".",
                                         "a.new",
                                         "\xC3\xA4",
                                         std::string(4000, 'x'),
                                         std::string(4000, 'x') + "y",
                                         "\xFF"};
    for (const std::string& name : names)
        EXPECT_TRUE(this->Texts().Write(name, "of " + name)) << name;

    this->NextRun();

    for (const std::string& name : names)
        EXPECT_EQ(this->Texts().Read(name), "of " + name) << name;
}

TYPED_TEST_P(KeptTextsContract, WhatIsAddedComesAtTheEnd) {
    EXPECT_TRUE(this->Texts().Append("step", "one"));
    EXPECT_TRUE(this->Texts().Append("step", ", two"));

    this->NextRun();
    EXPECT_TRUE(this->Texts().Append("step", ", three"));

    EXPECT_EQ(this->Texts().Read("step"), "one, two, three");
}

TYPED_TEST_P(KeptTextsContract, ARemovedTextIsGone) {
    this->Texts().Write("place", "here");

    this->Texts().Remove("place");

    EXPECT_EQ(this->Texts().Read("place"), std::nullopt);
    EXPECT_TRUE(this->Texts().Names("").empty());
}

TYPED_TEST_P(KeptTextsContract, WhatIsSetAsideIsNotReadAgain) {
    for (const char* text : {"broken", "broken again"}) {
        this->Texts().Write("place", text);
        this->Texts().SetAside("place");
        EXPECT_EQ(this->Texts().Read("place"), std::nullopt);
        EXPECT_TRUE(this->Texts().Names("").empty());
    }
    EXPECT_TRUE(this->Texts().Write("place", "sound"));
    EXPECT_EQ(this->Texts().Read("place"), "sound");
}

TYPED_TEST_P(KeptTextsContract, NamesAreFoundByTheirBeginning) {
    for (const char* name : {"undo-10", "undo-2", "place", "undo 3", "Undo-1"})
        this->Texts().Write(name, "");

    EXPECT_EQ(this->Texts().Names("undo-"), (std::vector<std::string>{"undo-10", "undo-2"}));
    EXPECT_EQ(this->Texts().Names("").size(), 5U);
}

REGISTER_TYPED_TEST_SUITE_P(KeptTextsContract, WhatWasNeverWrittenIsNotThere, ATextIsThereInTheNextRun,
                            AnyBytesAreAName, WhatIsAddedComesAtTheEnd, ARemovedTextIsGone,
                            WhatIsSetAsideIsNotReadAgain, NamesAreFoundByTheirBeginning);

}  // namespace contracts
