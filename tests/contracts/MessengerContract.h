// What every way to the messengers promises: one body of tests for the stand-in and for the real bus.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ports/Messenger.h"

namespace contracts {

/// A desktop on which windows of messengers open and close.
class MessengerBench {
public:
    virtual ~MessengerBench() = default;
    virtual ports::Messenger& Messenger() = 0;
    /// Opens a window; the number identifies it.
    virtual std::size_t OpenWindow(const std::string& window_class) = 0;
    /// One that is there and never looks at what it is sent.
    virtual void OpenDeafWindow(const std::string& window_class) = 0;
    /// What a window received, once everything that was sent has arrived.
    virtual std::vector<ports::CopyData> ReceivedBy(std::size_t window) = 0;
};

using MakeMessengerBench = std::function<std::unique_ptr<MessengerBench>()>;

inline constexpr const char* kClass = "MsnMsgrUIManager";

inline ports::CopyData BlockOf(std::uint32_t what, const std::string& bytes) {
    return {what, static_cast<std::uint32_t>(bytes.size()), {bytes.begin(), bytes.end()}};
}

class MessengerContract : public testing::TestWithParam<MakeMessengerBench> {
protected:
    std::unique_ptr<MessengerBench> bench_ = GetParam()();
    ports::Messenger& messenger_ = bench_->Messenger();
};

TEST_P(MessengerContract, WithoutAWindowNothingHappens) {
    messenger_.SendToWindows(kClass, BlockOf(1, "a"));
    const std::size_t late = bench_->OpenWindow(kClass);

    messenger_.SendToWindows(kClass, BlockOf(2, "b"));

    EXPECT_EQ(bench_->ReceivedBy(late), std::vector{BlockOf(2, "b")});
}

TEST_P(MessengerContract, EveryWindowOfTheClassReceivesTheBlockAndNoOther) {
    const std::size_t first = bench_->OpenWindow(kClass);
    const std::size_t other = bench_->OpenWindow("OtherManager");
    const std::size_t second = bench_->OpenWindow(kClass);
    const ports::CopyData block = BlockOf(1351, std::string("a\0b\0\xFF\0\0\0", 8));

    messenger_.SendToWindows(kClass, block);

    EXPECT_EQ(bench_->ReceivedBy(first), std::vector{block});
    EXPECT_EQ(bench_->ReceivedBy(second), std::vector{block});
    EXPECT_TRUE(bench_->ReceivedBy(other).empty());
}

TEST_P(MessengerContract, BlocksArriveInTheirOrder) {
    const std::size_t window = bench_->OpenWindow(kClass);
    std::vector<ports::CopyData> sent;

    for (std::uint32_t i = 0; i < 50; ++i) {
        sent.push_back(BlockOf(i, std::string(i, 'x')));
        messenger_.SendToWindows(kClass, sent.back());
    }

    EXPECT_EQ(bench_->ReceivedBy(window), sent);
}

TEST_P(MessengerContract, ADeafWindowHoldsNobodyUp) {
    bench_->OpenDeafWindow(kClass);
    const std::size_t window = bench_->OpenWindow(kClass);
    const ports::CopyData block = BlockOf(3, std::string(2000, 'x'));

    for (int i = 0; i < 100; ++i)
        messenger_.SendToWindows(kClass, block);

    EXPECT_EQ(bench_->ReceivedBy(window), std::vector(100, block));
}

}  // namespace contracts
