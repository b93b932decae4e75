#include <gtest/gtest.h>

#include <map>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;

std::vector<controls::Colour> Colours(PlayerHouse& house, int ticks) {
    std::vector<controls::Colour> colours;
    for (int i = 0; i < ticks; ++i) {
        house.frmVideo.tmrVisual.Tick.Raise();
        colours.push_back(house.frmVideo.picVid.BackColor());
    }
    return colours;
}

TEST(VisualisationRoom, AShowOpensTheWindowOverTheHole) {
    PlayerHouse house;
    house.window.FavouritesClosed = true;
    house.menu.mnuNone.SetChecked(true);

    house.menu.mnuStrobe.Click.Raise();

    EXPECT_TRUE(house.state.VisualisationOn);
    EXPECT_TRUE(house.frmVideo.Visible());
    EXPECT_TRUE(house.controls.video.picVideo.Visible());
    EXPECT_TRUE(house.frmVideo.tmrVisual.Enabled());
    EXPECT_FALSE(house.state.resized);
    EXPECT_TRUE(house.menu.mnuStrobe.Checked());
    EXPECT_FALSE(house.menu.mnuNone.Checked());
    EXPECT_EQ(house.window.TakeCalls(),
              (Texts{"make hole", "close hole", "resize", "close hole", "favourites", "resize"}))
        << "the second close by the layout of a player that is stopped";
}

TEST(VisualisationRoom, AShowThatIsChosenWhileStoppedStaysOverALayoutUntilTheNextStop) {
    PlayerHouse house;
    ASSERT_TRUE(house.state.PlayerStopped);

    house.menu.mnuParty.Click.Raise();
    house.window.Form_Resize();
    const bool stayed = house.frmVideo.Visible() && house.controls.video.picVideo.Visible();
    house.menu.mnuStop.Click.Raise();
    house.window.Form_Resize();

    EXPECT_TRUE(stayed);
    EXPECT_FALSE(house.frmVideo.Visible());
    EXPECT_FALSE(house.controls.video.picVideo.Visible());
}

TEST(VisualisationRoom, NoneEndsTheShowOfAVideoThatWasStopped) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.menu.mnuStop.Click.Raise();
    house.menu.mnuStrobe.Click.Raise();

    house.menu.mnuNone.Click.Raise();

    EXPECT_FALSE(house.frmVideo.tmrVisual.Enabled());
    EXPECT_FALSE(house.frmVideo.Visible());
    EXPECT_FALSE(house.controls.video.picVideo.Visible());
}

TEST(VisualisationRoom, ClosingTheWindowEndsTheShowAndLeavesOneCheck) {
    PlayerHouse house;
    house.menu.mnuMood.Click.Raise();

    house.frmVideo.UnloadWindow();
    house.player.PlaySong(house.AddSong("a.mp3"));

    EXPECT_TRUE(house.menu.mnuNone.Checked());
    EXPECT_FALSE(house.menu.mnuMood.Checked());
    EXPECT_FALSE(house.frmVideo.tmrVisual.Enabled());
    EXPECT_FALSE(house.frmVideo.Visible()) << "the next song does not bring it back";
}

TEST(VisualisationRoom, EachEntryChoosesItsShow) {
    PlayerHouse house;
    const std::vector<std::tuple<controls::Menu*, int, bool>> shows = {{&house.menu.mnuStrobe, 1, false},
                                                                       {&house.menu.mnuParty, 2, false},
                                                                       {&house.menu.mnuMood, 3, true},
                                                                       {&house.menu.mnuAnim, 4, false}};

    for (const auto& [entry, visual, first_load] : shows) {
        entry->Click.Raise();

        EXPECT_EQ(house.state.visual, visual) << entry->Name();
        EXPECT_EQ(house.state.FirstLoad, first_load) << entry->Name();
        EXPECT_TRUE(entry->Checked());
    }
    EXPECT_FALSE(house.menu.mnuMood.Checked());
}

TEST(VisualisationRoom, StrobeGoesBlueWhiteBlack) {
    PlayerHouse house;
    house.menu.mnuStrobe.Click.Raise();

    EXPECT_EQ(Colours(house, 4), (std::vector<controls::Colour>{0x0000FF, 0xFFFFFF, 0x000000, 0x0000FF}));
}

