// The computer's clock, and random numbers seeded from its random device.
#pragma once

#include <random>

#include "ports/Clock.h"

namespace linux {

class SystemClock final : public ports::Clock {
public:
    ports::Date Today() const override;
    std::int64_t Milliseconds() const override;
};

class RandomChance final : public ports::Chance {
public:
    RandomChance();
    double Below1() override;

private:
    std::mt19937_64 numbers_;
};

}  // namespace linux
