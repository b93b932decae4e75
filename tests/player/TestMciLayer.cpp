#include <gtest/gtest.h>

#include <functional>

#include "fakes/FakeFiles.h"
#include "fakes/FakeMediaControl.h"
#include "player/MciLayer.h"

namespace {

using Transcript = std::vector<std::string>;

class OneWindow final : public ports::WindowServices {
public:
    bool GetWindowRect(std::int64_t handle, ports::WindowRect& rect) const override {
        if (handle != 77) return false;
        rect = {.left = 100, .top = 50, .right = 740, .bottom = 410};
        return true;
    }
};

// A device whose replies and error texts are what the test says.
class ScriptedDevice final : public ports::MediaControl {
public:
    ports::MediaReply SendString(std::string_view /*command*/) override {
        return {.error = Error, .text = Error == 0 ? Reply : std::string()};
    }
    std::string ErrorString(int error) const override { return "error " + std::to_string(error) + MoreText; }

    std::string Reply;
    int Error = 0;
    std::string MoreText;
};

// A device that knows its length in milliseconds and in frames, whatever the one has to do with the other.
class TwoLengths final : public ports::MediaControl {
public:
    TwoLengths(const char* milliseconds, const char* frames) : milliseconds_(milliseconds), frames_(frames) {}
    ports::MediaReply SendString(std::string_view command) override {
        if (command.starts_with("set ")) in_milliseconds_ = command == "set a time format ms";
        if (!command.starts_with("status ")) return {};
        return {.error = 0, .text = in_milliseconds_ ? milliseconds_ : frames_};
    }
    std::string ErrorString(int /*error*/) const override { return {}; }

private:
    const char* milliseconds_;
    const char* frames_;
    bool in_milliseconds_ = false;
};

class MciLayerTest : public testing::Test {
protected:
    MciLayerTest() {
        files.AddFile("C:\\song.mp3");
        files.AddFile("C:\\My Music\\two words.mp3");
        device.AddFile("C:\\song.mp3", {.milliseconds = 200000});
        device.AddFile("C:\\film.avi", {.milliseconds = 10000, .frames_per_second = 25});
        device.AddFile("C:\\nothing.mp3", {.milliseconds = 0});
        files.AddFile("C:\\film.avi");
        files.AddFile("C:\\nothing.mp3");
    }

    void OpenSong() { Open("C:\\song.mp3"); }
    void OpenFilm() { Open("C:\\film.avi"); }
    void Open(std::string_view path) {
        ASSERT_EQ(mci.MciOpen(77, "a", path, "MPEGVideo"), "Success");
        device.NewCommands();
    }

