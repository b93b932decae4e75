// Without any sound server: what is heard is tested in tests/real/sound.
#include "platform/gstreamer/MediaEngine.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include "real/sound/GeneratedMedia.h"

namespace {

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point then) {
    return std::chrono::duration<double>(Clock::now() - then).count();
}

class MediaEngineTest : public testing::Test {
protected:
    void SetUp() override { setenv("PULSE_SERVER", "unix:/nonexistent/native", 1); }

    int Send(const std::string& command) { return engine.SendString(command).error; }
    int Open(const std::string& path) { return Send("open \"" + path + "\" type MPEGVideo alias a"); }
    std::string Ask(const std::string& command) {
        const ports::MediaReply reply = engine.SendString(command);
        EXPECT_EQ(reply.error, 0) << command;
        return reply.text;
    }
    bool WaitForMode(const std::string& mode, double seconds) {
        for (const auto begin = Clock::now(); SecondsSince(begin) < seconds;) {
            if (Ask("status a mode") == mode) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return false;
    }

    sound::GeneratedMedia media;
    gstreamer::MediaEngine engine{[](std::string_view name) { return std::string(name); }};
};

TEST_F(MediaEngineTest, ASongWithoutASoundServerRunsInRealTime) {
    ASSERT_EQ(Open(media.Make("song.mp3", {.seconds = 1.5})), 0);
    const auto begin = Clock::now();

    Send("play a");
    const bool ended = WaitForMode("stopped", 5);

    EXPECT_TRUE(ended);
    EXPECT_NEAR(SecondsSince(begin), 1.5, 0.4);
    EXPECT_EQ(Ask("status a position"), Ask("status a length"));
}

TEST_F(MediaEngineTest, ThePlaceNeverGoesBackWhileASongPlays) {
    ASSERT_EQ(Open(media.Make("song.mp3", {.seconds = 1})), 0);
    Send("play a");
    int last = 0;
    int steps = 0;

    while (Ask("status a mode") == "playing") {
        const int place = std::stoi(Ask("status a position"));
        ASSERT_GE(place, last);
        steps += place > last ? 1 : 0;
        last = place;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }

    EXPECT_GT(steps, 50);
}

TEST_F(MediaEngineTest, AVideoRunsWithoutADisplay) {
    setenv("DISPLAY", ":4711", 1);
    const std::string path = media.Make("film.avi", {.seconds = 1});

    ASSERT_EQ(Send("open \"" + path + "\" type MPEGVideo alias a parent 12345 style 1073741824"), 0);
    Send("put a window at 0 0 100 100");
    Send("play a");

    EXPECT_TRUE(WaitForMode("stopped", 4));
}

TEST_F(MediaEngineTest, DoubleSpeedTakesHalfTheTime) {
    ASSERT_EQ(Open(media.Make("song.wav", {.seconds = 3})), 0);
    Send("set a speed 2000");
    const auto begin = Clock::now();

    Send("play a");

    EXPECT_TRUE(WaitForMode("stopped", 5));
    EXPECT_NEAR(SecondsSince(begin), 1.5, 0.4);
}

TEST_F(MediaEngineTest, EveryKindOfTheMediaListsOpensWithItsLength) {
    for (const std::string& kind : sound::GeneratedMedia::Kinds()) {
        const std::string path = media.Make("file." + kind, {.seconds = 2});
        ASSERT_FALSE(path.empty()) << kind;

        EXPECT_EQ(Open(path), 0) << kind;
        Send("set a time format ms");
        EXPECT_NEAR(std::stoi(Ask("status a length")), kind == "mid" ? 4500 : 2000, 250) << kind;
        EXPECT_EQ(Ask("status a position"), "0") << kind;
        Send("close a");
    }
}

TEST_F(MediaEngineTest, AnMpegFileEndsWhereItsLengthSays) {
    ASSERT_EQ(Open(media.Make("film.mpg", {.seconds = 2})), 0);
    Send("set a time format ms");
    const int length = std::stoi(Ask("status a length"));
    const auto begin = Clock::now();

    Send("play a");

    EXPECT_TRUE(WaitForMode("stopped", 6));
    EXPECT_NEAR(SecondsSince(begin), length / 1000.0, 0.4);
}

TEST_F(MediaEngineTest, BadFilesGiveAnErrorAtOnce) {
    const std::string pipe = media.Path("pipe.mp3");
    mkfifo(pipe.c_str(), 0600);
    const std::string folder = media.Path("folder.mp3");
    mkdir(folder.c_str(), 0700);
    const std::string noise = media.Write("noise.mp3", std::string(20000, 'x'));
    const std::string cut = media.Write("cut.mp4", std::string("\0\0\0\x20"
                                                               "ftypisom\0\0\2\0isomiso2mp41\0\0\0\x40moov",
                                                               36));
    const auto begin = Clock::now();

    EXPECT_EQ(Open(media.Path("missing.mp3")), 275);
    EXPECT_EQ(Open(media.Write("empty.mp3", "")), 296);
    EXPECT_EQ(Open(pipe), 348);
    EXPECT_EQ(Open(folder), 348);
    EXPECT_EQ(Open(noise), 296);
    EXPECT_EQ(Open(cut), 296);
    EXPECT_EQ(Open("/dev/zero"), 348);

    EXPECT_LT(SecondsSince(begin), 2);
}

TEST_F(MediaEngineTest, ADamagedEndLosesNoMoreThanTheEnd) {
    const std::string path = media.Make("song.mp3", {.seconds = 2});
    std::filesystem::resize_file(path, std::filesystem::file_size(path) * 2 / 3);

    ASSERT_EQ(Open(path), 0);
    Send("play a");

    EXPECT_TRUE(WaitForMode("stopped", 6));
}

TEST_F(MediaEngineTest, AFileWithoutTheRightToReadItGivesAnError) {
    const std::string path = media.Make("song.wav", {.seconds = 1});
    chmod(path.c_str(), 0000);
    std::filesystem::permissions(std::filesystem::path(path).parent_path(), std::filesystem::perms(0755));

    const pid_t child = fork();
    if (child == 0) {
        constexpr unsigned kNobody = 65534;
        if (geteuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) _exit(100);
        gstreamer::MediaEngine of_child([](std::string_view name) { return std::string(name); });
        _exit(of_child.SendString("open " + path + " type MPEGVideo alias a").error == 348 ? 7 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);

    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 7);
}

TEST_F(MediaEngineTest, ANameThatIsNoUtf8Opens) {
    const std::string path = media.Path("s\xF6ng \xFF.wav");
    std::filesystem::rename(media.Make("song.wav", {.seconds = 1}), path);

    EXPECT_EQ(Open(path), 0);
}

TEST_F(MediaEngineTest, OnlyTheOneTypeOfDeviceIsInstalled) {
    EXPECT_EQ(Send("open " + media.Make("song.wav", {.seconds = 1}) + " type Hologram alias a"), 306);
}

TEST_F(MediaEngineTest, AllDevicesCanBeToldAtOnce) {
    const std::string path = media.Make("song.wav", {.seconds = 1});
    Open(path);
    Send("open " + path + " type MPEGVideo alias b");

    EXPECT_EQ(Send("setaudio all volume to 300"), 0);
    EXPECT_EQ(Ask("status a volume"), "300");
    EXPECT_EQ(Ask("status b volume"), "300");
    EXPECT_EQ(Send("setaudio all volume to 3000"), 280);
    EXPECT_EQ(Send("status all mode"), 279);
}

TEST_F(MediaEngineTest, CommandsOtherThanOpenAnswerAtOnce) {
    ASSERT_EQ(Open(media.Make("film.mp4", {.seconds = 3})), 0);
    double slowest = 0;

    for (const char* command :
         {"play a from 0 to 75", "pause a", "resume a", "seek a to 50", "play a", "stop a", "set a speed 500",
          "play a", "put a window at 0 0 5 5", "close a"}) {
        const auto begin = Clock::now();
        EXPECT_EQ(Send(command), 0) << command;
        slowest = std::max(slowest, SecondsSince(begin));
    }

    EXPECT_LT(slowest, 0.1);
}

TEST_F(MediaEngineTest, AnAliasCanBeOpenedAgainAsSoonAsItWasClosed) {
    const std::string path = media.Make("song.mp3", {.seconds = 1});

    for (int round = 0; round < 30; ++round) {
        ASSERT_EQ(Open(path), 0);
        ASSERT_EQ(Send("play a"), 0);
        ASSERT_EQ(Send("close a"), 0);
    }
}

TEST_F(MediaEngineTest, WarmUpAndAnEarlyOpenGoTogether) {
    engine.WarmUp();

    EXPECT_EQ(Open(media.Make("song.wav", {.seconds = 1})), 0);
}

}  // namespace
