#include "platform/linux/CommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace linux {
namespace {

using Kind = CommandLine::Kind;
using Arguments = std::vector<std::string>;

TEST(CommandLine, WhatIsNoOptionIsOpened) {
    const CommandLine line = ReadCommandLine({"/music/a.mp3", "www.example.org", "", "-"});

    EXPECT_EQ(line.kind, Kind::Open);
    EXPECT_EQ(line.arguments, (Arguments{"/music/a.mp3", "www.example.org", "", "-"}));
    EXPECT_EQ(ReadCommandLine({}).kind, Kind::Open);
}

TEST(CommandLine, TheFiveOptionsOfThePlayer) {
    for (const std::string option : {"play-pause", "next", "previous", "stop", "status"}) {
        const CommandLine line = ReadCommandLine({"--" + option});
        EXPECT_EQ(line.kind, Kind::Player) << option;
        EXPECT_EQ(line.option, option);
        EXPECT_NE(HelpText().find("--" + option + " "), std::string::npos) << option;
    }
}

TEST(CommandLine, HelpAndVersion) {
    EXPECT_EQ(ReadCommandLine({"--help"}).kind, Kind::Help);
    EXPECT_EQ(ReadCommandLine({"-h"}).kind, Kind::Help);
    EXPECT_EQ(ReadCommandLine({"--version"}).kind, Kind::Version);
}

TEST(CommandLine, ANewTabStandsAlone) {
    EXPECT_EQ(ReadCommandLine({"--new-tab"}).kind, Kind::NewTab);
    EXPECT_NE(HelpText().find("--new-tab "), std::string::npos);
    EXPECT_EQ(ReadCommandLine({"--new-tab", "a.mp3"}).trouble, "--new-tab stands alone.");
}

TEST(CommandLine, AStartMayLeaveTheHomePagesClosed) {
    const CommandLine line = ReadCommandLine({"--without-home-pages", "a.mp3"});

    EXPECT_EQ(line.kind, Kind::Open);
    EXPECT_TRUE(line.without_home_pages);
    EXPECT_EQ(line.arguments, (Arguments{"a.mp3"}));
    EXPECT_FALSE(ReadCommandLine({"--", "--without-home-pages"}).without_home_pages);
    EXPECT_EQ(ReadCommandLine({"--without-home-pages", "--stop"}).kind, Kind::Wrong);
    EXPECT_NE(HelpText().find("--without-home-pages "), std::string::npos);
}

TEST(CommandLine, AnUnknownOptionIsTold) {
    for (const std::string option : {"--play", "-x", "--Next", "--next=1", "---"}) {
        const CommandLine line = ReadCommandLine({"a.mp3", option});
        EXPECT_EQ(line.kind, Kind::Wrong) << option;
        EXPECT_EQ(line.trouble, "There is no option " + option + ".");
    }
}

TEST(CommandLine, AnOptionOfThePlayerStandsAlone) {
    EXPECT_EQ(ReadCommandLine({"--next", "--status"}).trouble, "--next stands alone.");
    EXPECT_EQ(ReadCommandLine({"a.mp3", "--stop"}).trouble, "--stop stands alone.");
}

TEST(CommandLine, AfterTwoDashesEverythingIsOpened) {
    const CommandLine line = ReadCommandLine({"a.mp3", "--", "--next", "-x.mp3", "--"});

    EXPECT_EQ(line.kind, Kind::Open);
    EXPECT_EQ(line.arguments, (Arguments{"a.mp3", "--next", "-x.mp3", "--"}));
}

}  // namespace
}  // namespace linux
