// What a decoder's process can still do once it is in its sandbox, with a gatekeeper as the program has it.
#include "platform/decoder/Sandbox.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>
#include <thread>

#include "platform/decoder/Gatekeeper.h"
#include "platform/decoder/Wire.h"
#include "real/sound/GeneratedMedia.h"

namespace {

bool CanOpen(const std::string& path, int flags) {
    const int file = open(path.c_str(), flags, 0600);
    return file >= 0 && close(file) == 0;
}

bool CanConnect(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int line = socket(AF_UNIX, SOCK_STREAM, 0);
    return line >= 0 && connect(line, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

class SandboxTest : public testing::Test {
protected:
    // True when `deed` succeeds in a process that is in its sandbox and was handed the song.
    bool Succeeds(const std::function<bool()>& deed) {
        const decoder::SocketPair gate = decoder::SocketPair::Make();
        const pid_t child = fork();
        if (child == 0) {
            gate_of_child = gate.theirs.Number();
            const decoder::Hello hello = decoder::EnterSandbox(false);
            // The gatekeeper has to be there before this process is gone again.
            const bool is_whole = hello.missing.empty() && decoder::SendHello(gate.theirs.Number(), hello) &&
                                  CanOpen("/dev/null", O_RDONLY);
            _exit(!is_whole ? 2 : deed() ? 0 : 1);
        }
        decoder::Gatekeeper keeper(decoder::Policy(surroundings), child,
                                   [this](pid_t, pid_t thread) { raised = thread; });
        keeper.Hand(song);
        if (is_forgotten) keeper.Forget(song);
        std::thread serving([&] { keeper.Serve(gate.ours.Number()); });
        int status = 0;
        waitpid(child, &status, 0);
        shutdown(gate.ours.Number(), SHUT_RDWR);
        serving.join();
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) != 2) << "no sandbox on this system, or killed";
        return status == 0;
    }

    bool is_forgotten = false;
    int gate_of_child = -1;
    pid_t raised = 0;
    sound::GeneratedMedia files;
    const std::string song = files.Write("song.mp3", "song");
    const std::string letter = files.Write("letter.txt", "letter");
    decoder::Surroundings surroundings{.home = "/nowhere",
                                       .runtime_folder = "/nowhere",
                                       .sound_folder = files.Path("sound"),
                                       .sound_server = "",
                                       .display = "",
                                       .display_key = ""};
};

TEST_F(SandboxTest, TheSongIsReadAndNoOtherFileOfTheUser) {
    EXPECT_TRUE(Succeeds([&] { return CanOpen(song, O_RDONLY); }));
    EXPECT_FALSE(Succeeds([&] { return CanOpen(letter, O_RDONLY); }));
    EXPECT_FALSE(Succeeds([&] { return CanOpen("/proc/self/maps", O_RDONLY); }));
}

TEST_F(SandboxTest, TheSongIsReadAsOftenAsItIsWantedUntilItIsForgotten) {
    const auto read_twice = [&] { return CanOpen(song, O_RDONLY) && CanOpen(song, O_RDONLY | O_CLOEXEC); };

    EXPECT_TRUE(Succeeds(read_twice));
    is_forgotten = true;
    EXPECT_FALSE(Succeeds(read_twice));
}

TEST_F(SandboxTest, NothingIsWrittenNorMade) {
    EXPECT_FALSE(Succeeds([&] { return CanOpen(song, O_WRONLY); }));
    EXPECT_FALSE(Succeeds([&] { return CanOpen(song, O_RDWR); }));
    EXPECT_FALSE(Succeeds([&] { return CanOpen(song, O_RDONLY | O_TRUNC); }));
    EXPECT_FALSE(Succeeds([&] { return CanOpen(files.Path("new"), O_RDONLY | O_CREAT); }));
    EXPECT_FALSE(Succeeds([&] { return mkdir(files.Path("folder").c_str(), 0700) == 0; }));
    EXPECT_FALSE(Succeeds([&] { return unlink(letter.c_str()) == 0; }));
    EXPECT_FALSE(Succeeds([&] { return rename(letter.c_str(), files.Path("gone").c_str()) == 0; }));
    EXPECT_TRUE(CanOpen(letter, O_RDONLY));
}

TEST_F(SandboxTest, WhatTheSystemInstallsIsRead) {
    EXPECT_TRUE(Succeeds([] { return CanOpen("/usr/bin/env", O_RDONLY); }));
    EXPECT_TRUE(Succeeds([] { return CanOpen("/dev/null", O_RDONLY); }));
}

TEST_F(SandboxTest, ANameThatLeadsOutOfTheSystemIsNotFollowed) {
    const std::string link = files.Path("link");
    ASSERT_EQ(symlink(letter.c_str(), link.c_str()), 0);

    EXPECT_FALSE(Succeeds([&] { return CanOpen("/usr/.." + letter, O_RDONLY); }));
    EXPECT_FALSE(Succeeds([&] { return CanOpen(link, O_RDONLY); }));
}

TEST_F(SandboxTest, NoNetworkIsReached) {
    for (const int family : {AF_INET, AF_INET6, AF_NETLINK, AF_PACKET})
        EXPECT_FALSE(Succeeds([=] { return socket(family, SOCK_STREAM, 0) >= 0; })) << family;
    EXPECT_FALSE(Succeeds([] { return socket(AF_UNIX, SOCK_DGRAM, 0) >= 0; }));
}

TEST_F(SandboxTest, OnlyTheSoundServerAndTheDisplayAreConnectedTo) {
    ASSERT_EQ(mkdir(files.Path("sound").c_str(), 0700), 0);
    const auto listen_at = [](const std::string& path) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.copy(address.sun_path, sizeof address.sun_path - 1);
        const int line = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        EXPECT_EQ(bind(line, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(listen(line, 5), 0);
        return linux::Descriptor(line);
    };
    const linux::Descriptor server = listen_at(files.Path("sound/native"));
    const linux::Descriptor bus = listen_at(files.Path("bus"));

    EXPECT_TRUE(Succeeds([&] { return CanConnect(files.Path("sound/native")); }));
    EXPECT_FALSE(Succeeds([&] { return CanConnect(files.Path("bus")); }));
}

TEST_F(SandboxTest, NoProgramIsStartedAndNoOtherProcessTouched) {
    EXPECT_FALSE(Succeeds([] { return fork() >= 0; }));
    EXPECT_FALSE(Succeeds([] { return kill(getppid(), 0) == 0; }));
    const std::array<const char*, 2> arguments = {"true", nullptr};
    EXPECT_FALSE(
        Succeeds([&] { return execv("/bin/true", const_cast<char* const*>(arguments.data())) == 0; }));
}

TEST_F(SandboxTest, ThreadsAreStarted) {
    EXPECT_TRUE(Succeeds([] {
        bool ran = false;
        std::thread([&ran] { ran = true; }).join();
        return ran;
    }));
}

TEST_F(SandboxTest, TheProcessFindsItsOwnThreadsAndTheirNamesAndNothingElseOfItself) {
    EXPECT_TRUE(Succeeds([] { return CanOpen("/proc/self/task", O_RDONLY | O_DIRECTORY); }));
    EXPECT_TRUE(
        Succeeds([] { return CanOpen("/proc/self/task/" + std::to_string(getpid()) + "/comm", O_RDONLY); }));
    for (const char* path : {"/proc/self/task/1", "/proc/self/task/../mem", "/proc/self/task/1/../comm",
                             "/proc/self/task/1/mem", "/proc/self/taskx", "/proc/self/task//comm"})
        EXPECT_FALSE(Succeeds([&] { return CanOpen(path, O_RDONLY); })) << path;
}

TEST_F(SandboxTest, AWishForAThreadIsPassedOn) {
    EXPECT_TRUE(Succeeds([this] {
        const bool is_sent =
            decoder::Send(gate_of_child, {.serial = 4711, .error = 0, .text = {}, .path = {}});
        // Answered after the wish was taken.
        return is_sent && CanOpen("/dev/null", O_RDONLY) && CanOpen("/dev/null", O_RDONLY);
    }));
    EXPECT_EQ(raised, 4711);
}

TEST_F(SandboxTest, MemoryHasALimit) {
    constexpr std::size_t kThreeGigabytes = std::size_t{3} << 30;
    EXPECT_FALSE(Succeeds([] {
        void* const taken = std::malloc(kThreeGigabytes);
        std::free(taken);
        return taken != nullptr;
    }));
}

}  // namespace
