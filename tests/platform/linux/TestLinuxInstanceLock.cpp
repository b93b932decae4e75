#include "platform/linux/LinuxInstanceLock.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <future>
#include <string>
#include <vector>

#include "platform/linux/Bench.h"

namespace linux {
namespace {

using linux_tests::PlayFolder;
using ports::Instance;

struct Pipe {
    Pipe() {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) std::abort();
        out = Descriptor(ends[0]);
        in = Descriptor(ends[1]);
    }
    Descriptor out;
    Descriptor in;
};

/// How many descriptors this process has room for; -1 when the system does not tell.
int RoomForDescriptors() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        int room = -1;
        if (word == "FDSize:" && status >> room) return room;
    }
    return -1;
}

/// The exit code of a process that has room for the usual descriptors only, and of what it does.
template <class Work>
int InAProcessWithLittleRoom(const Work& work) {
    const auto in_child = [](const auto& what) {
        const pid_t child = ::fork();
        if (child == 0) ::_exit(what());
        int status = 1;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
    };
    // A process is made with the room that the open descriptors of its parent need.
    return in_child([&in_child, &work] {
        ::close_range(3, ~0U, 0);
        return in_child(work);
    });
}

char Letter(Instance instance) {
    if (instance == Instance::First) return 'F';
    return instance == Instance::Second ? 'S' : 'X';
}

// Starts made in processes of their own, held back until all of them are there.
class Starts {
public:
    explicit Starts(const PlayFolder& folder) : folder_(folder) {}
    ~Starts() {
        end_.in.Close();
        for (const pid_t child : children_)
            ::waitpid(child, nullptr, 0);
    }
    Starts(const Starts&) = delete;
    Starts& operator=(const Starts&) = delete;

    void Add() {
        const pid_t child = ::fork();
        if (child == 0) Run();
        children_.push_back(child);
    }
    void Go() { go_.in.Close(); }
    /// One letter for each start, in the order in which they answered.
    std::string Answers() {
        std::string answers;
        char answer = 0;
        while (answers.size() < children_.size() && ::read(answers_.out.Number(), &answer, 1) == 1) {
            answers += answer;
        }
        std::sort(answers.begin(), answers.end());
        return answers;
    }
    void Kill(std::size_t start) {
        ::kill(children_[start], SIGKILL);
        ::waitpid(children_[start], nullptr, 0);
        children_.erase(children_.begin() + static_cast<std::ptrdiff_t>(start));
    }

private:
    [[noreturn]] void Run() {
        char nothing = 0;
        go_.in.Close();
        end_.in.Close();
        (void)!::read(go_.out.Number(), &nothing, 1);
        {
            LinuxInstanceLock lock(folder_.Path());
            const char answer = Letter(lock.TryBecomeFirst());
            (void)!::write(answers_.in.Number(), &answer, 1);
            (void)!::read(end_.out.Number(), &nothing, 1);
        }
        ::_exit(0);
    }

    const PlayFolder& folder_;
    std::vector<pid_t> children_;
    Pipe go_;
    Pipe answers_;
    Pipe end_;
};

std::string SocketPath(const PlayFolder& folder) {
    return folder / (".brindlepost-" + std::to_string(::geteuid()) + ".socket");
}

std::string LockPath(const PlayFolder& folder) {
    return folder / (".brindlepost-" + std::to_string(::geteuid()) + ".lock");
}

