#include "window/FileTypeRoom.h"

#include <gtest/gtest.h>

#include "fakes/FakeFiles.h"
#include "fakes/FakeRegistry.h"

namespace {

using Texts = std::vector<std::string>;
constexpr auto kRoot = ports::RegistryRoot::ClassesRoot;

class FileTypeRoom : public testing::Test {
protected:
    fakes::FakeFiles files{"C:\\my app"};
    fakes::FakeRegistry registry;
    window::FileTypeRoom room{registry, files, "C:\\my app"};
};

TEST_F(FileTypeRoom, TheCommandIsTheProgramWhereverItsStoresLive) {
    window::FileTypeRoom installed{registry, files, "C:\\usr\\lib"};

    installed.cmdAssociate();

    const auto command = registry.QueryValue(
        registry.OpenKey(ports::RegistryRoot::ClassesRoot, ".mp3\\shell\\open\\command"), "");
    ASSERT_TRUE(command.has_value());
    EXPECT_TRUE(
        command->bytes.starts_with("\"C:\\usr\\lib\\" + files.ApplicationFileName() + ".exe\" \"%1\""))
        << command->bytes;
}

TEST_F(FileTypeRoom, TheTypeIsClaimedInOneOrder) {
    const std::string command = "\"C:\\my app\\" + files.ApplicationFileName() + ".exe\" \"%1\"";

    room.cmdAssociate();

    EXPECT_EQ(registry.Operations, (Texts{"delete .mp3\\DefaultIcon\\",
                                          "delete mp3file\\DefaultIcon\\",
                                          "delete mp3_auto_file\\DefaultIcon\\",
                                          "delete .mp3",
                                          "delete mp3file",
                                          "delete mp3_auto_file",
                                          "create .mp3",
                                          "close",
                                          "create .mp3\\shell\\",
                                          "close",
                                          "create .mp3\\shell\\open\\",
                                          "close",
                                          "create .mp3\\shell\\open\\command",
                                          "set \"\" " + command,
                                          "close",
                                          "create .mp3\\shell\\play\\",
                                          "close",
                                          "create .mp3\\shell\\play\\command\\",
                                          "set \"\" " + command,
                                          "close",
                                          "create .mp3\\DefaultIcon\\",
                                          "set \"\" C:\\my app\\Brindlepost.exe,0",
                                          "close",
                                          "notify"}));
    EXPECT_EQ(registry.OpenKeys(), 0U);
}

TEST_F(FileTypeRoom, TheExtensionsKeyHasNoDefaultValue) {
    room.cmdAssociate();

    EXPECT_FALSE(registry.QueryValue(registry.OpenKey(kRoot, ".mp3"), ""));
}

TEST_F(FileTypeRoom, ClaimingTwiceLeavesTheSameKeys) {
    room.cmdAssociate();
    const Texts once = registry.Contents(kRoot);

    room.cmdAssociate();

    EXPECT_EQ(registry.Contents(kRoot), once);
    EXPECT_EQ(once.size(), 10U) << "seven keys, three values";
}

TEST_F(FileTypeRoom, WhatOthersLeftGoesUnlessKeysAreBelowIt) {
    registry.Seed(kRoot, "mp3file\\DefaultIcon", "", {ports::RegistryType::Text, "old.dll,3"});
    registry.Seed(kRoot, "mp3_auto_file\\shell\\open\\command", "", {ports::RegistryType::Text, "old %1"});

    room.cmdAssociate();

    EXPECT_EQ(registry.OpenKey(kRoot, "mp3file"), 0);
    EXPECT_NE(registry.OpenKey(kRoot, "mp3_auto_file\\shell\\open\\command"), 0);
}

TEST_F(FileTypeRoom, AfterAMoveOfTheProgramTheNewPathIsWritten) {
    room.cmdAssociate();
    fakes::FakeFiles moved{"C:\\elsewhere"};

    window::FileTypeRoom(registry, moved, "C:\\elsewhere").cmdAssociate();

    const auto command = registry.QueryValue(registry.OpenKey(kRoot, ".mp3\\shell\\open\\command"), "");
    ASSERT_TRUE(command);
    EXPECT_TRUE(command->bytes.starts_with("\"C:\\elsewhere\\")) << command->bytes;
}

TEST_F(FileTypeRoom, WithoutTheRightNothingHappensInSilence) {
    registry.ReadOnly = true;

    room.cmdAssociate();

    EXPECT_TRUE(registry.Contents(kRoot).empty());
    EXPECT_EQ(registry.Operations.back(), "notify");
}

}  // namespace
