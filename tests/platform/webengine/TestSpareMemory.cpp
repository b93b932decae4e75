#include "platform/webengine/SpareMemory.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace {

using webengine::SpareMemory;

constexpr std::int64_t kMuch = SpareMemory::kMuch;

/// An allocator that keeps what a test says.
struct Fake {
    std::int64_t kept = 10 * kMuch;
    std::int64_t left = 0;  // of what is kept when it is given back
    int given_back = 0;
    webengine::Allocator Port() {
        return {.kept = [this] { return kept; },
                .give_back =
                    [this] {
                        ++given_back;
                        kept = left;
                    }};
    }
};

TEST(SpareMemory, WhatIsKeptAtTheBeginningIsNobodysGrowth) {
    Fake fake;
    SpareMemory spare(fake.Port());

    spare.Look();

    EXPECT_EQ(fake.given_back, 0);
}

TEST(SpareMemory, ItIsGivenBackWhenItHasGrownByMuch) {
    Fake fake;
    fake.left = fake.kept;
    SpareMemory spare(fake.Port());

    fake.kept += kMuch - 1;
    spare.Look();
    EXPECT_EQ(fake.given_back, 0);
    fake.kept += 1;
    spare.Look();
    EXPECT_EQ(fake.given_back, 1);
    spare.Look();
    EXPECT_EQ(fake.given_back, 1);
}

TEST(SpareMemory, WhatCannotBeGivenBackIsNotTriedAgain) {
    Fake fake;
    SpareMemory spare(fake.Port());
    fake.kept += 3 * kMuch;
    fake.left = fake.kept - 1;

    for (int i = 0; i < 10; ++i)
        spare.Look();

    EXPECT_EQ(fake.given_back, 1);
}

TEST(SpareMemory, GrowthIsCountedFromTheLeastThatWasKept) {
    Fake fake;
    SpareMemory spare(fake.Port());

    fake.kept = 0;
    spare.Look();
    fake.kept = kMuch;
    spare.Look();

    EXPECT_EQ(fake.given_back, 1);
}

TEST(SpareMemory, WhatWasGivenBackOnOtherGroundsIsNotGivenBackAgain) {
    Fake fake;
    SpareMemory spare(fake.Port());
    fake.kept += kMuch;

    spare.GiveBack();
    spare.Look();

    EXPECT_EQ(fake.given_back, 1);
}

TEST(SpareMemory, TheSystemsAllocatorTellsWhatWasFreedAndNotWhatIsInUse) {
    constexpr std::size_t kPiece = std::size_t{64} << 10;
    constexpr std::int64_t kPieces = 3000;
    constexpr std::int64_t kSize = kPieces * static_cast<std::int64_t>(kPiece);
    const webengine::Allocator system = webengine::SystemAllocator();
    const std::int64_t before = system.kept();
    std::vector<std::unique_ptr<char[]>> pieces;
    pieces.reserve(kPieces);
    for (int i = 0; i < kPieces; ++i)
        pieces.push_back(std::make_unique<char[]>(kPiece));
    const std::int64_t in_use = system.kept() - before;
    // One stays in each twenty, or the allocator would give the rest back by itself.
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (i % 20 != 0) pieces[i].reset();
    }
    const std::int64_t freed = system.kept() - before;

    system.give_back();

    EXPECT_LT(in_use, kSize / 4);
    EXPECT_GT(freed, kSize / 2);
    EXPECT_LT(system.kept() - before, kSize / 4);
}

}  // namespace