Descriptor ConnectTo(const std::string& path) {
    Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
    EXPECT_EQ(::connect(socket.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    return socket;
}

class CountingListener final : public ports::HandOffListener {
public:
    void OnBringToFront() override {}
    void OnCommandText(std::string_view text) override { Texts.emplace_back(text); }
    void OnTrigger() override {}

    std::vector<std::string> Texts;
};

TEST(LinuxInstanceLock, OfEightSimultaneousStartsOneIsTheFirst) {
    const PlayFolder folder;
    for (int round = 0; round < 60; ++round) {
        Starts starts(folder);
        for (int start = 0; start < 8; ++start)
            starts.Add();

        starts.Go();

        ASSERT_EQ(starts.Answers(), "FSSSSSSS") << "round " << round;
    }
}

TEST(LinuxInstanceLock, AmongTheRemainsOfAKilledInstanceOneOfEightIsTheFirst) {
    const PlayFolder folder;
    for (int round = 0; round < 20; ++round) {
        Starts killed(folder);
        killed.Add();
        killed.Go();
        ASSERT_EQ(killed.Answers(), "F");
        killed.Kill(0);
        Starts starts(folder);
        for (int start = 0; start < 8; ++start)
            starts.Add();

        starts.Go();

        ASSERT_EQ(starts.Answers(), "FSSSSSSS") << "round " << round;
    }
}

TEST(LinuxInstanceLock, FilesThatOnlyLookLikeAnInstanceDoNotStopAStart) {
    const PlayFolder folder;
    std::ofstream(LockPath(folder)) << "12345";
    std::ofstream(SocketPath(folder)) << "no socket";
    LinuxInstanceLock lock(folder.Path());

    EXPECT_EQ(lock.TryBecomeFirst(), Instance::First);

    EXPECT_GE(lock.FileDescriptor(), 0);
}

TEST(LinuxInstanceLock, ARemovedLockFileMakesNoSecondFirst) {
    const PlayFolder folder;
    LinuxInstanceLock first(folder.Path());
    ASSERT_EQ(first.TryBecomeFirst(), Instance::First);
    ASSERT_EQ(::unlink(LockPath(folder).c_str()), 0);
    LinuxInstanceLock second(folder.Path());

    EXPECT_EQ(second.TryBecomeFirst(), Instance::Second);
}

TEST(LinuxInstanceLock, OnlyTheOwnerMayUseWhatItLeavesInTheFolder) {
    const PlayFolder folder;
    LinuxInstanceLock first(folder.Path());
    ASSERT_EQ(first.TryBecomeFirst(), Instance::First);
    struct stat status{};

    ASSERT_EQ(::stat(SocketPath(folder).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    ASSERT_EQ(::stat(LockPath(folder).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST(LinuxInstanceLock, EachFolderHasAFirstOfItsOwn) {
    const PlayFolder one;
    const PlayFolder other;
    LinuxInstanceLock first(one.Path());
    LinuxInstanceLock also_first(other.Path());

    EXPECT_EQ(first.TryBecomeFirst(), Instance::First);
    EXPECT_EQ(also_first.TryBecomeFirst(), Instance::First);
}

TEST(LinuxInstanceLock, AFolderOfAnyLengthWillDo) {
    const PlayFolder folder;
    const std::string deep = std::string(200, 'a') + "/" + std::string(200, 'b');
    folder.Make(deep);
    LinuxInstanceLock first(folder / deep);
    LinuxInstanceLock second(folder / deep);
    CountingListener listener;
    ASSERT_EQ(first.TryBecomeFirst(), Instance::First);
    first.SetListener(&listener);
    ASSERT_EQ(second.TryBecomeFirst(), Instance::Second);
    auto delivered = std::async(std::launch::async, [&second] { return second.HandOff("text"); });
    pollfd wanted{first.FileDescriptor(), POLLIN, 0};
    while (listener.Texts.empty() && ::poll(&wanted, 1, 10000) > 0)
        first.Serve();

    EXPECT_TRUE(delivered.get());

    EXPECT_EQ(listener.Texts, (std::vector<std::string>{"text"}));
}

TEST(LinuxInstanceLock, AMissingFolderIsNamedInTheReason) {
    LinuxInstanceLock lock("/no/such/folder");

    EXPECT_EQ(lock.TryBecomeFirst(), Instance::Failed);

    EXPECT_EQ(lock.Failure(), "The folder /no/such/folder cannot be opened: No such file or directory.");
}

TEST(LinuxInstanceLock, AReadOnlyFolderIsNamedInTheReason) {
    const PlayFolder folder;
    const linux_tests::Unprivileged rights(folder);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0555), 0);
    LinuxInstanceLock lock(folder.Path());

    EXPECT_EQ(lock.TryBecomeFirst(), Instance::Failed);

    EXPECT_EQ(lock.Failure(), "The folder " + folder.Path() + " cannot be written to: Permission denied.");
}

// Hands a text over with a start-up id and returns what arrived, as "id|text".
std::string HandedOver(const std::string& startup_id, const std::string& text) {
    const PlayFolder folder;
    LinuxInstanceLock first(folder.Path());
    LinuxInstanceLock second(folder.Path(), startup_id);
    CountingListener listener;
    std::string id = "none";
    first.TryBecomeFirst();
    second.TryBecomeFirst();
    first.SetListener(&listener);
    first.OnStartupId = [&](const std::string& given) { id = listener.Texts.empty() ? given : "late"; };
    auto delivered = std::async(std::launch::async, [&] { return second.HandOff(text); });
    while (delivered.wait_for(std::chrono::milliseconds(5)) != std::future_status::ready)
        first.Serve();
    return listener.Texts.size() == 1 ? id + "|" + listener.Texts.front() : "not once";
}

TEST(LinuxInstanceLock, TheStartupIdOfALauncherTravelsWithTheText) {
    EXPECT_EQ(HandedOver("files-7_TIME1234", "\"C:\\a.mp3\""), "files-7_TIME1234|\"C:\\a.mp3\"");
    EXPECT_EQ(HandedOver("files-7_TIME1234", ""), "files-7_TIME1234|");
    EXPECT_EQ(HandedOver("", "text"), "|text");
    EXPECT_EQ(HandedOver(std::string("a\0b", 3), "text"), "|text");
}

TEST(LinuxInstanceLock, AMessageThatIsNoTextArrivesAsItIs) {
    const PlayFolder folder;
    LinuxInstanceLock first(folder.Path());
    CountingListener listener;
    ASSERT_EQ(first.TryBecomeFirst(), Instance::First);
    first.SetListener(&listener);
    const Descriptor open = ConnectTo(SocketPath(folder));
    ASSERT_EQ(::send(open.Number(), "\x04\x00\x00\x00\x00\xFF\xFEx", 8, MSG_NOSIGNAL), 8);

    first.Serve();

    EXPECT_EQ(listener.Texts, (std::vector<std::string>{std::string("\0\xFF\xFEx", 4)}));
}

TEST(LinuxInstanceLock, ATextForAnInstanceThatEndsUnreadIsNotDelivered) {
    const PlayFolder folder;
    auto first = std::make_unique<LinuxInstanceLock>(folder.Path());
    LinuxInstanceLock second(folder.Path());
    ASSERT_EQ(first->TryBecomeFirst(), Instance::First);
    ASSERT_EQ(second.TryBecomeFirst(), Instance::Second);
    auto delivered = std::async(std::launch::async, [&second] { return second.HandOff("text"); });
    pollfd wanted{first->FileDescriptor(), POLLIN, 0};
    ASSERT_EQ(::poll(&wanted, 1, 10000), 1);

    first.reset();

    EXPECT_FALSE(delivered.get());
}

TEST(LinuxInstanceLock, ConnectionsThatSayNothingOrTooMuchHoldNobodyUp) {
    const PlayFolder folder;
    LinuxInstanceLock first(folder.Path());
    CountingListener listener;
    ASSERT_EQ(first.TryBecomeFirst(), Instance::First);
    first.SetListener(&listener);
    const Descriptor silent = ConnectTo(SocketPath(folder));
    const Descriptor boasting = ConnectTo(SocketPath(folder));
    const Descriptor leaving = ConnectTo(SocketPath(folder));
    const Descriptor brief = ConnectTo(SocketPath(folder));
    ASSERT_EQ(::send(boasting.Number(), "\xFF\xFF\xFF\xFF", 4, MSG_NOSIGNAL), 4);
    ASSERT_EQ(::send(leaving.Number(), "\x05\x00\x00\x00ha", 6, MSG_NOSIGNAL), 6);
    ::shutdown(leaving.Number(), SHUT_RDWR);
    ASSERT_EQ(::send(brief.Number(), "\x02\x00\x00\x00hi", 6, MSG_NOSIGNAL), 6);

    first.Serve();

    EXPECT_EQ(listener.Texts, (std::vector<std::string>{"hi"}));
    pollfd wanted{first.FileDescriptor(), POLLIN, 0};
    EXPECT_EQ(::poll(&wanted, 1, 0), 0);
}

TEST(LinuxInstanceLock, ACrowdOfSilentConnectionsGivesWay) {
    const PlayFolder folder;
    LinuxInstanceLock first(folder.Path());
    CountingListener listener;
    ASSERT_EQ(first.TryBecomeFirst(), Instance::First);
    first.SetListener(&listener);
    std::vector<Descriptor> silent;
    for (int i = 0; i < 200; ++i) {
        silent.push_back(ConnectTo(SocketPath(folder)));
        first.Serve();
    }
    const Descriptor brief = ConnectTo(SocketPath(folder));
    ASSERT_EQ(::send(brief.Number(), "\x02\x00\x00\x00hi", 6, MSG_NOSIGNAL), 6);

    first.Serve();

    EXPECT_EQ(listener.Texts, (std::vector<std::string>{"hi"}));
}

// With threads there, the growth waits for all of them: 12 ms of a start.
TEST(LinuxInstanceLock, ItsDescriptorHasRoomBeforeItIsTaken) {
    constexpr int kTooLittle = 2;
    const int result = InAProcessWithLittleRoom([] {
        if (RoomForDescriptors() > 200) return kTooLittle;
        LinuxInstanceLock::MakeRoom();
        return RoomForDescriptors() > 200 ? 0 : 1;
    });

    EXPECT_EQ(result, 0);
}

TEST(LinuxInstanceLock, ATextWaitsForAListener) {
    const PlayFolder folder;
    LinuxInstanceLock first(folder.Path());
    CountingListener listener;
    ASSERT_EQ(first.TryBecomeFirst(), Instance::First);
    const Descriptor brief = ConnectTo(SocketPath(folder));
    ASSERT_EQ(::send(brief.Number(), "\x02\x00\x00\x00hi", 6, MSG_NOSIGNAL), 6);
    first.Serve();

    first.SetListener(&listener);
    pollfd wanted{first.FileDescriptor(), POLLIN, 0};
    EXPECT_EQ(::poll(&wanted, 1, 0), 1);
    first.Serve();

    EXPECT_EQ(listener.Texts, (std::vector<std::string>{"hi"}));
}

}  // namespace
}  // namespace linux