    fakes::FakeFiles files;
    fakes::FakeMediaControl device;
    OneWindow windows;
    player::MciLayer mci{device, windows, files};
};

class MciLayerReplies : public testing::Test {
protected:
    fakes::FakeFiles files;
    ScriptedDevice device;
    OneWindow windows;
    player::MciLayer mci{device, windows, files};
};

const char* const kNotOpen = "The specified device is not open or is not recognized by MCI.";
const char* const kOutOfRange = "The specified parameter is out of range for the specified command.";

TEST_F(MciLayerTest, OpenNamesFileTypeAliasParentAndChildStyle) {
    const std::string result = mci.MciOpen(77, "a", "C:\\song.mp3", "MPEGVideo");

    EXPECT_EQ(result, "Success");
    EXPECT_EQ(device.NewCommands(),
              Transcript{"open C:\\song.mp3 type MPEGVideo Alias a parent 77 Style 1073741824"});
}

TEST_F(MciLayerTest, OpenSendsAPathWithBlanksAsOneWord) {
    const std::string short_path = files.GetShortPathName("C:\\My Music\\two words.mp3");

    mci.MciOpen(5, "b", "C:\\My Music\\two words.mp3", "MPEGVideo");

    ASSERT_EQ(short_path.find(' '), std::string::npos);
    EXPECT_EQ(device.NewCommands(),
              Transcript{"open " + short_path + " type MPEGVideo Alias b parent 5 Style 1073741824"});
}

TEST_F(MciLayerTest, OpenOfAMissingFileSendsAnEmptyNameAndGivesTheErrorText) {
    const std::string result = mci.MciOpen(0, "a", "C:\\gone.mp3", "MPEGVideo");

    EXPECT_NE(result, "Success");
    EXPECT_EQ(device.NewCommands(), Transcript{"open  type MPEGVideo Alias a parent 0 Style 1073741824"});
}

TEST_F(MciLayerTest, PlayWithEmptyTextsPlaysTheWholeLength) {
    OpenSong();

    const std::string result = mci.MciPlay("a", "", "");

    EXPECT_EQ(result, "Success");
    EXPECT_EQ(device.NewCommands(),
              (Transcript{"set a time format frames", "status a length", "play a from 0 to 200000"}));
    EXPECT_EQ(device.Mode("a"), "playing");
}

TEST_F(MciLayerTest, PlayWithBothTextsAsksForNoLength) {
    OpenSong();

    mci.MciPlay("a", "10", "20");

    EXPECT_EQ(device.NewCommands(), Transcript{"play a from 10 to 20"});
}

TEST_F(MciLayerTest, PlayWithoutALengthPlaysToMinusOneAndGivesTheErrorText) {
    const std::string result = mci.MciPlay("a", "", "");

    EXPECT_EQ(result, kNotOpen);
    EXPECT_EQ(device.NewCommands(),
              (Transcript{"set a time format frames", "status a length", "play a from 0 to -1"}));
}

TEST_F(MciLayerTest, SimpleCommandsGoOutLetterForLetter) {
    OpenSong();

    mci.MciPause("a");
    mci.MciResume("a");
    mci.MciStop("a");
    mci.MciClose("a");
    mci.MciCloseAll();

    EXPECT_EQ(device.NewCommands(), (Transcript{"Pause a", "Resume a", "Stop a", "Close a", "Close All"}));
}

TEST_F(MciLayerTest, SimpleCommandsGiveTheErrorTextOfAClosedAlias) {
    EXPECT_EQ(mci.MciPause("b"), kNotOpen);
    EXPECT_EQ(mci.MciResume("b"), kNotOpen);
    EXPECT_EQ(mci.MciStop("b"), kNotOpen);
    EXPECT_EQ(mci.MciClose("b"), kNotOpen);
}

TEST_F(MciLayerTest, ModeWordFollowsTheDevice) {
    OpenSong();

    const std::string before = mci.MciStatusMode("a");
    mci.MciPlay("a", "0", "200000");
    const std::string playing = mci.MciStatusMode("a");
    mci.MciPause("a");

    EXPECT_EQ(before, "stopped");
    EXPECT_EQ(playing, "playing");
    EXPECT_EQ(mci.MciStatusMode("a"), "paused");
    EXPECT_EQ(device.Commands.at(1), "status a mode");
}

TEST_F(MciLayerTest, ModeOfAClosedAliasIsError) {
    EXPECT_EQ(mci.MciStatusMode("a"), "ERROR");
}

TEST_F(MciLayerTest, TheModeAsATypeSaysTheSame) {
    EXPECT_EQ(mci.ModeOf("a"), player::Mode::Error);
    OpenSong();
    EXPECT_EQ(mci.ModeOf("a"), player::Mode::Stopped);
    mci.MciPlay("a", "", "");
    EXPECT_EQ(mci.ModeOf("a"), player::Mode::Playing);
    mci.MciPause("a");
    EXPECT_EQ(mci.ModeOf("a"), player::Mode::Paused);
}

TEST_F(MciLayerTest, LengthsOfAVideoAreFramesAndMilliseconds) {
    OpenFilm();

    EXPECT_EQ(mci.MciLengthFrames("a"), 250);
    EXPECT_EQ(mci.MciLengthMs("a"), 10000);
    EXPECT_EQ(device.NewCommands(),
              (Transcript{"set a time format frames", "status a length", "set a time format ms",
                          "status a length", "set a time format frames"}));
}

TEST_F(MciLayerTest, FailedLengthInMillisecondsStillLeavesFrames) {
    OpenFilm();
    device.SetFrame("a", 50);
    device.FailNext("status a length", 276);

    const std::int64_t length = mci.MciLengthMs("a");

    EXPECT_EQ(length, -1);
    EXPECT_EQ(device.Commands.back(), "set a time format frames");
    EXPECT_EQ(mci.MciPosition("a"), 50);
}

TEST_F(MciLayerTest, LengthIgnoresAFailedTimeFormat) {
    OpenFilm();
    device.FailNext("set a time format", 293);

    EXPECT_EQ(mci.MciLengthFrames("a"), 250);
}

TEST_F(MciLayerTest, NumbersOfAClosedAliasAreMinusOne) {
    EXPECT_EQ(mci.MciLengthFrames("a"), -1);
    EXPECT_EQ(mci.MciLengthMs("a"), -1);
    EXPECT_EQ(mci.MciPosition("a"), -1);
    EXPECT_EQ(mci.MciPercentPlayed("a"), -1);
    EXPECT_EQ(mci.MciFramesPerSecond("a"), -1);
    EXPECT_EQ(mci.MciGetVolume("a", "all"), -1);
}

TEST_F(MciLayerTest, SeekAndPlaySendsBoth) {
    OpenSong();

    const std::string result = mci.MciSeekAndPlay("a", 5000);

    EXPECT_EQ(result, "Success");
    EXPECT_EQ(device.NewCommands(), (Transcript{"seek a to 5000", "Play a"}));
    EXPECT_EQ(mci.MciPosition("a"), 5000);
    EXPECT_EQ(device.Mode("a"), "playing");
}

TEST_F(MciLayerTest, FailedSeekGivesItsErrorAndPlaysAllTheSame) {
    OpenSong();

    const std::string result = mci.MciSeekAndPlay("a", 999999);

    EXPECT_EQ(result, kOutOfRange);
    EXPECT_EQ(device.NewCommands(), (Transcript{"seek a to 999999", "Play a"}));
    EXPECT_EQ(device.Mode("a"), "playing");
}

TEST_F(MciLayerTest, PositionAsksOnceInTheCurrentFormat) {
    OpenSong();
    mci.MciPlay("a", "0", "200000");
    device.NewCommands();
    device.Advance(1500);

    EXPECT_EQ(mci.MciPosition("a"), 1500);
    EXPECT_EQ(device.NewCommands(), Transcript{"status a position"});
}

TEST_F(MciLayerTest, PutWindowUsesTheGivenSize) {
    OpenFilm();
    int width = 320;
    int height = 240;

    mci.MciPutWindow(77, "a", 1, 2, width, height);

    EXPECT_EQ(device.NewCommands(), Transcript{"put a window at 1 2 320 240"});
}

TEST_F(MciLayerTest, PutWindowWithoutAWidthTakesBothFromTheWindowAndTellsTheCaller) {
    OpenFilm();
    int width = 0;
    int height = 480;

    mci.MciPutWindow(77, "a", 0, 0, width, height);

    EXPECT_EQ(device.NewCommands(), Transcript{"put a window at 0 0 640 360"});
    EXPECT_EQ(width, 640);
    EXPECT_EQ(height, 360);
}

TEST_F(MciLayerTest, PutWindowWithoutAHeightTakesBothFromTheWindow) {
    OpenFilm();
    int width = 12;
    int height = 0;

    mci.MciPutWindow(77, "a", 0, 0, width, height);

    EXPECT_EQ(device.NewCommands(), Transcript{"put a window at 0 0 640 360"});
}

TEST_F(MciLayerTest, PercentPlayedRoundsToTheEvenNeighbour) {
    OpenFilm();
    mci.MciPlay("a", "0", "250");
    device.NewCommands();

    device.Advance(2480);  // 62 frames of 250 are 24.8 percent
    const std::int64_t up = mci.MciPercentPlayed("a");
    const Transcript commands = device.NewCommands();
    mci.MciSeekAndPlay("a", 0);
    mci.MciPause("a");

    EXPECT_EQ(up, 25);
    EXPECT_EQ(commands, (Transcript{"set a time format frames", "status a length", "status a position"}));
    EXPECT_EQ(mci.MciPercentPlayed("a"), 0);
}

TEST_F(MciLayerTest, PercentPlayedOfHalvesGoesToTheEvenNumber) {
    OpenSong();

    mci.MciSeekAndPlay("a", 1000);
    const std::int64_t half = mci.MciPercentPlayed("a");
    mci.MciSeekAndPlay("a", 3000);

    EXPECT_EQ(half, 0);
    EXPECT_EQ(mci.MciPercentPlayed("a"), 2);
}

TEST_F(MciLayerTest, NothingPlayedOfNoLengthIsUnknown) {
    Open("C:\\nothing.mp3");

    EXPECT_EQ(mci.MciPercentPlayed("a"), -1);
    EXPECT_EQ(mci.MciFramesPerSecond("a"), -1);
}

TEST_F(MciLayerTest, FramesPerSecondComeFromBothLengths) {
    OpenFilm();

    const std::int64_t frames_per_second = mci.MciFramesPerSecond("a");

    EXPECT_EQ(frames_per_second, 25);
    EXPECT_EQ(device.NewCommands(),
              (Transcript{"set a time format ms", "status a length", "set a time format frames",
                          "set a time format frames", "status a length"}));
}

TEST_F(MciLayerTest, SoundHasAThousandFramesASecond) {
    OpenSong();

    EXPECT_EQ(mci.MciFramesPerSecond("a"), 1000);
}

TEST_F(MciLayerTest, VolumeOfBothChannelsIsSentInTenthsOfAPercent) {
    OpenSong();

    const std::string result = mci.MciSetVolume("a", "all", 100);

    EXPECT_EQ(result, "Success");
    EXPECT_EQ(device.NewCommands(), Transcript{"setaudio a Volume to 1000"});
}

TEST_F(MciLayerTest, VolumeOutsideOfPercentIsRefusedUnsent) {
    OpenSong();

    EXPECT_EQ(mci.MciSetVolume("a", "all", 101), "out of volume");
    EXPECT_EQ(mci.MciSetVolume("a", "left", -1), "out of volume");
    EXPECT_TRUE(device.NewCommands().empty());
}

TEST_F(MciLayerTest, ChannelGoesOutAsTheCallerWroteIt) {
    OpenSong();

    mci.MciSetVolume("a", "LEFT", 30);
    mci.MciSetVolume("a", "right", 0);
    mci.MciGetVolume("a", "Left");
    mci.MciGetVolume("a", "middle");

    EXPECT_EQ(device.NewCommands(),
              (Transcript{"setaudio a LEFT Volume to 300", "setaudio a right Volume to 0",
                          "status a Left Volume", "status a Volume"}));
    EXPECT_EQ(device.Left("a"), 300);
    EXPECT_EQ(device.Right("a"), 0);
}

TEST_F(MciLayerTest, SpeedIsSentUncheckedInTenthsOfAPercent) {
    OpenSong();

    mci.MciSetSpeed("a", 103);
    const std::string refused = mci.MciSetSpeed("a", -17);

    EXPECT_EQ(device.NewCommands(), (Transcript{"set a speed 1030", "set a speed -170"}));
    EXPECT_EQ(refused, kOutOfRange);
    EXPECT_EQ(device.Speed("a"), 1030);
}

TEST_F(MciLayerTest, EveryWrapperSendsItsCommands) {
    OpenFilm();
    int width = 8;
    int height = 6;
    struct Case {
        const char* wrapper;
        std::function<void()> call;
        Transcript sent;
    };
    const Transcript frames = {"set a time format frames", "status a length"};
    const Transcript ms = {"set a time format ms", "status a length", "set a time format frames"};
    const auto both = [](Transcript first, const Transcript& second) {
        first.insert(first.end(), second.begin(), second.end());
        return first;
    };
    const std::vector<Case> cases = {
        {"MciOpen",
         [&] { mci.MciOpen(9, "b", "C:\\song.mp3", "MPEGVideo"); },
         {"open C:\\song.mp3 type MPEGVideo Alias b parent 9 Style 1073741824"}},
        {"MciPlay", [&] { mci.MciPlay("a", "", ""); }, both(frames, {"play a from 0 to 250"})},
        {"MciPlay to", [&] { mci.MciPlay("a", "", "7"); }, {"play a from 0 to 7"}},
        {"MciPlay from", [&] { mci.MciPlay("a", "3", ""); }, both(frames, {"play a from 3 to 250"})},
        {"MciPause", [&] { mci.MciPause("a"); }, {"Pause a"}},
        {"MciStop", [&] { mci.MciStop("a"); }, {"Stop a"}},
        {"MciResume", [&] { mci.MciResume("a"); }, {"Resume a"}},
        {"MciStatusMode", [&] { mci.MciStatusMode("a"); }, {"status a mode"}},
        {"MciLengthFrames", [&] { mci.MciLengthFrames("a"); }, frames},
        {"MciLengthMs", [&] { mci.MciLengthMs("a"); }, ms},
        {"MciSeekAndPlay", [&] { mci.MciSeekAndPlay("a", 25); }, {"seek a to 25", "Play a"}},
        {"MciPosition", [&] { mci.MciPosition("a"); }, {"status a position"}},
        {"MciPutWindow",
         [&] { mci.MciPutWindow(77, "a", 1, 2, width, height); },
         {"put a window at 1 2 8 6"}},
        {"MciPercentPlayed", [&] { mci.MciPercentPlayed("a"); }, both(frames, {"status a position"})},
        {"MciFramesPerSecond", [&] { mci.MciFramesPerSecond("a"); }, both(ms, frames)},
        {"MciSetVolume", [&] { mci.MciSetVolume("a", "all", 7); }, {"setaudio a Volume to 70"}},
        {"MciSetVolume left", [&] { mci.MciSetVolume("a", "left", 0); }, {"setaudio a left Volume to 0"}},
        {"MciSetVolume RIGHT", [&] { mci.MciSetVolume("a", "RIGHT", 1); }, {"setaudio a RIGHT Volume to 10"}},
        {"MciGetVolume", [&] { mci.MciGetVolume("a", "all"); }, {"status a Volume"}},
        {"MciGetVolume Right", [&] { mci.MciGetVolume("a", "Right"); }, {"status a Right Volume"}},
        {"MciSetSpeed", [&] { mci.MciSetSpeed("a", 103); }, {"set a speed 1030"}},
        {"MciClose", [&] { mci.MciClose("a"); }, {"Close a"}},
        {"MciCloseAll", [&] { mci.MciCloseAll(); }, {"Close All"}},
    };
    for (const Case& one : cases) {
        device.Commands.clear();

        one.call();

        EXPECT_EQ(device.Commands, one.sent) << one.wrapper;
    }
}

TEST_F(MciLayerTest, OpenSendsTheShortNameOfAPathThatIsTooLong) {
    const std::string path = "C:\\" + std::string(300, 'x') + ".mp3";
    files.AddFile(path);
    const std::string short_path = files.GetShortPathName(path);

    mci.MciOpen(0, "a", path, "MPEGVideo");

    ASSERT_LE(short_path.size(), 255U);
    EXPECT_EQ(device.NewCommands(),
              Transcript{"open " + short_path + " type MPEGVideo Alias a parent 0 Style 1073741824"});
}

TEST_F(MciLayerReplies, FramesPerSecondRoundToTheEvenNumber) {
    for (const auto& [frames, rate] :
         {std::pair{"47952", 24}, std::pair{"49000", 24}, std::pair{"49001", 25}, std::pair{"51000", 26}}) {
        TwoLengths two_lengths("2000000", frames);
        player::MciLayer layer(two_lengths, windows, files);

        EXPECT_EQ(layer.MciFramesPerSecond("a"), rate) << frames << " frames in 2,000 seconds";
    }
}

TEST_F(MciLayerReplies, ErrorTextsHave128CharactersAtMost) {
    device.Error = 275;
    EXPECT_EQ(mci.MciClose("a"), "error 275");

    device.MoreText = std::string(200, '.');

    EXPECT_EQ(mci.MciClose("a"), "error 275" + std::string(128 - 9, '.'));
}

TEST_F(MciLayerReplies, ModeOf127CharactersIsWhole) {
    device.Reply = "play" + std::string(122, 'x') + "a";

    EXPECT_EQ(mci.MciStatusMode("a"), device.Reply);
}

TEST_F(MciLayerReplies, ModeThatIsLongerThan128CharactersIsCutLikeOneOf128) {
    device.Reply = "play" + std::string(123, 'x') + "a and more";

    EXPECT_EQ(mci.MciStatusMode("a"), "pl");
}

TEST_F(MciLayerReplies, ModeThatFillsTheBufferIsCutAtItsOwnLastCharacter) {
    device.Reply = "play" + std::string(123, 'x') + "a";

    EXPECT_EQ(mci.MciStatusMode("a"), "pl");
}

TEST_F(MciLayerReplies, ModeThatBeginsWithTheFillIsEmpty) {
    device.Reply = "a" + std::string(126, 'x') + "a";

    EXPECT_EQ(mci.MciStatusMode("a"), "");
}

TEST_F(MciLayerReplies, NumbersEndAtTheFirstOtherCharacterAndRoundToEven) {
    device.Reply = "12.5 frames";
    const std::int64_t down = mci.MciPosition("a");
    device.Reply = "13.5 frames";

    EXPECT_EQ(down, 12);
    EXPECT_EQ(mci.MciPosition("a"), 14);
}

TEST_F(MciLayerReplies, VolumeReadsRoundToEven) {
    device.Reply = "985";
    const std::int64_t down = mci.MciGetVolume("a", "all");
    device.Reply = "995";

    EXPECT_EQ(down, 98);
    EXPECT_EQ(mci.MciGetVolume("a", "all"), 100);
}

}  // namespace
