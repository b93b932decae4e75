// What every media control interface keeps to. Places are in frames unless a test says otherwise.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "ports/MediaControl.h"

namespace contracts {

/// Every test has a bench of its own. Its files' names are one word each.
class MediaControlBench {
public:
    virtual ~MediaControlBench() = default;
    virtual ports::MediaControl& Media() = 0;
    /// A sound of exactly 2 seconds.
    virtual std::string Song() = 0;
    /// A video of 2 seconds with 25 pictures a second.
    virtual std::string Film() = 0;
    /// A file that is there and cannot be played.
    virtual std::string Broken() = 0;
    virtual std::string Missing() = 0;
    /// A sound of 2 seconds that does not tell its length, as a recorded stream.
    virtual std::string Lengthless() = 0;
    /// A sound whose name has a blank.
    virtual std::string Blank() = 0;
    /// Lets this much time pass.
    virtual void Pass(int milliseconds) = 0;
};

template <class Bench>
class MediaControlContract : public testing::Test {
protected:
    int Send(const std::string& command) { return media_.SendString(command).error; }
    int Open(const std::string& file, const std::string& alias = "a") {
        return Send("open " + file + " type MPEGVideo Alias " + alias + " parent 0 Style 1073741824");
    }
    std::string Ask(const std::string& command) {
        const ports::MediaReply reply = media_.SendString(command);
        EXPECT_EQ(reply.error, 0) << command;
        return reply.text;
    }
    int AskNumber(const std::string& command) { return std::atoi(Ask(command).c_str()); }