TEST(VisualisationRoom, TheAnimationShowsItsPicturesInTurn) {
    PlayerHouse house;
    house.menu.mnuAnim.Click.Raise();
    std::string shown;

    for (int tick = 1; tick <= 24; ++tick) {
        Colours(house, 1);
        shown += house.frmVideo.imgAnim1.Visible() ? '1' : '-';
        shown += house.frmVideo.imgAnim2.Visible() ? '2' : '-';
        shown += ' ';
    }

    // Seven ticks of the first, eight of the second, and one that only begins anew.
    EXPECT_EQ(shown, "1- 1- 1- 1- 1- 1- 1- -2 -2 -2 -2 -2 -2 -2 -2 -2 1- 1- 1- 1- 1- 1- 1- -2 ");
    EXPECT_EQ(house.frmVideo.tmrVisual.Interval(), 50);
}

TEST(VisualisationRoom, PartyPicksByChance) {
    PlayerHouse house;
    house.menu.mnuParty.Click.Raise();
    std::vector<controls::Colour> picked;

    for (const double chance : {0.0, 0.25, 0.5, 0.75, 0.99}) {
        house.chance.Value = chance;
        picked.push_back(Colours(house, 1).front());
    }

    EXPECT_EQ(picked, (std::vector<controls::Colour>{0x00FF00, 0xFF0000, 0xFFFF00, 0x0000FF, 0x000000}));
}

TEST(VisualisationRoom, TheFirstAndTheLastColourOfAPartyAreHalfAsLikely) {
    PlayerHouse house;
    house.menu.mnuParty.Click.Raise();
    std::map<controls::Colour, int> odds;

    for (int step = 0; step < 800; ++step) {
        house.chance.Value = (step + 0.5) / 800;
        ++odds[Colours(house, 1).front()];
        // The eighth tick of a round picks nothing.
        if (step % 7 == 6) Colours(house, 1);
    }

    EXPECT_EQ(odds,
              (std::map<controls::Colour, int>{
                  {0x00FF00, 100}, {0xFF0000, 200}, {0xFFFF00, 200}, {0x0000FF, 200}, {0x000000, 100}}));
}

TEST(VisualisationRoom, AHalfOfTheOddsGoesToTheEvenNeighbour) {
    PlayerHouse house;
    house.menu.mnuParty.Click.Raise();
    std::vector<controls::Colour> picked;

    for (const double chance : {0.125, 0.375, 0.625, 0.875}) {
        house.chance.Value = chance;
        picked.push_back(Colours(house, 1).front());
    }

    EXPECT_EQ(picked, (std::vector<controls::Colour>{0x00FF00, 0xFFFF00, 0xFFFF00, 0x000000}));
}

TEST(VisualisationRoom, ThePartyRestsAtEveryEighthTick) {
    PlayerHouse house;
    house.menu.mnuParty.Click.Raise();
    Colours(house, 7);
    house.chance.Value = 0.99;
    house.frmVideo.picVid.SetBackColor(0x123456);

    const auto colours = Colours(house, 2);

    EXPECT_EQ(colours, (std::vector<controls::Colour>{0x123456, 0x000000}));
    EXPECT_EQ(house.frmVideo.tmrVisual.Interval(), 50);
}

TEST(VisualisationRoom, PartyTurnsIntoMoodOnceWhileFirstLoadStands) {
    PlayerHouse house;
    house.menu.mnuParty.Click.Raise();
    Colours(house, 8);
    const int without = house.state.visual;
    house.state.FirstLoad = true;

    Colours(house, 8);

    EXPECT_EQ(without, 2);
    EXPECT_EQ(house.state.visual, 3);
    EXPECT_FALSE(house.state.FirstLoad);
}

TEST(VisualisationRoom, MoodWalksTheColourAtTenMilliseconds) {
    PlayerHouse house;
    house.menu.mnuMood.Click.Raise();

    const auto colours = Colours(house, 1510);

    EXPECT_EQ(house.frmVideo.tmrVisual.Interval(), 10);
    EXPECT_EQ(colours[0], 0x020101U);
    EXPECT_EQ(colours[253], 0xFF0101U);
    EXPECT_EQ(colours[508], 0xFFFF01U) << "a colour goes no further than its end";
    EXPECT_EQ(colours[763], 0xFFFFFFU);
    EXPECT_EQ(colours[1008], 0x0AFFFFU);
    EXPECT_EQ(colours[1509], colours[1508]) << "the walk begins anew";
}

