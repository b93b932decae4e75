// Decoders in processes of their own: what is left of the other when one ends or hangs.
#include "platform/decoder/MediaProcesses.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "real/sound/GeneratedMedia.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

std::string Same(std::string_view name) {
    return std::string(name);
}

double SecondsSince(Clock::time_point then) {
    return std::chrono::duration<double>(Clock::now() - then).count();
}

bool IsGoneWithin(pid_t process, std::chrono::milliseconds patience) {
    const auto until = Clock::now() + patience;
    while (kill(process, 0) == 0 && Clock::now() < until)
        std::this_thread::sleep_for(5ms);
    return kill(process, 0) != 0;
}

/// In its sandbox, that is, and ready for commands a moment later.
bool IsReadyWithin(pid_t process, std::chrono::milliseconds patience) {
    const auto until = Clock::now() + patience;
    while (Clock::now() < until) {
        std::ifstream status("/proc/" + std::to_string(process) + "/status");
        for (std::string line; std::getline(status, line);) {
            if (line != "Seccomp:\t2") continue;
            std::this_thread::sleep_for(100ms);
            return true;
        }
        std::this_thread::sleep_for(10ms);
    }
    return false;
}

// Without any sound server: the sound goes nowhere, in real time.
class MediaProcessesTest : public testing::Test {
protected:
    void SetUp() override {
        setenv("PULSE_SERVER", "unix:/nonexistent/native", 1);
        song = files.Make("song.wav", {.seconds = 20});
    }
    int Send(const std::string& command) { return media.SendString(command).error; }
    int Play(const std::string& alias) {
        const int error = Send("open \"" + song + "\" type MPEGVideo alias " + alias);
        return error != 0 ? error : Send("play " + alias);
    }
    int Place(const std::string& alias) {
        return std::atoi(media.SendString("status " + alias + " position").text.c_str());
    }
    void Signal(const std::string& alias, int signal) { ASSERT_EQ(kill(media.ProcessOf(alias), signal), 0); }

    sound::GeneratedMedia files;
    std::string song;
    decoder::MediaProcesses media{DECODER_PROGRAM, Same};
};

TEST_F(MediaProcessesTest, ADecoderThatIsKilledClosesItsSongAndTheOtherPlaysOn) {
    ASSERT_EQ(Play("a"), 0);
    ASSERT_EQ(Play("b"), 0);
    std::this_thread::sleep_for(300ms);
    const int before = Place("b");

    Signal("a", SIGKILL);
    std::this_thread::sleep_for(200ms);

    EXPECT_EQ(Send("status a mode"), 263);
    EXPECT_EQ(media.SendString("status b mode").text, "playing");
    EXPECT_GT(Place("b"), before + 150);
}

TEST_F(MediaProcessesTest, TheNextSongPlaysOnAChannelWhoseDecoderEnded) {
    ASSERT_EQ(Play("a"), 0);
    const pid_t first = media.ProcessOf("a");
    Signal("a", SIGSEGV);
    const auto until = Clock::now() + 10s;
    while (Send("status a mode") == 0 && Clock::now() < until)
        std::this_thread::sleep_for(5ms);

    EXPECT_EQ(Play("a"), 0);
    while (Place("a") <= 100 && Clock::now() < until)
        std::this_thread::sleep_for(20ms);

    EXPECT_GT(Place("a"), 100);
    EXPECT_NE(media.ProcessOf("a"), first);
}

TEST_F(MediaProcessesTest, ADecoderThatIsKilledAgainAndAgainComesBackAtOnce) {
    media.WarmUp();
    ASSERT_EQ(Play("a"), 0);

    for (int i = 0; i < 6; ++i) {
        ASSERT_TRUE(IsReadyWithin(media.ProcessOf("b"), 10s));
        Signal("b", SIGKILL);
        std::this_thread::sleep_for(20ms);
        Send("status a mode");
    }

    EXPECT_EQ(Play("b"), 0);
}

TEST_F(MediaProcessesTest, ADecoderThatHangsHoldsTheProgramUpForTwoSecondsAtMost) {
    ASSERT_EQ(Play("a"), 0);
    ASSERT_EQ(Play("b"), 0);
    const pid_t hung = media.ProcessOf("a");
    Signal("a", SIGSTOP);

    const auto begin = Clock::now();
    EXPECT_EQ(Send("status a mode"), 263);
    EXPECT_LT(SecondsSince(begin), 2.5);

    EXPECT_TRUE(IsGoneWithin(hung, 1s));
    EXPECT_EQ(media.SendString("status b mode").text, "playing");
    EXPECT_EQ(Play("a"), 0);
}

TEST_F(MediaProcessesTest, ADecoderThatHangsOverAFileMakesItOneThatCannotBePlayed) {
    ASSERT_EQ(Play("a"), 0);
    Signal("a", SIGSTOP);

    const auto begin = Clock::now();
    EXPECT_EQ(Send("open \"" + song + "\" alias a"), 276);
    EXPECT_LT(SecondsSince(begin), 2.5);
    EXPECT_EQ(Play("a"), 0);
}

