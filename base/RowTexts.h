// A long list of short texts, kept close together: 8 bytes a row besides its characters.
//
// A view of a row stays valid until that row or the whole list goes, or Insert, Erase or PushBack tidies up;
// so take a copy before changing the list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace base {

class RowTexts {
public:
    std::size_t Size() const { return rows_.size(); }
    bool Empty() const { return rows_.empty(); }
    /// The text of a row; the row must exist.
    std::string_view At(std::size_t row) const;
    void PushBack(std::string_view text);
    /// Before `row`; at the end when `row` is the size.
    void Insert(std::size_t row, std::string_view text);
    void Erase(std::size_t row);
    void Clear();
    /// Stable order by `less`.
    void Sort(const std::function<bool(std::string_view, std::string_view)>& less);
    /// First row that is not less than `text` in a list sorted by `less`.
    std::size_t LowerBound(std::string_view text,
                           const std::function<bool(std::string_view, std::string_view)>& less) const;

private:
    using Reference = const char*;  // to a 4-byte length and the characters behind it

    Reference Store(std::string_view text);
    static std::string_view Text(Reference reference);
    void TidyUp();

    std::vector<Reference> rows_;
    std::vector<std::unique_ptr<char[]>> blocks_;
    std::size_t block_size_ = 0;
    std::size_t block_used_ = 0;
    std::size_t live_bytes_ = 0;
    std::size_t dead_bytes_ = 0;
};

}  // namespace base
