#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;

struct Testing : PlayerHouse {
    Testing() {
        controls.transport.tmrPlay.SetEnabled(false);
        player.PlaySong(AddSong("Owls - Fly.mp3", 600000));
        menu.mnuPanQuick.Click.Raise();
        window.TakeCalls();
        menu.mnuSoundTest.Click.Raise();
        TakeCommands();
    }
};

TEST(SpeakerTestRoom, ShowsWhatPlaysAndEndsThePanning) {
    Testing house;

    EXPECT_TRUE(house.frmSpeakerTest.Visible());
    EXPECT_EQ(house.frmSpeakerTest.lblTrack.Caption(), "Owls - Fly");
    EXPECT_TRUE(house.menu.mnuPanOff.Checked());
    EXPECT_FALSE(house.controls.levels.tmrPanning.Enabled());
    EXPECT_FALSE(house.controls.levels.tmrFade.Enabled());
    EXPECT_EQ(house.window.TakeCalls(), Texts{"disable"});
}

TEST(SpeakerTestRoom, EachButtonSendsItsTwoLevels) {
    Testing house;

    house.frmSpeakerTest.cmdLeft.Click.Raise();
    house.frmSpeakerTest.cmdRight.Click.Raise();
    house.frmSpeakerTest.cmdBoth.Click.Raise();

    const Texts expected = {"setaudio a left Volume to 1000",  "setaudio a right Volume to 0",
                            "setaudio a right Volume to 1000", "setaudio a left Volume to 0",
                            "setaudio a left Volume to 1000",  "setaudio a right Volume to 1000"};
    EXPECT_EQ(house.TakeCommands(), expected);
}

TEST(SpeakerTestRoom, ClosingItStartsTheFadeTimerThoughNoFadeRan) {
    Testing house;
    house.window.TakeCalls();

    house.frmSpeakerTest.UnloadWindow();

    EXPECT_TRUE(house.controls.levels.tmrFade.Enabled());
    EXPECT_EQ(house.window.TakeCalls(), Texts{"enable"});
    EXPECT_TRUE(house.menu.mnuPanOff.Checked());
    EXPECT_EQ(house.TakeCommands(), Texts{"setaudio a Volume to 1000"});
}

TEST(SpeakerTestRoom, EscapeClosesIt) {
    Testing house;

    house.frmSpeakerTest.KeyDown.Raise('A', 0);
    const bool stays = house.frmSpeakerTest.Visible();
    house.frmSpeakerTest.KeyDown.Raise(controls::kKeyEscape, 0);

    EXPECT_TRUE(stays);
    EXPECT_FALSE(house.frmSpeakerTest.Visible());
}

TEST(SpeakerTestRoom, ItEndsARunningCrossfadeAsItStands) {
    PlayerHouse house;
    house.controls.transport.tmrPlay.SetEnabled(false);
    house.player.PlaySong(house.AddSong("a.mp3", 600000));
    house.player.PlaySong(house.AddSong("b.mp3", 600000));
    house.desktop.Advance(600);

    house.menu.mnuSoundTest.Click.Raise();
    house.desktop.Advance(600);

    EXPECT_EQ(house.LevelOf("a"), 80);
    EXPECT_EQ(house.LevelOf("b"), 100) << "the end of the panning puts the level";
    EXPECT_FALSE(house.controls.levels.tmrFade.Enabled());
}

TEST(SpeakerTestRoom, ClosingItDuringACrossfadeEndsTheOutgoingSongAtTheNextTick) {
    PlayerHouse house;
    house.controls.transport.tmrPlay.SetEnabled(false);
    house.player.PlaySong(house.AddSong("a.mp3", 600000));
    house.player.PlaySong(house.AddSong("b.mp3", 600000));
    house.desktop.Advance(600);
    house.menu.mnuSoundTest.Click.Raise();
    house.frmSpeakerTest.UnloadWindow();

    house.desktop.Advance(60);

    EXPECT_FALSE(house.IsOpen("a"));
    EXPECT_EQ(house.LevelOf("b"), 100);
    EXPECT_FALSE(house.controls.levels.tmrFade.Enabled());
    EXPECT_TRUE(house.controls.levels.tmrPanning.Enabled());
}

TEST(SpeakerTestRoom, WithNoSongEverythingFailsInSilence) {
    PlayerHouse house;

    house.menu.mnuSoundTest.Click.Raise();
    house.frmSpeakerTest.cmdLeft.Click.Raise();
    house.frmSpeakerTest.UnloadWindow();
    house.desktop.Advance(1000);

    EXPECT_TRUE(house.dialogs.Boxes.empty());
    EXPECT_FALSE(house.IsOpen("a"));
    EXPECT_FALSE(house.IsOpen("b"));
    EXPECT_EQ(house.frmSpeakerTest.lblTrack.Caption(), "");
}

TEST(SpeakerTestRoom, TheRestartedTimerEndsTheCurrentSongWhenItStandsForTheOutgoingOne) {
    Testing house;
    house.state.FadeToB = true;
    house.frmSpeakerTest.UnloadWindow();

    house.desktop.Advance(60 * 60);

    EXPECT_FALSE(house.IsOpen("a"));
}

}  // namespace
