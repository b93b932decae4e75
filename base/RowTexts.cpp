#include "base/RowTexts.h"

#include <algorithm>
#include <cassert>
#include <cstring>
#include <functional>
#include <iterator>
#include <limits>

#include "base/ListOrder.h"
#include "base/Text.h"

namespace base {
namespace {

constexpr std::size_t kFirstBlock = 4U << 10U;
constexpr std::size_t kLargestBlock = 1U << 20U;
constexpr std::size_t kRowsAhead = 8;  // so long takes a row to come from memory
// Below this, room of erased rows is not worth a walk over all rows.
constexpr std::size_t kWorthTidying = 1U << 20U;

std::size_t StoredBytes(std::string_view text) {
    return sizeof(std::uint32_t) + text.size();
}

}  // namespace

std::string_view RowTexts::Text(Reference reference) {
    std::uint32_t length = 0;
    std::memcpy(&length, reference, sizeof length);
    return {reference + sizeof length, length};
}

std::string_view RowTexts::At(std::size_t row) const {
    assert(row < rows_.size());
    // Rows in order lie anywhere in memory, and whoever asks for one mostly asks for the next ones too.
    if (row + kRowsAhead < rows_.size()) __builtin_prefetch(rows_[row + kRowsAhead]);
    return Text(rows_[row]);
}

void RowTexts::OpenBlock(std::size_t bytes) {
    used_before_ += block_used_;
    block_used_ = 0;
    while (open_blocks_ < blocks_.size()) {
        if (blocks_[open_blocks_++].size >= bytes) return;
    }
    const std::size_t last = blocks_.empty() ? 0 : blocks_.back().size;
    const std::size_t size = std::max(bytes, std::clamp(last * 2, kFirstBlock, kLargestBlock));
    blocks_.push_back({std::make_unique_for_overwrite<char[]>(size), size});
    open_blocks_ = blocks_.size();
}

RowTexts::Reference RowTexts::Store(std::initializer_list<std::string_view> parts) {
    std::uint32_t length = 0;
    for (const std::string_view part : parts) {
        assert(part.size() <= std::numeric_limits<std::uint32_t>::max() - length);
        length += static_cast<std::uint32_t>(part.size());
    }
    const std::size_t bytes = sizeof length + length;
    if (open_blocks_ == 0 || block_used_ + bytes > blocks_[open_blocks_ - 1].size) OpenBlock(bytes);
    char* const place = blocks_[open_blocks_ - 1].bytes.get() + block_used_;
    std::memcpy(place, &length, sizeof length);
    char* end = place + sizeof length;
    for (const std::string_view part : parts)
        end = std::copy(part.begin(), part.end(), end);
    block_used_ += bytes;
    return place;
}

void RowTexts::PushBack(std::initializer_list<std::string_view> parts) {
    rows_.push_back(Store(parts));
}

void RowTexts::Insert(std::size_t row, std::string_view text) {
    assert(row <= rows_.size());
    const Reference reference = Store({text});
    rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(row), reference);
}

void RowTexts::Erase(std::size_t row) {
    assert(row < rows_.size());
    const std::size_t bytes = StoredBytes(At(row));
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(row));
    dead_bytes_ += bytes;
    if (dead_bytes_ > kWorthTidying && 2 * dead_bytes_ > used_before_ + block_used_) TidyUp();
}

void RowTexts::Clear() {
    rows_.clear();
    open_blocks_ = block_used_ = used_before_ = dead_bytes_ = 0;
}

/// Block by block, and the references moved along: a fraction of the cost of text by text.
void RowTexts::CopyFrom(const RowTexts& other) {
    if (this == &other) return;
    std::vector<BlockMove> moves = CopyBlocks(other);
    std::sort(moves.begin(), moves.end(), [](const BlockMove& left, const BlockMove& right) {
        return std::less<>()(left.from, right.from);
    });
    rows_.resize(other.rows_.size());
    const BlockMove* move = nullptr;  // most rows stand in the block of the row before
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        const Reference original = other.rows_[row];
        if (move == nullptr || !move->Holds(original)) {
            move = &*std::prev(std::upper_bound(
                moves.begin(), moves.end(), original,
                [](Reference wanted, const BlockMove& one) { return std::less<>()(wanted, one.from); }));
        }
        rows_[row] = move->to + (original - move->from);
    }
}

std::vector<RowTexts::BlockMove> RowTexts::CopyBlocks(const RowTexts& other) {
    std::vector<BlockMove> moves;
    blocks_.clear();
    open_blocks_ = other.open_blocks_;
    block_used_ = other.block_used_;
    used_before_ = other.used_before_;
    dead_bytes_ = other.dead_bytes_;
    for (std::size_t block = 0; block < open_blocks_; ++block) {
        const Block& original = other.blocks_[block];
        blocks_.push_back({std::make_unique_for_overwrite<char[]>(original.size), original.size});
        char* const bytes = blocks_.back().bytes.get();
        std::memcpy(bytes, original.bytes.get(), block + 1 == open_blocks_ ? block_used_ : original.size);
        moves.push_back({original.bytes.get(), original.size, bytes});
    }
    return moves;
}

void RowTexts::Sort() {
    std::vector<std::string_view> texts;
    texts.reserve(rows_.size());
    for (const Reference row : rows_)
        texts.push_back(Text(row));
    SortForList(texts);
    std::transform(texts.begin(), texts.end(), rows_.begin(),
                   [](std::string_view text) { return text.data() - sizeof(std::uint32_t); });
}

std::size_t RowTexts::LowerBound(std::string_view text) const {
    const auto found = std::lower_bound(
        rows_.begin(), rows_.end(), text,
        [](Reference row, std::string_view wanted) { return CompareForSort(Text(row), wanted) < 0; });
    return static_cast<std::size_t>(found - rows_.begin());
}

void RowTexts::TidyUp() {
    const std::vector<Reference> old_rows = std::move(rows_);
    const std::vector<Block> old_blocks = std::move(blocks_);
    rows_.clear();
    blocks_.clear();
    Clear();
    rows_.reserve(old_rows.size());
    for (const Reference row : old_rows)
        rows_.push_back(Store({Text(row)}));
}

}  // namespace base
