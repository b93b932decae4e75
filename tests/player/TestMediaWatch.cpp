#include "player/MediaWatch.h"

#include <gtest/gtest.h>

#include "fakes/FakeMediaControl.h"

namespace {

class MediaWatchTest : public testing::Test {
protected:
    MediaWatchTest() {
        device.AddFile("C:\\a.mp3");
        Send("open C:\\a.mp3 type MPEGVideo Alias a");
    }
    int Send(std::string_view command) { return watch.SendString(command).error; }

    fakes::FakeMediaControl device;
    player::MediaWatch watch{device};
};

TEST_F(MediaWatchTest, CountsWhatChangesTheSong) {
    for (const char* order : {"play a", "pause a", "Resume a", "Stop a", "set a speed 1030", "Close a"}) {
        const std::uint64_t before = watch.Orders();

        Send(order);

        EXPECT_EQ(watch.Orders(), before + 1) << order;
    }
}

TEST_F(MediaWatchTest, QuestionsLevelsAndThePictureAreNoOrders) {
    const std::uint64_t before = watch.Orders();

    for (const char* quiet :
         {"status a mode", "status a position", "set a time format frames", "set a time format ms",
          "setaudio a Volume to 500", "put a window at 0 0 9 9"}) {
        EXPECT_EQ(Send(quiet), 0) << quiet;
    }

    EXPECT_EQ(watch.Orders(), before);
}

TEST_F(MediaWatchTest, CountsWhatWasOpenedAndNotWhatCouldNotBe) {
    EXPECT_EQ(watch.Openings(), 1);

    EXPECT_NE(Send("open C:\\gone.mp3 type MPEGVideo Alias b"), 0);

    EXPECT_EQ(watch.Openings(), 1);
}

TEST_F(MediaWatchTest, CountsJumpsThatHappened) {
    Send("seek a to 500");
    EXPECT_EQ(watch.Seeks(), 1U);

    EXPECT_NE(Send("seek b to 500"), 0);

    EXPECT_EQ(watch.Seeks(), 1U);
}

TEST_F(MediaWatchTest, PassesRepliesAndErrorsOn) {
    const ports::MediaReply mode = watch.SendString("status a mode");

    EXPECT_EQ(mode.error, 0);
    EXPECT_EQ(mode.text, "stopped");
    const int error = Send("play b");
    EXPECT_NE(error, 0);
    EXPECT_FALSE(watch.ErrorString(error).empty());
    EXPECT_EQ(watch.ErrorString(error), device.ErrorString(error));
}

}  // namespace
