// A set of texts, numbered from 0 in the order in which they came. Room is taken once per different text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "base/RowTexts.h"

namespace library {

class DistinctTexts {
public:
    /// False for a text that came before (compared byte for byte). Where more than half of very many texts
    /// were new, looking for each costs more than it spares: from then on every text is called new, and none
    /// is put into the set.
    bool MayBeNew(std::string_view text);
    /// The number of a text, which is put into the set if it is not there.
    std::uint32_t NumberOf(std::string_view text);
    /// The number of a text that is there.
    std::optional<std::uint32_t> Find(std::string_view text) const;
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

    bool IsNew(std::string_view text);
    std::size_t PlaceOf(std::string_view text, std::uint64_t hash) const;
    void Grow();

    base::RowTexts texts_;
    std::vector<Place> places_;  // their number is a power of two
    std::string_view last_;      // into texts_: rows of one artist mostly stand together
    std::size_t asked_ = 0;
    bool has_given_up_ = false;
};

}  // namespace library
