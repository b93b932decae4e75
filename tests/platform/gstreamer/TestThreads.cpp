// The threads of an engine are joined, or told of.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <stdexcept>
#include <thread>

#include "platform/gstreamer/Threads.h"

namespace {

using namespace std::chrono_literals;

TEST(Threads, TheEndWaitsForWorkThatIsNotDone) {
    gstreamer::Threads threads;
    std::atomic<bool> done = false;
    threads.Start([&done] {
        std::this_thread::sleep_for(50ms);
        done = true;
    });

    EXPECT_TRUE(threads.End(5s));

    EXPECT_TRUE(done);
}

TEST(Threads, WorkThatWasDoneIsLetGoOfWhenTheNextBegins) {
    gstreamer::Threads threads;
    auto held = std::make_shared<int>(0);
    const std::weak_ptr<int> seen = held;
    threads.Start([held = std::move(held)] {});
    const auto until = std::chrono::steady_clock::now() + 5s;
    while (!seen.expired() && std::chrono::steady_clock::now() < until)
        std::this_thread::sleep_for(1ms);

    EXPECT_TRUE(seen.expired());
}

TEST(Threads, NothingBeginsAfterTheEnd) {
    gstreamer::Threads threads;
    std::atomic<int> begun = 0;
    threads.End(0s);

    EXPECT_FALSE(threads.Start([&begun] { ++begun; }));

    EXPECT_TRUE(threads.End(1s));
    EXPECT_EQ(begun, 0);
}

TEST(Threads, WhatWorkThrowsEndsThatWorkAlone) {
    gstreamer::Threads threads;

    threads.Start([] { throw std::runtime_error("out of something"); });

    EXPECT_TRUE(threads.End(5s));
}

TEST(Threads, AThreadThatDoesNotEndInTimeIsToldOf) {
    auto go = std::make_shared<std::atomic<bool>>(false);
    auto gone = std::make_shared<std::atomic<bool>>(false);
    gstreamer::Threads threads;
    threads.Start([go, gone] {
        while (!*go)
            std::this_thread::sleep_for(1ms);
        *gone = true;
    });

    EXPECT_FALSE(threads.End(10ms));

    EXPECT_TRUE(gstreamer::Threads::HasGivenUp());
    *go = true;
    while (!*gone)
        std::this_thread::sleep_for(1ms);
}

}  // namespace
