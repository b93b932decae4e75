// The texts of a table's rows, kept close together: one short header a row, no allocation a text.
//
// Rows lie one after another in blocks. A row that grows moves to the end; a block without rows gives its
// memory back, so a pass that changes or deletes every row never holds the table twice.
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace store {

class RowStorage {
public:
    /// Where a row's texts lie.
    struct Place {
        std::uint32_t block = 0;
        std::uint32_t offset = 0;
    };

    explicit RowStorage(std::size_t columns) : columns_(columns) {}

    /// Keeps a row of one text a column.
    Place Add(std::span<const std::string_view> texts);
    /// Other texts for a kept row, some of which may be views of that very row. Returns where it lies now.
    Place Replace(Place place, std::span<const std::string_view> texts);
    void Remove(Place place);
    /// Puts a row after all others, so that the block it leaves can become empty. Returns where it lies now.
    Place MoveToEnd(Place place);
    /// The view holds until the row is replaced or removed.
    std::string_view Text(Place place, std::size_t column) const;
    /// Where a row begins, for who wants it from memory before it is read.
    const char* Begin(Place place) const { return At(place); }
    /// Memory held, in bytes.
    std::size_t BytesHeld() const { return bytes_held_; }
    /// Bytes of it that no row uses any more.
    std::size_t BytesWasted() const { return bytes_held_ - bytes_used_; }

private:
    struct Block {
        std::unique_ptr<char[]> bytes;
        std::uint32_t size = 0;
        std::uint32_t filled = 0;
        std::uint32_t rows = 0;
    };

    char* At(Place place) const {
        assert(place.block < blocks_.size() && place.offset < blocks_[place.block].filled);
        return blocks_[place.block].bytes.get() + place.offset;
    }
    std::size_t StoredSize(const char* row) const;
    void Encode(std::span<const std::string_view> texts);
    Place Keep();
    void OpenBlock(std::size_t bytes);
    void Release(std::uint32_t block);

    std::size_t columns_;
    std::vector<Block> blocks_;
    std::vector<std::uint32_t> empty_blocks_;
    std::uint32_t open_block_ = 0;
    std::vector<char> encoded_;  // the row being kept
    std::size_t bytes_held_ = 0;
    std::size_t bytes_used_ = 0;
};

// A row is one byte with the width of a number (1, 2 or 4), the end of each text counted from the
// first, and the texts.

inline std::string_view RowStorage::Text(Place place, std::size_t column) const {
    assert(column < columns_);
    const char* const row = At(place);
    const auto width = static_cast<unsigned char>(row[0]);
    const char* const ends = row + 1;
    const char* const texts = ends + columns_ * width;
    const auto end_of = [ends, width](std::size_t text) -> std::size_t {
        const char* const place_of_end = ends + text * width;
        if (width == 1) return static_cast<unsigned char>(*place_of_end);
        if (width == 2) {
            const auto low = static_cast<unsigned char>(place_of_end[0]);
            const auto high = static_cast<unsigned char>(place_of_end[1]);
            return static_cast<std::size_t>(low | (high << 8U));
        }
        std::size_t end = 0;
        for (unsigned byte = 4; byte > 0; --byte) {
            end = (end << 8U) | static_cast<unsigned char>(place_of_end[byte - 1]);
        }
        return end;
    };
    const std::size_t begin = column == 0 ? 0 : end_of(column - 1);
    return {texts + begin, end_of(column) - begin};
}

}  // namespace store
