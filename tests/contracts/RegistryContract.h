// What every registry promises: one body of tests for the stand-in and for the real one.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "ports/Registry.h"

namespace contracts {

/// An empty registry.
class RegistryBench {
public:
    virtual ~RegistryBench() = default;
    virtual ports::Registry& Registry() = 0;
};

using MakeRegistryBench = std::function<std::unique_ptr<RegistryBench>()>;

class RegistryContract : public testing::TestWithParam<MakeRegistryBench> {
protected:
    RegistryContract() : bench_(GetParam()()), registry_(bench_->Registry()) {}

    bool IsThere(std::string_view path) {
        const ports::RegistryKey key = registry_.OpenKey(kRoot, path);
        registry_.CloseKey(key);
        return key != 0;
    }
    void Make(std::string_view path) {
        const ports::RegistryKey key = registry_.CreateKey(kRoot, path);
        ASSERT_NE(key, 0) << path;
        registry_.CloseKey(key);
    }

    static constexpr ports::RegistryRoot kRoot = ports::RegistryRoot::ClassesRoot;
    std::unique_ptr<RegistryBench> bench_;
    ports::Registry& registry_;
};

TEST_P(RegistryContract, AKeyIsMadeWithThoseAboveIt) {
    Make(".mp3\\shell\\open");

    EXPECT_TRUE(IsThere(".mp3"));
    EXPECT_TRUE(IsThere(".mp3\\shell"));
    EXPECT_TRUE(IsThere(".mp3\\shell\\open"));
    EXPECT_FALSE(IsThere(".mp3\\shell\\play"));
    EXPECT_FALSE(IsThere("shell"));
}

TEST_P(RegistryContract, ABackslashAtTheEndAndTheCaseOfANameChangeNothing) {
    Make(".mp3\\DefaultIcon\\");

    EXPECT_TRUE(IsThere(".mp3\\DefaultIcon"));
    EXPECT_TRUE(IsThere(".MP3\\defaulticon"));
    EXPECT_TRUE(registry_.DeleteKey(kRoot, ".mp3\\DEFAULTICON"));
    EXPECT_FALSE(IsThere(".mp3\\DefaultIcon\\"));
}

TEST_P(RegistryContract, TheRootsAreApart) {
    Make(".mp3");

    EXPECT_EQ(registry_.OpenKey(ports::RegistryRoot::LocalMachine, ".mp3"), 0);
}

TEST_P(RegistryContract, AValueIsKeptAsItIs) {
    const ports::RegistryKey key = registry_.CreateKey(kRoot, "command");

    EXPECT_TRUE(registry_.SetValue(key, "", "\"C:\\a b\\p.exe\" \"%1\""));
    EXPECT_TRUE(registry_.SetValue(key, "Name", "caf\xC3\xA9\nline\\two\t"));

    const auto command = registry_.QueryValue(key, "");
    const auto name = registry_.QueryValue(key, "NAME");
    ASSERT_TRUE(command && name);
    EXPECT_EQ(*command, (ports::RegistryValue{ports::RegistryType::Text, "\"C:\\a b\\p.exe\" \"%1\""}));
    EXPECT_EQ(name->bytes, "caf\xC3\xA9\nline\\two\t");
    EXPECT_FALSE(registry_.QueryValue(key, "other"));
    registry_.CloseKey(key);
}

TEST_P(RegistryContract, AValueIsReplaced) {
    const ports::RegistryKey key = registry_.CreateKey(kRoot, "command");
    registry_.SetValue(key, "", "long before");

    registry_.SetValue(key, "", "now");

    EXPECT_EQ(registry_.QueryValue(key, "")->bytes, "now");
    registry_.CloseKey(key);
}

TEST_P(RegistryContract, MakingAKeyAgainKeepsItsValues) {
    const ports::RegistryKey key = registry_.CreateKey(kRoot, "command");
    registry_.SetValue(key, "", "kept");
    registry_.CloseKey(key);

    const ports::RegistryKey again = registry_.CreateKey(kRoot, "command");

    EXPECT_EQ(registry_.QueryValue(again, "")->bytes, "kept");
    registry_.CloseKey(again);
}

TEST_P(RegistryContract, AKeyIsDeletedWithItsValues) {
    const ports::RegistryKey key = registry_.CreateKey(kRoot, "command");
    registry_.SetValue(key, "", "gone");
    registry_.CloseKey(key);

    EXPECT_TRUE(registry_.DeleteKey(kRoot, "command"));

    EXPECT_FALSE(IsThere("command"));
    const ports::RegistryKey again = registry_.CreateKey(kRoot, "command");
    EXPECT_FALSE(registry_.QueryValue(again, ""));
    registry_.CloseKey(again);
}

TEST_P(RegistryContract, AKeyWithKeysBelowItIsNotDeleted) {
    Make("mp3_auto_file\\shell");
    Make("mp3_auto_file2");

    EXPECT_FALSE(registry_.DeleteKey(kRoot, "mp3_auto_file"));

    EXPECT_TRUE(IsThere("mp3_auto_file\\shell"));
    EXPECT_TRUE(registry_.DeleteKey(kRoot, "mp3_auto_file\\shell\\"));
    EXPECT_TRUE(registry_.DeleteKey(kRoot, "mp3_auto_file"));
}

TEST_P(RegistryContract, WhatIsMissingIsNeitherOpenedNorDeleted) {
    EXPECT_EQ(registry_.OpenKey(kRoot, "nothing"), 0);
    EXPECT_FALSE(registry_.DeleteKey(kRoot, "nothing"));
}

TEST_P(RegistryContract, AKeyThatIsNotOpenTakesAndGivesNothing) {
    const ports::RegistryKey key = registry_.CreateKey(kRoot, "command");
    registry_.CloseKey(key);

    EXPECT_FALSE(registry_.SetValue(key, "", "late"));
    EXPECT_FALSE(registry_.QueryValue(key, ""));
    EXPECT_FALSE(registry_.SetValue(0, "", "none"));
    EXPECT_FALSE(registry_.QueryValue(0, ""));
    registry_.CloseKey(key);
}

TEST_P(RegistryContract, AKeyThatWasDeletedWhileOpenTakesAndGivesNothing) {
    const ports::RegistryKey key = registry_.CreateKey(kRoot, "command");
    registry_.SetValue(key, "", "gone");
    registry_.DeleteKey(kRoot, "command");

    EXPECT_FALSE(registry_.SetValue(key, "", "late"));
    EXPECT_FALSE(registry_.QueryValue(key, ""));
    registry_.CloseKey(key);
}

TEST_P(RegistryContract, TwoOpenKeysOfOnePathAreOneKey) {
    const ports::RegistryKey one = registry_.CreateKey(kRoot, "command");
    const ports::RegistryKey other = registry_.OpenKey(kRoot, "command\\");

    registry_.SetValue(one, "", "seen");
    registry_.CloseKey(one);

    EXPECT_EQ(registry_.QueryValue(other, "")->bytes, "seen");
    registry_.CloseKey(other);
}

}  // namespace contracts
