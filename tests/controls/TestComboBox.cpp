#include <gtest/gtest.h>

#include "controls/ComboBox.h"
#include "controls/RecordingObserver.h"

namespace controls {
namespace {

struct Heard {
    explicit Heard(ComboBox& combo) {
        claims.Claim(combo.Click, [this] { ++clicks; });
        claims.Claim(combo.Change, [this] { ++changes; });
    }
    EventClaims claims;
    int clicks = 0;
    int changes = 0;
};

TEST(ComboBox, AFreeTextRaisesChangeWhenItIsAnotherOne) {
    ComboBox combo("cmbAddress");
    const Heard heard(combo);

    combo.SetText("www.example.org");
    combo.SetText("www.example.org");

    EXPECT_EQ(combo.Text(), "www.example.org");
    EXPECT_EQ(heard.changes, 1);
    EXPECT_EQ(heard.clicks, 0);
}

TEST(ComboBox, ChoosingARowTakesItsTextAndRaisesClick) {
    ComboBox combo("cmbAddress");
    combo.AddItem("a");
    combo.AddItem("b");
    const Heard heard(combo);

    EXPECT_TRUE(combo.SetListIndex(1));
    EXPECT_TRUE(combo.SetListIndex(1));

    EXPECT_EQ(combo.Text(), "b");
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(heard.clicks, 2);
    EXPECT_EQ(heard.changes, 0);
}

TEST(ComboBox, ARowThatIsNotThereChangesNothing) {
    ComboBox combo("cmbAddress");
    combo.AddItem("a");
    combo.SetText("typed");
    const Heard heard(combo);

    EXPECT_FALSE(combo.SetListIndex(1));
    EXPECT_FALSE(combo.SetListIndex(-2));
    EXPECT_FALSE(combo.RemoveItem(1));
    EXPECT_FALSE(combo.RemoveItem(-1));

    EXPECT_EQ(combo.Text(), "typed");
    EXPECT_EQ(combo.List(1), "");
    EXPECT_EQ(heard.clicks, 0);
}

TEST(ComboBox, ClearingKeepsAFreeText) {
    ComboBox combo("cmbAddress");
    combo.AddItem("a");
    combo.SetText("typed");
    const Heard heard(combo);

    combo.Clear();

    EXPECT_EQ(combo.ListCount(), 0);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), "typed");
    EXPECT_EQ(heard.clicks + heard.changes, 0);
}

TEST(ComboBox, RemovingARowKeepsTheSelectionOnItsRow) {
    ComboBox combo("cmbAddress");
    for (const char* row : {"a", "b", "c"})
        combo.AddItem(row);
    combo.SetListIndex(1);
    const Heard heard(combo);

    combo.RemoveItem(0);
    EXPECT_EQ(combo.ListIndex(), 0);
    combo.RemoveItem(0);

    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), "b");
    EXPECT_EQ(heard.clicks, 0);
}

TEST(DropDownList, ATextSelectsItsRow) {
    ComboBox combo("cmbUser", ComboStyle::DropDownList);
    combo.AddItem("ann");
    combo.AddItem("bob");
    const Heard heard(combo);

    combo.SetText("bob");
    combo.SetText("bob");

    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(heard.clicks, 1);
    EXPECT_EQ(heard.changes, 0);
}

TEST(DropDownList, ATextWithoutARowIsIgnored) {
    ComboBox combo("cmbUser", ComboStyle::DropDownList);
    combo.AddItem("ann");
    combo.SetListIndex(0);
    const Heard heard(combo);

    combo.SetText("eve");

    EXPECT_EQ(combo.Text(), "ann");
    EXPECT_EQ(heard.clicks, 0);
}

TEST(DropDownList, WithoutASelectionTheTextIsEmpty) {
    ComboBox combo("cmbUser", ComboStyle::DropDownList);
    combo.AddItem("ann");

    combo.SetListIndex(0);
    combo.SetListIndex(-1);
    EXPECT_EQ(combo.Text(), "");

    combo.SetListIndex(0);
    combo.RemoveItem(0);
    EXPECT_EQ(combo.Text(), "");

    combo.AddItem("bob");
    combo.SetListIndex(0);
    combo.Clear();
    EXPECT_EQ(combo.Text(), "");
}

TEST(ComboBox, TheScreenIsToldOfTextRowsAndSelection) {
    ComboBox combo("cmbAddress");
    RecordingObserver screen;
    combo.SetObserver(&screen);

    combo.AddItem("a");
    combo.SetText("typed");
    combo.SetListIndex(0);
    combo.SetHint("address");

    EXPECT_EQ(screen.Told, (std::vector<Property>{Property::Items, Property::Text, Property::ListIndex,
                                                  Property::Refresh}));
}

}  // namespace
}  // namespace controls
