// What every window shape keeps to. Pixels are counted from the window's outer corner.
#pragma once

#include <gtest/gtest.h>

#include "ports/Windows.h"

namespace contracts {

/// Every test has a bench of its own, with a main window of at least 300 by 300 pixels.
class WindowShapeBench {
public:
    virtual ~WindowShapeBench() = default;
    virtual ports::WindowShape& Shape() = 0;
    /// Ends the handler that runs.
    virtual void EndHandler() = 0;
    /// False where the hole is.
    virtual bool HasPixel(int x, int y) = 0;
};

template <class Bench>
class WindowShapeContract : public testing::Test {
protected:
    Bench bench_;
    ports::WindowShape& shape_ = bench_.Shape();
};

inline ports::Hole SquareHole(int left, int top, int size) {
    return {.box = {.left = left, .top = top, .right = left + size, .bottom = top + size}};
}

TYPED_TEST_SUITE_P(WindowShapeContract);

TYPED_TEST_P(WindowShapeContract, AHoleIsItsBoxWithoutTheRightAndBottomEdge) {
    this->shape_.SetHole(SquareHole(50, 80, 100));
    this->bench_.EndHandler();

    EXPECT_TRUE(this->bench_.HasPixel(49, 80));
    EXPECT_TRUE(this->bench_.HasPixel(50, 79));
    EXPECT_FALSE(this->bench_.HasPixel(50, 80));
    EXPECT_FALSE(this->bench_.HasPixel(149, 179));
    EXPECT_TRUE(this->bench_.HasPixel(150, 179));
    EXPECT_TRUE(this->bench_.HasPixel(149, 180));
}

TYPED_TEST_P(WindowShapeContract, ANewHoleReplacesTheLast) {
    this->shape_.SetHole(SquareHole(50, 80, 50));
    this->bench_.EndHandler();

    this->shape_.SetHole(SquareHole(150, 180, 50));
    this->bench_.EndHandler();

    EXPECT_TRUE(this->bench_.HasPixel(60, 90));
    EXPECT_FALSE(this->bench_.HasPixel(160, 190));
}

TYPED_TEST_P(WindowShapeContract, WithoutAHoleTheWindowIsWhole) {
    this->shape_.SetHole(SquareHole(50, 80, 50));
    this->bench_.EndHandler();

    this->shape_.SetHole(std::nullopt);
    this->bench_.EndHandler();

    EXPECT_TRUE(this->bench_.HasPixel(60, 90));
}

REGISTER_TYPED_TEST_SUITE_P(WindowShapeContract, AHoleIsItsBoxWithoutTheRightAndBottomEdge,
                            ANewHoleReplacesTheLast, WithoutAHoleTheWindowIsWhole);

}  // namespace contracts