TEST_F(MediaProcessesTest, AQuestionIsAnsweredInWellUnderAMillisecond) {
    ASSERT_EQ(Play("a"), 0);
    std::vector<double> times;
    for (int i = 0; i < 500; ++i) {
        const auto begin = Clock::now();
        media.SendString("status a position");
        times.push_back(SecondsSince(begin) * 1000);
    }

    std::sort(times.begin(), times.end());
    std::printf("answered in %.3f ms (median), %.3f ms (99 of 100)\n", times[250], times[495]);
    EXPECT_LT(times[250], 0.5);
}

TEST_F(MediaProcessesTest, BothProcessesEndWithTheEngine) {
    std::vector<pid_t> numbers;
    {
        decoder::MediaProcesses other(DECODER_PROGRAM, Same);
        other.WarmUp();
        numbers = {other.ProcessOf("a"), other.ProcessOf("b")};
        ASSERT_TRUE(numbers[0] > 0 && numbers[1] > 0 && numbers[0] != numbers[1]);
    }

    for (const pid_t number : numbers)
        EXPECT_TRUE(IsGoneWithin(number, 0ms));
}

// A busy machine may take longer than that to load the media engine.
TEST_F(MediaProcessesTest, AnEndBeforeADecoderHasLoadedItsEngineIsNoFault) {
    const std::string slow = files.Make("slow.wav", {.seconds = 1});
    std::ofstream(slow) << "#!/bin/sh\nexec sleep 20\n";
    chmod(slow.c_str(), S_IRWXU);
    testing::internal::CaptureStderr();
    pid_t loading = 0;
    {
        decoder::MediaProcesses starting(slow, Same);
        starting.WarmUp();
        loading = starting.ProcessOf("a");
    }

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    ASSERT_NE(loading, 0);
    EXPECT_TRUE(IsGoneWithin(loading, 1s));
}

TEST_F(MediaProcessesTest, ADecoderThatAnsweredAndDoesNotLeaveIsTold) {
    testing::internal::CaptureStderr();
    {
        decoder::MediaProcesses hanging(DECODER_PROGRAM, Same);
        const auto until = Clock::now() + 20s;
        while (hanging.SendString("open \"" + song + "\" type MPEGVideo alias a").error != 0 &&
               Clock::now() < until) {
            std::this_thread::sleep_for(20ms);
        }
        kill(hanging.ProcessOf("a"), SIGSTOP);
    }

    EXPECT_NE(testing::internal::GetCapturedStderr().find("channel a did not leave"), std::string::npos);
}

TEST_F(MediaProcessesTest, BothProcessesEndWithAProgramThatIsKilled) {
    std::array<int, 2> line{};
    ASSERT_EQ(pipe(line.data()), 0);
    const pid_t program = fork();
    if (program == 0) {
        decoder::MediaProcesses other(DECODER_PROGRAM, Same);
        other.WarmUp();
        other.SendString("open \"" + song + "\" alias a");
        const std::array<pid_t, 2> numbers = {other.ProcessOf("a"), other.ProcessOf("b")};
        if (write(line[1], numbers.data(), sizeof numbers) < 0) _exit(1);
        pause();
    }
    std::array<pid_t, 2> numbers{};
    ASSERT_EQ(read(line[0], numbers.data(), sizeof numbers), static_cast<ssize_t>(sizeof numbers));

    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);

    for (const pid_t number : numbers)
        EXPECT_TRUE(IsGoneWithin(number, 2s));
    close(line[0]);
    close(line[1]);
}

TEST_F(MediaProcessesTest, WithoutTheDecodersProgramNoSongOpensAndNothingHangs) {
    decoder::MediaProcesses other("/nonexistent/brindlepost-media", Same);
    other.WarmUp();

    const auto begin = Clock::now();
    EXPECT_EQ(other.SendString("open \"" + song + "\" alias a").error, 276);
    EXPECT_EQ(other.SendString("status a mode").error, 263);
    EXPECT_LT(SecondsSince(begin), 1);
}

TEST_F(MediaProcessesTest, WhatFollowsIsOpenedInTheProcessOfTheSongBefore) {
    // Long enough not to be read to its end before it is told what follows.
    const std::string brief = files.Make("brief.wav", {.seconds = 4});
    ASSERT_EQ(Send("open \"" + brief + "\" type MPEGVideo alias b"), 0);
    ASSERT_EQ(Send("follow b by \"" + song + "\""), 0);
    ASSERT_EQ(Send("play b"), 0);
    const pid_t before = media.ProcessOf("b");
    std::this_thread::sleep_for(4300ms);

    ASSERT_EQ(Play("a"), 0);

    EXPECT_EQ(media.ProcessOf("a"), before);
    std::this_thread::sleep_for(300ms);
    EXPECT_GT(Place("a"), 450) << "it played already";
    EXPECT_EQ(media.SendString("status b mode").text, "stopped");
    EXPECT_EQ(Place("b"), 4000);
    ASSERT_EQ(Send("close b"), 0);
    ASSERT_EQ(Play("b"), 0);
    EXPECT_NE(media.ProcessOf("b"), before) << "two songs that are heard have a process each";
}

}  // namespace
