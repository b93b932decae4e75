// A long list of short texts, packed: 8 bytes a row besides its characters.
//
// A view of a row stays valid until that row or the whole list goes, or Insert, Erase or PushBack tidies up;
// so take a copy before changing the list. A cleared list keeps its room for the next rows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
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
    void PushBack(std::string_view text) { PushBack({text}); }
    /// The parts joined as one text.
    void PushBack(std::initializer_list<std::string_view> parts);
    /// Before `row`; at the end when `row` is the size.
    void Insert(std::size_t row, std::string_view text);
    void Erase(std::size_t row);
    void Clear();
    /// Takes over all rows of another list.
    void CopyFrom(const RowTexts& other);
    /// In the order of a sorted list (CompareForSort).
    void Sort();
    /// The first row of a sorted list that does not sort before `text`.
    std::size_t LowerBound(std::string_view text) const;

private:
    using Reference = const char*;  // to a 4-byte length and the characters after it

    struct Block {
        std::unique_ptr<char[]> bytes;
        std::size_t size = 0;
    };

    struct BlockMove {
        Reference from;
        std::size_t size;
        char* to;
        bool Holds(Reference reference) const {
            return !std::less<>()(reference, from) && std::less<>()(reference, from + size);
        }
    };

    std::vector<BlockMove> CopyBlocks(const RowTexts& other);
    Reference Store(std::initializer_list<std::string_view> parts);
    void OpenBlock(std::size_t bytes);
    static std::string_view Text(Reference reference);
    void TidyUp();

    std::vector<Reference> rows_;
    std::vector<Block> blocks_;
    std::size_t open_blocks_ = 0;  // the last of them takes rows, those after it wait
    std::size_t block_used_ = 0;
    std::size_t used_before_ = 0;  // bytes of the blocks before it
    std::size_t dead_bytes_ = 0;
};

}  // namespace base
