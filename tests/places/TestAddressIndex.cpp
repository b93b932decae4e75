#include "places/AddressIndex.h"

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<std::string>;

class AddressIndexTest : public testing::Test {
protected:
    Texts Find(std::string_view typed, std::size_t most = 8) const {
        Texts found;
        for (const roles::Suggestion& one : index.Find(typed, most))
            found.push_back(one.address);
        return found;
    }
    places::AddressIndex index;
};

TEST_F(AddressIndexTest, TheNewestComesFirst) {
    index.AddVisited("http://a.example/");
    index.AddVisited("http://b.example/");
    index.AddVisited("http://c.example/");

    EXPECT_EQ(Find("example"), (Texts{"http://c.example/", "http://b.example/", "http://a.example/"}));
}

TEST_F(AddressIndexTest, WhatBeginsWithTheTextComesBeforeWhatHoldsIt) {
    index.AddVisited("http://owl.example/");
    index.AddVisited("http://night.example/owl");

    EXPECT_EQ(Find("owl"), (Texts{"http://owl.example/", "http://night.example/owl"}));
}

TEST_F(AddressIndexTest, SchemeAndWwwDoNotCount) {
    index.AddVisited("https://www.owl.example/");

    EXPECT_EQ(Find("owl").size(), 1U);
    EXPECT_EQ(Find("www.owl").size(), 1U);
    EXPECT_EQ(Find("http://owl").size(), 1U);
    EXPECT_TRUE(Find("https").empty());
}

TEST_F(AddressIndexTest, AVisitMakesAnAddressNewerAndMoreUsed) {
    index.AddVisited("http://a.example/");
    index.AddVisited("http://b.example/");

    index.NoteVisit("http://a.example/");
    EXPECT_EQ(Find("example")[0], "http://a.example/");
    index.NoteVisit("http://b.example/");
    EXPECT_EQ(Find("example")[0], "http://b.example/") << "used as often, and newer";
    index.NoteVisit("http://a.example");
    EXPECT_EQ(Find("example")[0], "http://a.example/");
}

TEST_F(AddressIndexTest, OfTheSameUseTheHostWithTheMostAddressesComesFirst) {
    index.AddVisited("http://often.example/one");
    index.AddVisited("https://www.often.example/two");
    index.AddVisited("http://once.example/three");

    EXPECT_EQ(Find("example"), (Texts{"https://www.often.example/two", "http://often.example/one",
                                      "http://once.example/three"}));
    index.NoteVisit("http://once.example/three");
    EXPECT_EQ(Find("example")[0], "http://once.example/three") << "a visit counts for more";
}

TEST_F(AddressIndexTest, ForgottenVisitsCountNoMore) {
    index.AddVisited("http://a.example/");
    index.AddVisited("http://b.example/");
    index.NoteVisit("http://a.example/");

    index.ForgetVisits();

    EXPECT_EQ(Find("example")[0], "http://b.example/");
}

TEST_F(AddressIndexTest, AFavouriteIsFoundByItsNameAndComesOnceWithIt) {
    index.AddFavourite("Night Birds", "http://owl.example/");
    index.AddVisited("http://owl.example");

    const auto found = index.Find("birds", 8);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].name, "Night Birds");
    EXPECT_EQ(Find("owl"), (Texts{"http://owl.example/"}));
    EXPECT_EQ(index.Find("owl", 8)[0].name, "Night Birds");
}

TEST_F(AddressIndexTest, EveryWordMustBeThereInAnyOrderAndCase) {
    index.AddFavourite("\xC3\x84pfel", "http://Garden.example/Fruit");

    EXPECT_EQ(Find("FRUIT garden").size(), 1U);
    EXPECT_EQ(Find("\xC3\xA4pfel fruit").size(), 1U);
    EXPECT_TRUE(Find("fruit owls").empty());
}

TEST_F(AddressIndexTest, OnlySoManyAreNamed) {
    for (int i = 0; i < 100; ++i)
        index.AddVisited("http://owl.example/" + std::to_string(i));

    EXPECT_EQ(Find("owl", 3),
              (Texts{"http://owl.example/99", "http://owl.example/98", "http://owl.example/97"}));
    EXPECT_TRUE(Find("owl", 0).empty());
}

TEST_F(AddressIndexTest, NothingTypedSuggestsNothing) {
    index.AddVisited("http://a.example/");

    EXPECT_TRUE(Find("").empty());
    EXPECT_TRUE(Find("   ").empty());
    EXPECT_TRUE(Find("http://").empty());
}

TEST_F(AddressIndexTest, EmptyAndEndlessAddressesAreLeftOut) {
    index.AddVisited("  ");
    index.AddVisited("http://a.example/" + std::string(5000, 'x'));

    EXPECT_EQ(index.Size(), 0U);
}

TEST_F(AddressIndexTest, ClearedItRemembersTheVisits) {
    index.NoteVisit("http://a.example/");
    index.AddVisited("http://x.example/");
    index.Clear();
    EXPECT_TRUE(Find("example").empty());

    index.AddVisited("http://a.example/");
    index.AddVisited("http://b.example/");

    EXPECT_EQ(Find("example")[0], "http://a.example/");
}

}  // namespace