TEST(VisualisationRoom, MoodBeginsAtItsFirstColourWhenTheWindowIsLoaded) {
    PlayerHouse house;
    house.menu.mnuMood.Click.Raise();
    Colours(house, 100);
    house.frmVideo.UnloadWindow();

    house.frmVideo.Show();
    const auto colour = Colours(house, 1).front();

    EXPECT_EQ(colour, 0x020101U);
}

TEST(VisualisationRoom, AComponentThatWouldBeNegativeIsNought) {
    PlayerHouse house;
    house.menu.mnuMood.Click.Raise();
    Colours(house, 900);
    house.frmVideo.Load.Raise();

    const auto colours = Colours(house, 2);

    EXPECT_EQ(colours, (std::vector<controls::Colour>{0x000101, 0x000101}));
}

TEST(VisualisationRoom, AStopOrAVideoOnlyInterruptsAShow) {
    PlayerHouse house;
    house.menu.mnuParty.Click.Raise();
    house.player.PlaySong(house.AddSong("a.mp3"));
    house.player.Stop();
    ASSERT_FALSE(house.frmVideo.Visible());
    house.player.PlaySong(house.AddSong("b.avi"));
    ASSERT_FALSE(house.frmVideo.tmrVisual.Enabled());

    house.player.Stop();
    house.player.PlaySong(house.AddSong("c.mp3"));

    EXPECT_TRUE(house.frmVideo.Visible());
    EXPECT_TRUE(house.frmVideo.tmrVisual.Enabled());
    EXPECT_TRUE(house.controls.video.picVideo.Visible());
    EXPECT_TRUE(house.player.Video().IsVideoAttached());
}

TEST(VisualisationRoom, AShowBehindAClosedPanelLeavesThePlaceToTheMainWindow) {
    PlayerHouse house;
    house.menu.mnuParty.Click.Raise();
    house.controls.video.picVideo.SetVisible(false);
    house.window.FavouritesClosed = true;

    house.player.PlaySong(house.AddSong("a.mp3"));

    EXPECT_FALSE(house.controls.video.picVideo.Visible());
}

TEST(VisualisationRoom, AShowStartedOverAVideoKeepsTheVideo) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.Float(6000, 7000, 4800, 3600);

    house.menu.mnuStrobe.Click.Raise();

    EXPECT_EQ(house.PlayingOn("a"), "C:\\m\\a.avi");
    EXPECT_FALSE(house.state.resized) << "every show begins in the hole";
    EXPECT_TRUE(house.frmVideo.Visible());
}

TEST(VisualisationRoom, NoneEndsTheShow) {
    PlayerHouse house;
    house.menu.mnuParty.Click.Raise();
    house.window.TakeCalls();

    house.menu.mnuNone.Click.Raise();

    EXPECT_FALSE(house.state.VisualisationOn);
    EXPECT_FALSE(house.frmVideo.Visible());
    EXPECT_FALSE(house.frmVideo.tmrVisual.Enabled());
    EXPECT_FALSE(house.menu.mnuParty.Checked());
    EXPECT_FALSE(house.menu.mnuNone.Checked());
    EXPECT_EQ(house.window.TakeCalls(), (Texts{"close hole", "resize", "close hole"}));
}

TEST(VisualisationRoom, NoneLeavesAVideoAlone) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.window.TakeCalls();

    house.menu.mnuNone.Click.Raise();

    EXPECT_TRUE(house.frmVideo.Visible());
    EXPECT_TRUE(house.window.TakeCalls().empty());
}

TEST(VisualisationRoom, ASongWithAShowKeepsTheWindow) {
    PlayerHouse house;
    house.menu.mnuParty.Click.Raise();

    house.player.PlaySong(house.AddSong("a.mp3"));

    EXPECT_TRUE(house.frmVideo.Visible());
    EXPECT_EQ(house.frmVideo.Caption(), "Visualisations");
    EXPECT_TRUE(house.player.Video().IsVideoAttached());
}

}  // namespace
