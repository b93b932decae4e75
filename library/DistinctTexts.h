// A set of texts that answers one question: seen before? Room is taken once per different text.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace library {

class DistinctTexts {
public:
    /// True for the first of equal texts (compared byte for byte).
    bool IsNew(std::string_view text);
    std::size_t Size() const { return texts_.size(); }
    void Clear();

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };

    std::unordered_set<std::string, Hash, std::equal_to<>> texts_;
    std::string_view last_;  // into texts_: rows of one artist mostly stand together
};

}  // namespace library
