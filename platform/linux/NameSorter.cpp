#include "platform/linux/NameSorter.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

namespace linux {
namespace {

bool IsBefore(const std::string& left, const std::string& right) {
    return base::CompareForSort(left, right) < 0;
}

// The names of a run that are still to be taken.
struct Rest {
    std::vector<std::string>::iterator next;
    std::vector<std::string>::iterator end;
};

// For a heap, whose top is the greatest by its own measure.
bool IsBehind(const Rest& left, const Rest& right) {
    return IsBefore(*right.next, *left.next);
}

}  // namespace

void NameSorter::Add(std::string name) {
    if (runs_.empty()) runs_.emplace_back();
    if (runs_.back().size() == kLongestRun) {
        std::sort(runs_.back().begin(), runs_.back().end(), IsBefore);
        runs_.emplace_back();
    }
    runs_.back().push_back(std::move(name));
}

std::optional<std::vector<std::string>> NameSorter::Sorted(Pace& pace) {
    if (runs_.empty()) return Run();
    std::sort(runs_.back().begin(), runs_.back().end(), IsBefore);
    return runs_.size() == 1 ? std::move(runs_.front()) : Merged(pace);
}

std::optional<std::vector<std::string>> NameSorter::Merged(Pace& pace) {
    std::vector<Rest> rests;
    for (Run& run : runs_)
        rests.push_back({run.begin(), run.end()});
    std::make_heap(rests.begin(), rests.end(), IsBehind);
    std::vector<std::string> names;
    names.reserve(runs_.size() * kLongestRun);
    while (!rests.empty()) {
        if (!pace.Step()) return std::nullopt;
        std::pop_heap(rests.begin(), rests.end(), IsBehind);
        Rest& first = rests.back();
        names.push_back(std::move(*first.next++));
        if (first.next == first.end) {
            rests.pop_back();
        } else {
            std::push_heap(rests.begin(), rests.end(), IsBehind);
        }
    }
    return names;
}

}  // namespace linux
