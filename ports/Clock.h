// Time and random numbers.
#pragma once

#include <cstdint>
#include <string>

#include "base/Number.h"

namespace ports {

struct Date {
    int year = 0;   ///< four digits
    int month = 0;  ///< 1 to 12
    int day = 0;    ///< 1 to 31
};

/// Eight digits yyyymmdd, as dates are stored.
inline std::string DateStamp(const Date& date) {
    return base::Padded(date.year, 4) + base::Padded(date.month, 2) + base::Padded(date.day, 2);
}

class Clock {
public:
    virtual ~Clock() = default;
    /// Today, in the user's time zone.
    virtual Date Today() const = 0;
    /// Milliseconds since any fixed moment; never runs backwards.
    virtual std::int64_t Milliseconds() const = 0;
};

class Chance {
public:
    virtual ~Chance() = default;
    /// A random number from 0 up to, and without, 1.
    virtual double Below1() = 0;
};

/// A random whole number from 0 to `count`, with `count` itself among them; the two ends are half as likely
/// as the others.
inline int RandomIndex(int count, Chance& chance) {
    return static_cast<int>(base::RoundHalfEven(chance.Below1() * count));
}

}  // namespace ports