    Bench bench_;
    ports::MediaControl& media_ = bench_.Media();
};

TYPED_TEST_SUITE_P(MediaControlContract);

TYPED_TEST_P(MediaControlContract, AnAliasThatIsNotOpenIsRefusedByEveryCommand) {
    for (const char* command : {"play a", "pause a", "resume a", "stop a", "close a", "seek a to 1",
                                "set a time format ms", "set a speed 1000", "setaudio a volume to 1",
                                "status a mode", "put a window at 0 0 1 1", "follow a"}) {
        EXPECT_EQ(this->Send(command), 263) << command;
    }
}

TYPED_TEST_P(MediaControlContract, AnOpenedFileIsStoppedAtItsStart) {
    ASSERT_EQ(this->Open(this->bench_.Song()), 0);

    EXPECT_EQ(this->Ask("status a mode"), "stopped");
    EXPECT_EQ(this->Ask("status a position"), "0");
}

TYPED_TEST_P(MediaControlContract, AFrameIsAMillisecondOfSoundOrAPictureOfAVideo) {
    this->Open(this->bench_.Song());
    this->Open(this->bench_.Film(), "b");

    EXPECT_EQ(this->Ask("status a length"), "2000");
    EXPECT_EQ(this->Ask("status b length"), "50");
}

TYPED_TEST_P(MediaControlContract, TheTimeFormatCanBeMilliseconds) {
    this->Open(this->bench_.Film());

    EXPECT_EQ(this->Send("set a time format ms"), 0);
    EXPECT_EQ(this->Ask("status a length"), "2000");
    EXPECT_EQ(this->Send("set a time format frames"), 0);
    EXPECT_EQ(this->Ask("status a length"), "50");
    EXPECT_EQ(this->Send("set a time format bars"), 293);
}

TYPED_TEST_P(MediaControlContract, WordsAndAliasesAreReadInAnyCase) {
    this->Open(this->bench_.Song(), "A");

    EXPECT_EQ(this->Send("PLAY a"), 0);
    EXPECT_EQ(this->Ask("Status A Mode"), "playing");
}

TYPED_TEST_P(MediaControlContract, AnAliasIsOpenedOnce) {
    this->Open(this->bench_.Song());

    EXPECT_EQ(this->Open(this->bench_.Song()), 289);
}

TYPED_TEST_P(MediaControlContract, FilesThatCannotBeOpenedAreToldApart) {
    EXPECT_EQ(this->Open(this->bench_.Missing()), 275);
    EXPECT_EQ(this->Open(this->bench_.Broken()), 296);
    EXPECT_EQ(this->Open(""), 292);
    EXPECT_EQ(this->Send("status a mode"), 263);
}

TYPED_TEST_P(MediaControlContract, AnAliasInUseIsRefusedBeforeTheFileIsLookedAt) {
    this->Open(this->bench_.Song());

    EXPECT_EQ(this->Open(this->bench_.Missing()), 289);
    EXPECT_EQ(this->Open(this->bench_.Broken()), 289);
}

TYPED_TEST_P(MediaControlContract, APathIsOneWord) {
    EXPECT_EQ(this->Open(this->bench_.Blank()), 259);
    EXPECT_EQ(this->Send("status a mode"), 263);
}

TYPED_TEST_P(MediaControlContract, AFileThatDoesNotTellItsLengthPlaysToItsEnd) {
    ASSERT_EQ(this->Open(this->bench_.Lengthless()), 0);
    EXPECT_EQ(this->Ask("status a length"), "0");
    EXPECT_EQ(this->Send("seek a to 500"), 282) << "no place in it is known";

    EXPECT_EQ(this->Send("play a from 0 to 0"), 0);
    this->bench_.Pass(600);
    EXPECT_EQ(this->Ask("status a mode"), "playing");
    EXPECT_GT(this->AskNumber("status a position"), 100);
    this->bench_.Pass(3000);

    EXPECT_EQ(this->Ask("status a mode"), "stopped");
    EXPECT_GT(this->AskNumber("status a position"), 1500);
}

TYPED_TEST_P(MediaControlContract, PlayingGoesOn) {
    this->Open(this->bench_.Song());

    this->Send("play a");
    this->bench_.Pass(400);

    EXPECT_EQ(this->Ask("status a mode"), "playing");
    EXPECT_GT(this->AskNumber("status a position"), 100);
}

TYPED_TEST_P(MediaControlContract, PauseHoldsThePlace) {
    this->Open(this->bench_.Song());
    this->Send("play a");
    this->bench_.Pass(400);

    this->Send("pause a");
    this->bench_.Pass(100);
    const int place = this->AskNumber("status a position");
    this->bench_.Pass(300);

    EXPECT_EQ(this->Ask("status a mode"), "paused");
    EXPECT_EQ(this->AskNumber("status a position"), place);
}

TYPED_TEST_P(MediaControlContract, ResumeGoesOnWithWhatWasPaused) {
    this->Open(this->bench_.Song());
    this->Send("play a");
    this->Send("pause a");

    this->Send("resume a");

    EXPECT_EQ(this->Ask("status a mode"), "playing");
}

TYPED_TEST_P(MediaControlContract, WhatIsStoppedIsNeitherPausedNorResumed) {
    this->Open(this->bench_.Song());

    EXPECT_EQ(this->Send("pause a"), 0);
    EXPECT_EQ(this->Ask("status a mode"), "stopped");
    EXPECT_EQ(this->Send("resume a"), 0);
    EXPECT_EQ(this->Ask("status a mode"), "stopped");
}

TYPED_TEST_P(MediaControlContract, StopEndsPlaying) {
    this->Open(this->bench_.Song());
    this->Send("play a");

    this->Send("stop a");

    EXPECT_EQ(this->Ask("status a mode"), "stopped");
}

TYPED_TEST_P(MediaControlContract, SeekingStopsAtThePlace) {
    this->Open(this->bench_.Song());
    this->Send("play a");

    EXPECT_EQ(this->Send("seek a to 1500"), 0);
    EXPECT_EQ(this->Ask("status a mode"), "stopped");
    EXPECT_EQ(this->Ask("status a position"), "1500");
}

TYPED_TEST_P(MediaControlContract, SeekingKnowsStartAndEnd) {
    this->Open(this->bench_.Song());

    EXPECT_EQ(this->Send("seek a to end"), 0);
    EXPECT_EQ(this->Ask("status a position"), "2000");
    EXPECT_EQ(this->Send("seek a to start"), 0);
    EXPECT_EQ(this->Ask("status a position"), "0");
}

TYPED_TEST_P(MediaControlContract, PlacesOutsideOfTheFileAreRefused) {
    this->Open(this->bench_.Song());

    EXPECT_EQ(this->Send("seek a to 2001"), 282);
    EXPECT_EQ(this->Send("seek a to -1"), 282);
    EXPECT_EQ(this->Send("play a from 0 to -1"), 282);
    EXPECT_EQ(this->Send("play a from 0 to 2001"), 282);
    EXPECT_EQ(this->Send("play a from 1500 to 1000"), 282);
    EXPECT_EQ(this->Ask("status a mode"), "stopped");
}

TYPED_TEST_P(MediaControlContract, PlacesAreNumbers) {
    this->Open(this->bench_.Song());

    EXPECT_EQ(this->Send("seek a to x"), 270);
    EXPECT_EQ(this->Send("seek a"), 273);
    EXPECT_EQ(this->Send("play a from x"), 270);
}

TYPED_TEST_P(MediaControlContract, PlayingStopsAtTheGivenEnd) {
    this->Open(this->bench_.Song());

    this->Send("play a from 1000 to 1300");
    this->bench_.Pass(900);

    EXPECT_EQ(this->Ask("status a mode"), "stopped");
    EXPECT_EQ(this->Ask("status a position"), "1300");
}

TYPED_TEST_P(MediaControlContract, AtTheEndOfTheFileItStopsThere) {
    this->Open(this->bench_.Film());

    this->Send("play a from 40 to 50");
    this->bench_.Pass(1000);

    EXPECT_EQ(this->Ask("status a mode"), "stopped");
    EXPECT_EQ(this->Ask("status a position"), "50");
}

TYPED_TEST_P(MediaControlContract, ChannelsKeepTheirOwnLevels) {
    this->Open(this->bench_.Song());
    const std::string before = this->Ask("status a volume");

    EXPECT_EQ(this->Send("setaudio a LEFT Volume to 300"), 0);
    EXPECT_EQ(this->Send("setaudio a right Volume to 500"), 0);

    EXPECT_EQ(before, "1000");
    EXPECT_EQ(this->Ask("status a left volume"), "300");
    EXPECT_EQ(this->Ask("status a Right Volume"), "500");
    EXPECT_EQ(this->Ask("status a Volume"), "400");
}

TYPED_TEST_P(MediaControlContract, BothChannelsAreSetAtOnce) {
    this->Open(this->bench_.Song());

    EXPECT_EQ(this->Send("setaudio a Volume to 20"), 0);
    EXPECT_EQ(this->Ask("status a left volume"), "20");
    EXPECT_EQ(this->Ask("status a right volume"), "20");
}

TYPED_TEST_P(MediaControlContract, LevelsAndSpeedsHaveLimits) {
    this->Open(this->bench_.Song());

    EXPECT_EQ(this->Send("setaudio a volume to 1001"), 282);
    EXPECT_EQ(this->Send("setaudio a volume to -1"), 282);
    EXPECT_EQ(this->Send("setaudio a volume to loud"), 270);
    EXPECT_EQ(this->Send("set a speed 0"), 282);
    EXPECT_EQ(this->Send("set a speed -170"), 282);
    EXPECT_EQ(this->Send("set a speed 2030"), 0);
    EXPECT_EQ(this->Send("set a speed 100000"), 0);
    EXPECT_EQ(this->Send("set a speed 100001"), 282);
}

TYPED_TEST_P(MediaControlContract, TwoAliasesRunOnTheirOwn) {
    this->Open(this->bench_.Song(), "a");
    this->Open(this->bench_.Song(), "b");

    this->Send("play b");

    EXPECT_EQ(this->Ask("status a mode"), "stopped");
    EXPECT_EQ(this->Ask("status b mode"), "playing");
}

TYPED_TEST_P(MediaControlContract, AClosedAliasIsFreeAgain) {
    this->Open(this->bench_.Song());

    EXPECT_EQ(this->Send("Close a"), 0);
    EXPECT_EQ(this->Send("status a mode"), 263);
    EXPECT_EQ(this->Open(this->bench_.Song()), 0);
}

TYPED_TEST_P(MediaControlContract, CloseAllClosesWhateverIsOpen) {
    this->Open(this->bench_.Song(), "a");
    this->Open(this->bench_.Song(), "b");

    EXPECT_EQ(this->Send("Close All"), 0);
    EXPECT_EQ(this->Send("status a mode"), 263);
    EXPECT_EQ(this->Send("status b mode"), 263);
    EXPECT_EQ(this->Send("Close All"), 0);
}

TYPED_TEST_P(MediaControlContract, ThePictureCanBePut) {
    this->Open(this->bench_.Film());

    EXPECT_EQ(this->Send("put a window at 0 0 320 240"), 0);
}

TYPED_TEST_P(MediaControlContract, UnknownWordsAreRefused) {
    this->Open(this->bench_.Song());

    EXPECT_EQ(this->Send(""), 267);
    EXPECT_EQ(this->Send("dance a"), 261);
    EXPECT_EQ(this->Send("status a weather"), 259);
    EXPECT_EQ(this->Send("set a colour 3"), 259);
    EXPECT_EQ(this->Send("status all mode"), 279);
}

TYPED_TEST_P(MediaControlContract, OnlyAQuestionIsAnsweredWithAText) {
    this->Open(this->bench_.Song());

    for (const char* order : {"play a", "set a time format ms", "setaudio a volume to 500", "seek a to 0"}) {
        EXPECT_EQ(this->media_.SendString(order).text, "") << order;
    }
    for (const char* refused : {"status b mode", "status a weather", "dance a"}) {
        EXPECT_EQ(this->media_.SendString(refused).text, "") << refused;
    }
    EXPECT_EQ(this->media_.SendString("status a mode").text, "stopped");
}

TYPED_TEST_P(MediaControlContract, WhatIsToFollowIsNotSeenUntilItIsOpened) {
    const std::string song = this->bench_.Song();
    this->Open(song);
    EXPECT_EQ(this->Send("follow a by " + song), 0);
    this->Send("play a");
    this->bench_.Pass(400);
    EXPECT_EQ(this->Ask("status a mode"), "playing");
    EXPECT_GT(this->AskNumber("status a position"), 100);

    this->bench_.Pass(2000);

    EXPECT_EQ(this->Ask("status a mode"), "stopped");
    EXPECT_EQ(this->Ask("status a position"), "2000");
}

TYPED_TEST_P(MediaControlContract, WhatFollowsIsOpenedAndPlayedAsEver) {
    const std::string song = this->bench_.Song();
    for (const std::string alias : {"a", "b"}) {
        this->Open(song);
        this->Send("follow a by " + song);
        this->Send("play a");
        this->bench_.Pass(2200);

        this->Send("close " + alias);
        EXPECT_EQ(this->Open(song, alias), 0);
        EXPECT_EQ(this->Ask("status " + alias + " position"), "0");
        EXPECT_EQ(this->Send("play " + alias + " from 0 to 2000"), 0);
        this->bench_.Pass(400);

        EXPECT_EQ(this->Ask("status " + alias + " mode"), "playing");
        EXPECT_GT(this->AskNumber("status " + alias + " position"), 100);
        EXPECT_LT(this->AskNumber("status " + alias + " position"), 1500);
        EXPECT_EQ(this->Ask("status " + alias + " volume"), "1000");
        this->Send("close all");
    }
}

TYPED_TEST_P(MediaControlContract, TheSongThatWasFollowedCanBePlayedAgain) {
    const std::string song = this->bench_.Song();
    this->Open(song);
    this->Send("follow a by " + song);
    this->Send("play a");
    this->bench_.Pass(2200);

    EXPECT_EQ(this->Send("play a from 500"), 0);
    this->bench_.Pass(400);

    EXPECT_EQ(this->Ask("status a mode"), "playing");
    EXPECT_GT(this->AskNumber("status a position"), 550);
    EXPECT_LT(this->AskNumber("status a position"), 1800);
}

TYPED_TEST_P(MediaControlContract, WhatIsToFollowCanBeTakenBack) {
    const std::string song = this->bench_.Song();
    this->Open(song);
    this->Send("follow a by " + song);

    EXPECT_EQ(this->Send("follow a"), 0);
    EXPECT_EQ(this->Send("follow a by " + this->bench_.Missing()), 0) << "no file is looked at";
    EXPECT_EQ(this->Send("follow a by"), 273);
    EXPECT_EQ(this->Send("follow a with " + song), 259);
}

TYPED_TEST_P(MediaControlContract, ErrorsHaveTextsAndOtherNumbersNone) {
    EXPECT_EQ(this->media_.ErrorString(0), "");
    EXPECT_EQ(this->media_.ErrorString(263), "The specified device is not open or is not recognized by MCI.");
}

REGISTER_TYPED_TEST_SUITE_P(
    MediaControlContract, AnAliasThatIsNotOpenIsRefusedByEveryCommand, AnOpenedFileIsStoppedAtItsStart,
    AFrameIsAMillisecondOfSoundOrAPictureOfAVideo, TheTimeFormatCanBeMilliseconds,
    WordsAndAliasesAreReadInAnyCase, AnAliasIsOpenedOnce, FilesThatCannotBeOpenedAreToldApart,
    AnAliasInUseIsRefusedBeforeTheFileIsLookedAt, APathIsOneWord, AFileThatDoesNotTellItsLengthPlaysToItsEnd,
    PlayingGoesOn, PauseHoldsThePlace, ResumeGoesOnWithWhatWasPaused, WhatIsStoppedIsNeitherPausedNorResumed,
    StopEndsPlaying, SeekingStopsAtThePlace, SeekingKnowsStartAndEnd, PlacesOutsideOfTheFileAreRefused,
    PlacesAreNumbers, PlayingStopsAtTheGivenEnd, AtTheEndOfTheFileItStopsThere, ChannelsKeepTheirOwnLevels,
    BothChannelsAreSetAtOnce, LevelsAndSpeedsHaveLimits, TwoAliasesRunOnTheirOwn, AClosedAliasIsFreeAgain,
    CloseAllClosesWhateverIsOpen, ThePictureCanBePut, UnknownWordsAreRefused,
    OnlyAQuestionIsAnsweredWithAText, WhatIsToFollowIsNotSeenUntilItIsOpened,
    WhatFollowsIsOpenedAndPlayedAsEver, TheSongThatWasFollowedCanBePlayedAgain, WhatIsToFollowCanBeTakenBack,
    ErrorsHaveTextsAndOtherNumbersNone);

}  // namespace contracts
