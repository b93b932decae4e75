// A set of texts that answers one question: seen before? Room is taken once per different text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/RowTexts.h"

namespace library {

class DistinctTexts {
public:
    /// True for the first of equal texts (compared byte for byte).
    bool IsNew(std::string_view text);
    std::size_t Size() const { return texts_.Size(); }
    /// Forgets the texts and gives their room back.
    void Clear();

private:
    // Where a text stands in texts_, counted from 1 so that 0 is a free place, and a part of its hash that
    // spares most comparisons.
    struct Place {
        std::uint32_t text = 0;
        std::uint32_t hash = 0;
    };

    Place& PlaceOf(std::string_view text, std::uint64_t hash);
    void Grow();

    base::RowTexts texts_;
    std::vector<Place> places_;  // their number is a power of two
    std::string_view last_;      // into texts_: rows of one artist mostly stand together
};

}  // namespace library
