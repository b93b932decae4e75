#include <gtest/gtest.h>

#include <memory>

#include "fakes/FakeInstanceLock.h"
#include "session/HandOffRoom.h"

namespace {

class HandOffRoom : public testing::Test {
protected:
    HandOffRoom() { instance.TryBecomeFirst(); }

    fakes::FakeInstances instances;
    fakes::FakeInstanceLock instance{instances};
    fakes::FakeInstanceLock later{instances};
    session::HandOffControls controls;
    std::string caption_in_front;
    std::unique_ptr<session::HandOffRoom> room = std::make_unique<session::HandOffRoom>(
        controls, instance, [this] { caption_in_front = controls.cmdDummy.Caption(); });
};

TEST_F(HandOffRoom, NothingOfItShows) {
    EXPECT_FALSE(controls.cmdDummy.Visible());
    EXPECT_FALSE(controls.Text1.Visible());
    EXPECT_FALSE(controls.lstOpenWith.Visible());
    EXPECT_FALSE(controls.tmrOpenWith.Enabled());
    EXPECT_EQ(controls.cmdDummy.Caption(), "Dummy");
}

TEST_F(HandOffRoom, PreparingHidesTheButtonAndEmptiesTheLog) {
    controls.cmdDummy.SetVisible(true);
    controls.Text1.SetText("old");

    room->Prepare();

    EXPECT_FALSE(controls.cmdDummy.Visible());
    EXPECT_EQ(controls.Text1.Text(), "");
}

TEST_F(HandOffRoom, ADeliveredCommandIsLoggedAndTheButtonIsReadyAgain) {
    room->Deliver("\"C:\\a.mp3\"");

    EXPECT_EQ(controls.Text1.Text(), "Excuted with command: \"C:\\a.mp3\"");
    EXPECT_EQ(controls.cmdDummy.Caption(), "Ready for command");
}

TEST_F(HandOffRoom, EachCommandGetsItsLine) {
    room->Deliver("one");

    room->Deliver("");

    EXPECT_EQ(controls.Text1.Text(), "Excuted with command: one\r\nExcuted with command: ");
}

TEST_F(HandOffRoom, AClickTakesTheCaption) {
    controls.cmdDummy.SetCaption("two");

    controls.cmdDummy.Click.Raise();

    EXPECT_EQ(controls.Text1.Text(), "Excuted with command: two");
}

TEST_F(HandOffRoom, ALaterStartBringsTheWindowToTheFrontBeforeItsCommandIsTaken) {
    room->Deliver("");

    later.HandOff("\"C:\\b.mp3\"");

    EXPECT_EQ(caption_in_front, "Ready for command");
    EXPECT_EQ(controls.Text1.Text(), "Excuted with command: \r\nExcuted with command: \"C:\\b.mp3\"");
    EXPECT_EQ(controls.cmdDummy.Caption(), "Ready for command");
}

TEST_F(HandOffRoom, AfterItsEndALaterStartFindsNobody) {
    room.reset();

    later.HandOff("\"C:\\b.mp3\"");

    EXPECT_EQ(controls.Text1.Text(), "");
    EXPECT_EQ(caption_in_front, "");
}

}  // namespace
