// A window shape that remembers every hole it was given.
#pragma once

#include <optional>
#include <vector>

#include "ports/Windows.h"

namespace fakes {

class RecordingWindowShape final : public ports::WindowShape {
public:
    void SetHole(const std::optional<ports::Hole>& hole) override { Holes.push_back(hole); }

    /// In the order they came; std::nullopt is the whole window.
    std::vector<std::optional<ports::Hole>> Holes;
};

}  // namespace fakes
