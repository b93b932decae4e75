#include "platform/gstreamer/MciCommand.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/gstreamer/MciErrors.h"

namespace {

using gstreamer::Channel;
using gstreamer::Command;
using gstreamer::Item;
using gstreamer::SeekTarget;
using gstreamer::TimeFormat;
using gstreamer::Verb;

Command Parsed(std::string_view text) {
    Command command;
    EXPECT_EQ(gstreamer::ParseCommand(text, command), 0) << text;
    return command;
}

int ErrorOf(std::string_view text) {
    Command command;
    return gstreamer::ParseCommand(text, command);
}

TEST(MciCommand, OpenHasFileTypeAliasAndParent) {
    const Command open =
        Parsed("open C:\\song.mp3 type MPEGVideo Alias A parent 4294967297 Style 1073741824");

    EXPECT_EQ(open.verb, Verb::Open);
    EXPECT_EQ(open.target, "C:\\song.mp3");
    EXPECT_EQ(open.type, "MPEGVideo");
    EXPECT_EQ(open.alias, "a");
    EXPECT_EQ(open.parent, 4294967297);
}

TEST(MciCommand, OpenTakesItsFlagsInAnyOrderAndAQuotedFile) {
    const Command open = Parsed("OPEN \"C:\\My Music\\a b.mp3\" shareable alias b wait type MPEGVideo");

    EXPECT_EQ(open.target, "C:\\My Music\\a b.mp3");
    EXPECT_EQ(open.alias, "b");
}

TEST(MciCommand, OpenWithoutAliasGoesByItsFile) {
    EXPECT_EQ(Parsed("open C:\\Song.MP3").alias, "c:\\song.mp3");
}

TEST(MciCommand, PlayHasBothEndsOrNone) {
    const Command whole = Parsed("Play a");
    const Command part = Parsed("play A from 10 to -1");

    EXPECT_FALSE(whole.from.has_value());
    EXPECT_FALSE(whole.to.has_value());
    EXPECT_EQ(part.target, "a");
    EXPECT_EQ(part.from, 10);
    EXPECT_EQ(part.to, -1);
}

TEST(MciCommand, SimpleVerbsAreReadInAnyCase) {
    EXPECT_EQ(Parsed("Close All").target, "all");
    EXPECT_EQ(Parsed("Close a").verb, Verb::Close);
    EXPECT_EQ(Parsed("PAUSE a").verb, Verb::Pause);
    EXPECT_EQ(Parsed("Resume a").verb, Verb::Resume);
    EXPECT_EQ(Parsed("  stop\ta notify").verb, Verb::Stop);
}

TEST(MciCommand, SeekGoesToAPlaceTheStartOrTheEnd) {
    EXPECT_EQ(Parsed("seek a to 500").to, 500);
    EXPECT_EQ(Parsed("seek a to start").seek, SeekTarget::Start);
    EXPECT_EQ(Parsed("seek a to END").seek, SeekTarget::End);
}

TEST(MciCommand, SetKnowsTimeFormatsAndSpeed) {
    EXPECT_EQ(Parsed("set a time format frames").format, TimeFormat::Frames);
    EXPECT_EQ(Parsed("set a time format ms").format, TimeFormat::Milliseconds);
    EXPECT_EQ(Parsed("set a Time Format Milliseconds").verb, Verb::SetTimeFormat);
    EXPECT_EQ(Parsed("set a speed 1030").verb, Verb::SetSpeed);
    EXPECT_EQ(Parsed("set a speed -170").value, -170);
}

TEST(MciCommand, SetAudioKnowsTheChannels) {
    EXPECT_EQ(Parsed("setaudio a Volume to 1000").channel, Channel::Both);
    EXPECT_EQ(Parsed("setaudio a LEFT Volume to 300").channel, Channel::Left);
    EXPECT_EQ(Parsed("setaudio a right Volume to 300").channel, Channel::Right);
    EXPECT_EQ(Parsed("setaudio a right Volume to 300").value, 300);
}

TEST(MciCommand, StatusKnowsItsItems) {
    EXPECT_EQ(Parsed("status a mode").item, Item::Mode);
    EXPECT_EQ(Parsed("status a length").item, Item::Length);
    EXPECT_EQ(Parsed("status a position").item, Item::Position);
    EXPECT_EQ(Parsed("status a Volume").item, Item::Volume);
    EXPECT_EQ(Parsed("status a speed").item, Item::Speed);
    EXPECT_EQ(Parsed("status a time format").item, Item::TimeFormat);
    EXPECT_EQ(Parsed("status a Right Volume").channel, Channel::Right);
}

TEST(MciCommand, FollowHasAFileOrNone) {
    const Command follow = Parsed("follow A by C:\\song.mp3");
    EXPECT_EQ(follow.verb, Verb::Follow);
    EXPECT_EQ(follow.target, "a");
    EXPECT_EQ(follow.file, "C:\\song.mp3");
    EXPECT_EQ(Parsed("follow a").file, "");
}

TEST(MciCommand, PutHasFourCoordinates) {
    const Command put = Parsed("put a window at -1 2 320 240");

    EXPECT_EQ(put.verb, Verb::Put);
    EXPECT_EQ(put.place, (std::array{-1, 2, 320, 240}));
}

TEST(MciCommand, WhatCannotBeReadHasItsNumber) {
    const std::vector<std::pair<std::string_view, int>> cases{
        {"", 267},
        {"   ", 267},
        {"dance a", 261},
        {"play", 292},
        {"open  type MPEGVideo Alias a parent 0 Style 1073741824", 292},
        {"open \"C:\\a b.mp3", 294},
        {"open x.mp3 alias all", 279},
        {"open x.mp3 colour 3", 259},
        {"open x.mp3 parent none", 270},
        {"play a from x", 270},
        {"play a from", 273},
        {"play a backwards", 259},
        {"pause a now", 259},
        {"seek a", 273},
        {"seek a at 4", 259},
        {"seek a to", 273},
        {"seek a to 12x", 270},
        {"seek a to 99999999999999999999", 270},
        {"set a", 273},
        {"set a colour 1", 259},
        {"set a time format tmsf", 293},
        {"set a speed fast", 270},
        {"setaudio a", 273},
        {"setaudio a left treble to 4", 259},
        {"setaudio a volume to", 273},
        {"status a", 273},
        {"status a left mode", 259},
        {"status a weather", 259},
        {"put a", 273},
        {"follow a by", 273},
        {"follow a after song.mp3", 259},
        {"put a window at 1 2 3", 273},
        {"put a window at 1 2 3 99999999999", 282},
    };

    for (const auto& [text, error] : cases)
        EXPECT_EQ(ErrorOf(text), error) << text;
}

TEST(MciErrors, EveryNumberOfTheReaderHasATextThatFitsAReply) {
    for (const int error :
         {259, 261, 262, 263, 267, 270, 273, 275, 276, 279, 280, 282, 289, 292, 293, 294, 296, 306, 348}) {
        EXPECT_FALSE(gstreamer::ErrorText(error).empty()) << error;
        EXPECT_LT(gstreamer::ErrorText(error).size(), 128U) << error;
    }
}

TEST(MciErrors, OtherNumbersHaveNone) {
    EXPECT_TRUE(gstreamer::ErrorText(0).empty());
    EXPECT_TRUE(gstreamer::ErrorText(257).empty());
    EXPECT_TRUE(gstreamer::ErrorText(-1).empty());
}

}  // namespace
