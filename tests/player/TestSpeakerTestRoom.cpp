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

TEST(SpeakerTestRoom, TheRestartedTimerEndsTheCurrentSongWhenItStandsForTheOutgoingOne) {
    Testing house;
    house.state.FadeToB = true;
    house.frmSpeakerTest.UnloadWindow();

    house.desktop.Advance(60 * 60);

    EXPECT_FALSE(house.IsOpen("a"));
}

}  // namespace
