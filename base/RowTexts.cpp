#include "base/RowTexts.h"

#include <algorithm>
#include <cassert>
#include <cstring>

namespace base {
namespace {

constexpr std::size_t kFirstBlock = 4U << 10U;
constexpr std::size_t kLargestBlock = 1U << 20U;
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
    return Text(rows_[row]);
}

RowTexts::Reference RowTexts::Store(std::string_view text) {
    const std::size_t bytes = StoredBytes(text);
    if (block_used_ + bytes > block_size_) {
        block_size_ = std::max(bytes, std::clamp(block_size_ * 2, kFirstBlock, kLargestBlock));
        blocks_.push_back(std::make_unique<char[]>(block_size_));
        block_used_ = 0;
    }
    char* const place = blocks_.back().get() + block_used_;
    const auto length = static_cast<std::uint32_t>(text.size());
    std::memcpy(place, &length, sizeof length);
    if (!text.empty()) std::memcpy(place + sizeof length, text.data(), text.size());
    block_used_ += bytes;
    live_bytes_ += bytes;
    return place;
}

void RowTexts::PushBack(std::string_view text) {
    rows_.push_back(Store(text));
}

void RowTexts::Insert(std::size_t row, std::string_view text) {
    assert(row <= rows_.size());
    const Reference reference = Store(text);
    rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(row), reference);
}

void RowTexts::Erase(std::size_t row) {
    assert(row < rows_.size());
    const std::size_t bytes = StoredBytes(At(row));
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(row));
    live_bytes_ -= bytes;
    dead_bytes_ += bytes;
    if (dead_bytes_ > kWorthTidying && dead_bytes_ > live_bytes_) TidyUp();
}

void RowTexts::Clear() {
    rows_.clear();
    rows_.shrink_to_fit();
    blocks_.clear();
    block_size_ = block_used_ = live_bytes_ = dead_bytes_ = 0;
}

void RowTexts::Sort(const std::function<bool(std::string_view, std::string_view)>& less) {
    std::stable_sort(rows_.begin(), rows_.end(),
                     [&less](Reference left, Reference right) { return less(Text(left), Text(right)); });
}

std::size_t RowTexts::LowerBound(std::string_view text,
                                 const std::function<bool(std::string_view, std::string_view)>& less) const {
    const auto found =
        std::lower_bound(rows_.begin(), rows_.end(), text,
                         [&less](Reference row, std::string_view wanted) { return less(Text(row), wanted); });
    return static_cast<std::size_t>(found - rows_.begin());
}

void RowTexts::TidyUp() {
    const std::vector<Reference> old_rows = std::move(rows_);
    const std::vector<std::unique_ptr<char[]>> old_blocks = std::move(blocks_);
    rows_.clear();
    blocks_.clear();
    block_size_ = block_used_ = live_bytes_ = dead_bytes_ = 0;
    rows_.reserve(old_rows.size());
    for (const Reference row : old_rows)
        rows_.push_back(Store(Text(row)));
}

}  // namespace base
