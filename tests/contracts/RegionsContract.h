// What all regions keep to.
#pragma once

#include <gtest/gtest.h>

#include "ports/Windows.h"

namespace contracts {

/// Every test has a bench of its own.
class RegionsBench {
public:
    virtual ~RegionsBench() = default;
    virtual ports::Regions& Regions() = 0;
};

template <class Bench>
class RegionsContract : public testing::Test {
protected:
    Bench bench_;
    ports::Regions& regions_ = bench_.Regions();
};

TYPED_TEST_SUITE_P(RegionsContract);

TYPED_TEST_P(RegionsContract, EveryRegionHasAHandleOfItsOwn) {
    const int rectangle = this->regions_.CreateRectRgn(0, 0, 10, 10);
    const int ellipse = this->regions_.CreateEllipticRgn(0, 0, 10, 10);
    const int rounded = this->regions_.CreateRoundRectRgn(0, 0, 10, 10, 4, 4);

    EXPECT_NE(rectangle, 0);
    EXPECT_NE(rectangle, ellipse);
    EXPECT_NE(ellipse, rounded);
    EXPECT_NE(rectangle, rounded);
}

TYPED_TEST_P(RegionsContract, KnownRegionsCanBeCombinedInEveryWay) {
    const int first = this->regions_.CreateRectRgn(0, 0, 100, 100);
    const int second = this->regions_.CreateRectRgn(10, 10, 20, 20);

    for (const auto mode : {ports::RegionCombine::And, ports::RegionCombine::Or, ports::RegionCombine::Xor,
                            ports::RegionCombine::Difference, ports::RegionCombine::Copy}) {
        EXPECT_TRUE(this->regions_.CombineRgn(first, first, second, mode));
    }
}

TYPED_TEST_P(RegionsContract, TheWindowTakesARegion) {
    const int region = this->regions_.CreateRectRgn(0, 0, 100, 100);

    EXPECT_TRUE(this->regions_.SetWindowRgn(region, true));
}

TYPED_TEST_P(RegionsContract, AnUnknownHandleIsRefused) {
    const int known = this->regions_.CreateRectRgn(0, 0, 100, 100);

    EXPECT_FALSE(this->regions_.CombineRgn(known, known, 4711, ports::RegionCombine::Or));
    EXPECT_FALSE(this->regions_.CombineRgn(4711, known, known, ports::RegionCombine::Or));
    EXPECT_FALSE(this->regions_.SetWindowRgn(4711, true));
}

REGISTER_TYPED_TEST_SUITE_P(RegionsContract, EveryRegionHasAHandleOfItsOwn,
                            KnownRegionsCanBeCombinedInEveryWay, TheWindowTakesARegion,
                            AnUnknownHandleIsRefused);

}  // namespace contracts
