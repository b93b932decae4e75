#include "controls/CheckBox.h"
#include "controls/CommandButton.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/Line.h"
#include "controls/ProgressBar.h"
#include "controls/TextBox.h"

#include <gtest/gtest.h>

#include <vector>

#include "controls/RecordingObserver.h"

namespace controls {
namespace {

using Told = std::vector<Property>;

TEST(Label, AChangedCaptionRaisesChangeAndAnEqualOneDoesNot) {
    Label label("lblStatus", "ready");
    EventClaims claims;
    int changes = 0;
    claims.Claim(label.Change, [&changes] { ++changes; });

    label.SetCaption("ready");
    label.SetCaption("busy");
    label.SetCaption("busy");

    EXPECT_EQ(changes, 1);
    EXPECT_EQ(label.Caption(), "busy");
}

TEST(Label, TheNewCaptionStandsWhenChangeIsRaised) {
    Label label("lblStatus");
    EventClaims claims;
    std::string seen;
    claims.Claim(label.Change, [&] { seen = label.Caption(); });

    label.SetCaption("busy");

    EXPECT_EQ(seen, "busy");
}

TEST(TextBox, AChangedTextRaisesChangeAndAnEqualOneDoesNot) {
    TextBox box("txtSearch");
    EventClaims claims;
    int changes = 0;
    claims.Claim(box.Change, [&changes] { ++changes; });

    box.SetText("");
    box.SetText("abba");
    box.SetText("abba");
    box.SetText("");

    EXPECT_EQ(changes, 2);
}

TEST(TextBox, TheHintIsNoText) {
    TextBox box("txtSearch");
    EventClaims claims;
    int changes = 0;
    claims.Claim(box.Change, [&changes] { ++changes; });

    box.SetHint("Search");

    EXPECT_EQ(box.Text(), "");
    EXPECT_EQ(changes, 0);
}

TEST(TextBox, ASignShowsWhileTheTextItBelongsToIsInTheBox) {
    TextBox box("txtAddress");
    RecordingObserver observer;
    box.SetObserver(&observer);
    box.SetSign("lock", "https://one/");
    EXPECT_EQ(box.Sign(), "");
    EXPECT_TRUE(observer.Told.empty());

    box.SetText("https://one/");
    EXPECT_EQ(box.Sign(), "lock");
    box.SetText("https://two/");
    EXPECT_EQ(box.Sign(), "");

    box.SetSign("lock", "https://two/");
    EXPECT_EQ(box.Sign(), "lock");
    EXPECT_EQ(observer.Told, (std::vector<Property>{Property::Text, Property::Text, Property::Picture}));
}

TEST(CheckBox, AChangedCheckRaisesClickAndAnEqualOneDoesNot) {
    CheckBox box("chkAuto", "Auto");
    EventClaims claims;
    int clicks = 0;
    claims.Claim(box.Click, [&clicks] { ++clicks; });

    box.SetChecked(false);
    box.SetChecked(true);
    box.SetChecked(true);
    box.SetChecked(false);

    EXPECT_EQ(clicks, 2);
}

TEST(CommandButton, AnEqualCaptionIsNotTold) {
    CommandButton button("cmdGo", "Go");
    RecordingObserver screen;
    button.SetObserver(&screen);

    button.SetCaption("Go");
    button.SetCaption("Stop");

    EXPECT_EQ(screen.Told, Told{Property::Caption});
}

TEST(Image, AnEqualPictureIsNotTold) {
    Image image("imgPlay", "play");
    RecordingObserver screen;
    image.SetObserver(&screen);

    image.SetPicture("play");
    image.SetPicture("pause");

    EXPECT_EQ(screen.Told, Told{Property::Picture});
}

TEST(Line, OneEndMovesAndTheOtherStays) {
    Line line("TabLineLeft");
    line.Move(100, 50, 200, 0);

    line.SetX1(150);
    EXPECT_EQ(line.X1(), 150);
    EXPECT_EQ(line.X2(), 300);

    line.SetX2(400);
    EXPECT_EQ(line.X1(), 150);
    EXPECT_EQ(line.X2(), 400);
    EXPECT_EQ(line.Top(), 50);
}

TEST(Line, EndsThatPassEachOtherMeet) {
    Line line("TabLineLeft");
    line.Move(100, 50, 200, 0);

    line.SetX1(500);
    EXPECT_EQ(line.X1(), 300);
    EXPECT_EQ(line.X2(), 300);
}

TEST(ProgressBar, AValueOutsideItsRangeIsRefused) {
    ProgressBar bar("pbLoad");
    bar.SetValue(40);

    EXPECT_FALSE(bar.SetValue(101));
    EXPECT_FALSE(bar.SetValue(-1));

    EXPECT_EQ(bar.Value(), 40);
}

TEST(ProgressBar, BothEndsOfTheRangeAreTaken) {
    ProgressBar bar("pbLoad");

    EXPECT_TRUE(bar.SetValue(100));
    EXPECT_EQ(bar.Value(), 100);
    EXPECT_TRUE(bar.SetValue(0));
    EXPECT_EQ(bar.Value(), 0);
}

TEST(ProgressBar, AnEqualValueIsNotTold) {
    ProgressBar bar("pbLoad");
    RecordingObserver screen;
    bar.SetObserver(&screen);

    EXPECT_TRUE(bar.SetValue(0));
    EXPECT_TRUE(bar.SetValue(7));
    EXPECT_TRUE(bar.SetValue(7));

    EXPECT_EQ(screen.Told, Told{Property::Value});
}

}  // namespace
}  // namespace controls
