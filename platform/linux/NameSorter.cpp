#include "platform/linux/NameSorter.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

namespace linux {
namespace {

// The names of a run that are still to be taken.
struct Rest {
    const base::RowTexts* names;
    std::size_t next = 0;

    std::string_view First() const { return names->At(next); }
    bool IsEmpty() const { return next == names->Size(); }
};

bool IsBefore(const Rest& left, const Rest& right) {
    return base::CompareForSort(left.First(), right.First()) < 0;
}

// For a heap, whose top is the greatest by its own measure.
bool IsBehind(const Rest& left, const Rest& right) {
    return IsBefore(right, left);
}

}  // namespace

void NameSorter::Add(std::string_view name) {
    open_.PushBack(name);
    if (open_.Size() < kLongestRun) return;
    open_.Sort();
    AddRun(std::exchange(open_, {}));
}

void NameSorter::AddRun(base::RowTexts names) {
    if (!names.Empty()) runs_.push_back(std::move(names));
}

std::optional<std::vector<std::string>> NameSorter::Sorted(Pace& pace) {
    open_.Sort();
    AddRun(std::move(open_));
    std::vector<Rest> rests;
    rests.reserve(runs_.size());
    std::size_t count = 0;
    for (const base::RowTexts& run : runs_) {
        rests.push_back({&run});
        count += run.Size();
    }
    std::make_heap(rests.begin(), rests.end(), IsBehind);
    std::vector<std::string> names;
    names.reserve(count);
    while (!rests.empty()) {
        if (!pace.Step()) return std::nullopt;
        std::pop_heap(rests.begin(), rests.end(), IsBehind);
        Rest& first = rests.back();
        names.emplace_back(first.First());
        ++first.next;
        if (first.IsEmpty()) {
            rests.pop_back();
        } else {
            std::push_heap(rests.begin(), rests.end(), IsBehind);
        }
    }
    return names;
}

}  // namespace linux
