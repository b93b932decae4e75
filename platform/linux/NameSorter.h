// Puts any number of names in order without ever taking long over one step.
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/RowTexts.h"
#include "ports/Files.h"

namespace linux {

/// Asks `may_go_on` at every so many steps of something long, and every few milliseconds of something slow.
class Pace {
public:
    explicit Pace(const ports::MayGoOn& may_go_on) : may_go_on_(may_go_on) {}
    /// False when the work is cancelled.
    bool Step() { return ++steps_ % kStepsBetweenLooks != 0 || !may_go_on_ || !IsDue() || may_go_on_(); }
    /// Asks now: something is waited for.
    bool MayGoOn() const { return !may_go_on_ || may_go_on_(); }

private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::size_t kStepsBetween = 512;
    static constexpr std::size_t kStepsBetweenLooks = 8;
    static constexpr std::chrono::milliseconds kLongest{10};

    bool IsDue() {
        const Clock::time_point now = Clock::now();
        if (steps_ % kStepsBetween != 0 && now - asked_ < kLongest) return false;
        asked_ = now;
        return true;
    }

    const ports::MayGoOn& may_go_on_;
    std::size_t steps_ = 0;
    Clock::time_point asked_ = Clock::now();
};

/// Sorts the names in runs as they come, and puts the runs together at the end.
class NameSorter {
public:
    void Add(std::string_view name);
    /// Names that are in order already.
    void AddRun(base::RowTexts names);
    /// All names in the order of a sorted list; nothing when `pace` cancelled it. Once, at the end.
    std::optional<std::vector<std::string>> Sorted(Pace& pace);

private:
    static constexpr std::size_t kLongestRun = 2048;

    base::RowTexts open_;
    std::vector<base::RowTexts> runs_;
};

}  // namespace linux
