#include "store/RowStorage.h"

#include <algorithm>
#include <cassert>
#include <cstring>

namespace store {
namespace {

constexpr std::size_t kFirstBlock = 4U << 10U;
constexpr std::size_t kLargestBlock = 256U << 10U;

std::size_t WidthFor(std::size_t length) {
    if (length <= 0xFF) return 1;
    return length <= 0xFFFF ? 2 : 4;
}

}  // namespace

std::size_t RowStorage::StoredSize(const char* row) const {
    const auto width = static_cast<unsigned char>(row[0]);
    std::size_t length = 0;
    for (std::size_t byte = width; byte > 0 && columns_ > 0; --byte) {
        length = (length << 8U) | static_cast<unsigned char>(row[(columns_ - 1) * width + byte]);
    }
    return 1 + columns_ * width + length;
}

void RowStorage::Encode(std::span<const std::string_view> texts) {
    assert(texts.size() == columns_);
    std::size_t length = 0;
    for (const std::string_view text : texts)
        length += text.size();
    const std::size_t width = WidthFor(length);
    encoded_.resize(1 + columns_ * width + length);
    encoded_[0] = static_cast<char>(width);
    char* end_place = encoded_.data() + 1;
    char* text_place = end_place + columns_ * width;
    std::size_t end = 0;
    for (const std::string_view text : texts) {
        end += text.size();
        for (std::size_t byte = 0; byte < width; ++byte) {
            *end_place++ = static_cast<char>((end >> (8U * byte)) & 0xFFU);
        }
        text_place = std::copy(text.begin(), text.end(), text_place);
    }
}

void RowStorage::OpenBlock(std::size_t bytes) {
    const std::size_t last = blocks_.empty() ? 0 : blocks_[open_block_].size;
    const std::size_t size = std::max(bytes, std::clamp(last * 2, kFirstBlock, kLargestBlock));
    if (!blocks_.empty() && blocks_[open_block_].rows == 0) Release(open_block_);
    if (empty_blocks_.empty()) {
        open_block_ = static_cast<std::uint32_t>(blocks_.size());
        blocks_.emplace_back();
    } else {
        open_block_ = empty_blocks_.back();
        empty_blocks_.pop_back();
    }
    blocks_[open_block_] = {std::make_unique_for_overwrite<char[]>(size), static_cast<std::uint32_t>(size), 0,
                            0};
    bytes_held_ += size;
}

RowStorage::Place RowStorage::Keep() {
    const std::size_t bytes = encoded_.size();
    if (blocks_.empty() || blocks_[open_block_].filled + bytes > blocks_[open_block_].size) OpenBlock(bytes);
    Block& block = blocks_[open_block_];
    const Place place{open_block_, block.filled};
    block.filled += static_cast<std::uint32_t>(bytes);
    std::memcpy(At(place), encoded_.data(), bytes);
    ++block.rows;
    bytes_used_ += bytes;
    return place;
}

RowStorage::Place RowStorage::Add(std::span<const std::string_view> texts) {
    Encode(texts);
    return Keep();
}

RowStorage::Place RowStorage::Replace(Place place, std::span<const std::string_view> texts) {
    Encode(texts);
    const std::size_t old_bytes = StoredSize(At(place));
    if (encoded_.size() <= old_bytes) {
        std::memcpy(At(place), encoded_.data(), encoded_.size());
        bytes_used_ -= old_bytes - encoded_.size();
        return place;
    }
    const Place moved = Keep();
    Remove(place);
    return moved;
}

void RowStorage::Remove(Place place) {
    bytes_used_ -= StoredSize(At(place));
    Block& block = blocks_[place.block];
    assert(block.rows > 0);
    if (--block.rows > 0) return;
    if (place.block == open_block_) {
        block.filled = 0;
        return;
    }
    Release(place.block);
}

void RowStorage::Release(std::uint32_t block) {
    bytes_held_ -= blocks_[block].size;
    blocks_[block] = {};
    empty_blocks_.push_back(block);
}

RowStorage::Place RowStorage::MoveToEnd(Place place) {
    const char* const row = At(place);
    encoded_.assign(row, row + StoredSize(row));
    const Place moved = Keep();
    Remove(place);
    return moved;
}

}  // namespace store
