#include <gtest/gtest.h>

#include "controls/PictureBox.h"
#include "platform/qt/QtBench.h"
#include "platform/qt/ScaledPictures.h"

namespace {

struct RecordingEngine final : ports::MediaControl {
    ports::MediaReply SendString(std::string_view command) override {
        Commands.emplace_back(command);
        return {.error = 7, .text = "answer"};
    }
    std::string ErrorString(int error) const override { return "error " + std::to_string(error); }
    std::vector<std::string> Commands;
};

struct ScaledPicturesTest : testing::Test {
    std::string Sent(const std::string& command) {
        pictures.SendString(command);
        return engine.Commands.back();
    }
    RecordingEngine engine;
    double ratio_of_7 = 2;
    qt::ScaledPictures pictures{engine, [this](std::int64_t handle) { return handle == 7 ? ratio_of_7 : 1; }};
};

TEST_F(ScaledPicturesTest, APictureIsPutInThePixelsOfItsWindowsDisplay) {
    Sent("open C:\\m\\film.avi type MPEGVideo Alias a parent 7 Style 1073741824");

    EXPECT_EQ(Sent("put a window at 0 0 320 240"), "put a window at 0 0 640 480");
    EXPECT_EQ(Sent("put A window at 3 5 101 7"), "put A window at 6 10 202 14");
}

TEST_F(ScaledPicturesTest, AtABrokenRatioTheEdgesAreRounded) {
    ratio_of_7 = 1.5;
    Sent("open film.avi type MPEGVideo Alias b parent 7 Style 1073741824");

    EXPECT_EQ(Sent("put b window at 1 0 321 241"), "put b window at 2 0 481 362");
}

TEST_F(ScaledPicturesTest, WhatIsNotScaledAndWhatIsNoPlacePassesAsItIs) {
    const std::string open = "open film.avi type MPEGVideo Alias a parent 8 Style 1073741824";

    EXPECT_EQ(Sent(open), open);
    for (const char* command : {"put a window at 0 0 320 240", "put b window at 0 0 320 240", "put a", "",
                                "status a position", "open", "setaudio a Volume to 300"}) {
        EXPECT_EQ(Sent(command), command);
    }
}

TEST_F(ScaledPicturesTest, TheAnswersAreTheEngines) {
    const ports::MediaReply reply = pictures.SendString("status a mode");

    EXPECT_EQ(reply.error, 7);
    EXPECT_EQ(reply.text, "answer");
    EXPECT_EQ(pictures.ErrorString(3), "error 3");
}

TEST(PixelRatio, IsOfTheWindowWithTheHandle) {
    controls::PictureBox video("picVid");
    video.SetLook("video");
    qt_tests::PlaceAt(video, 10, 20, 100, 50);
    const qt_tests::Desk desk(video);

    EXPECT_EQ(qt::PixelRatioOf(video.Handle()), desk.Find(video)->devicePixelRatioF());
    EXPECT_EQ(qt::PixelRatioOf(0), 1);
    EXPECT_EQ(qt::PixelRatioOf(987654321), 1);
}

}  // namespace
