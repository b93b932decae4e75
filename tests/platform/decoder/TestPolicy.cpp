// What a decoder may read and connect to, by name.
#include "platform/decoder/Policy.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using decoder::Policy;
using decoder::Reading;

const decoder::Surroundings kDesktop = {.home = "/home/ann",
                                        .runtime_folder = "/run/user/7",
                                        .sound_folder = "",
                                        .sound_server = "",
                                        .display = ":1.0",
                                        .display_key = "/run/user/7/key"};

std::string Abstract(const std::string& name) {
    return std::string(1, '\0') + name;
}

TEST(Policy, TheSystemsOwnFilesAreRead) {
    const Policy policy(kDesktop);

    for (const char* path : {"/usr/lib/libx.so", "/usr", "/lib/x/y", "/etc/alternatives/default-GM.sf3"})
        EXPECT_EQ(policy.MayRead(path), Reading::Below) << path;
    for (const char* path : {"/etc/machine-id", "/dev/null", "/etc/ld.so.cache"})
        EXPECT_EQ(policy.MayRead(path), Reading::Exactly) << path;
}

TEST(Policy, OfTheUsersFilesOnlyThoseThatLeadToDisplayAndSound) {
    const Policy policy(kDesktop);

    for (const char* path : {"/home/ann/.Xauthority", "/run/user/7/key", "/home/ann/.config/pulse/cookie",
                             "/home/ann/.config/pulse", "/run/user/7/pulse"})
        EXPECT_EQ(policy.MayRead(path), Reading::Exactly) << path;
    for (const char* path :
         {"/home/ann/letter.txt", "/home/ann/.ssh/id", "/home/ann/.config/pulse/other", "/etc/shadow",
          "/tmp/x", "/usrx/y", "/proc/self/maps", "/dev/sda", "", "usr/lib"})
        EXPECT_EQ(policy.MayRead(path), Reading::No) << path;
}

TEST(Policy, NoWayUpIsFollowed) {
    const Policy policy(kDesktop);

    EXPECT_EQ(policy.MayRead("/usr/../home/ann/letter.txt"), Reading::No);
    EXPECT_EQ(policy.MayRead("/usr/.."), Reading::No);
    EXPECT_EQ(policy.MayRead("/usr/lib/a..b"), Reading::Below);
}

TEST(Policy, TheDisplayAndTheSoundServerAreReached) {
    const Policy policy(kDesktop);

    EXPECT_TRUE(policy.MayConnect("/tmp/.X11-unix/X1"));
    EXPECT_TRUE(policy.MayConnect(Abstract("/tmp/.X11-unix/X1")));
    EXPECT_TRUE(policy.MayConnect("/run/user/7/pulse/native"));
    EXPECT_TRUE(policy.MayConnect("/home/ann/.config/pulse/0123-runtime/native"));
    EXPECT_FALSE(policy.NeedsNetwork());
}

TEST(Policy, NobodyElseIsReached) {
    const Policy policy(kDesktop);

    for (const char* address : {"/run/user/7/bus", "/run/dbus/system_bus_socket", "/tmp/.X11-unix/X2", "",
                                "/home/ann/.config/pulse/../x-runtime/native", "/run/user/7/pulse/native2"})
        EXPECT_FALSE(policy.MayConnect(address)) << address;
    EXPECT_FALSE(policy.MayConnect(Abstract("/tmp/.X11-unix/X11")));
}

TEST(Policy, AServerThatIsNamedIsTheOneThatIsReached) {
    decoder::Surroundings named = kDesktop;
    named.sound_server = "{abc}unix:/tmp/one /tmp/two";
    named.sound_folder = "/tmp/folder";
    const Policy policy(named);

    EXPECT_TRUE(policy.MayConnect("/tmp/one"));
    EXPECT_TRUE(policy.MayConnect("/tmp/two"));
    EXPECT_TRUE(policy.MayConnect("/tmp/folder/native"));
    EXPECT_FALSE(policy.NeedsNetwork());
}

TEST(Policy, ADisplayOrAServerOnAnotherMachineNeedsTheNetwork) {
    decoder::Surroundings far = kDesktop;
    far.display = "elsewhere:10.0";
    decoder::Surroundings loud = kDesktop;
    loud.sound_server = "tcp:elsewhere";

    EXPECT_TRUE(Policy(far).NeedsNetwork());
    EXPECT_TRUE(Policy(loud).NeedsNetwork());
}

}  // namespace
