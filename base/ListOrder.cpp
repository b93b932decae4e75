// The first sixteen bytes of each text, lower-cased, make two numbers, and the numbers are sorted: they lie
// side by side, the texts anywhere. Many numbers are put in order byte by byte, few by comparing them. Only
// texts with equal numbers are looked at again, sixteen bytes further on.
#include "base/ListOrder.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>

#include "base/Text.h"

namespace base {
namespace {

constexpr std::size_t kNumberBytes = sizeof(std::uint64_t);

/// Bytes of a text as two numbers, which compare as the bytes do.
struct Head {
    std::uint64_t first;
    std::uint64_t second;

    bool operator==(const Head&) const = default;
    bool operator<(const Head& other) const {
        return first != other.first ? first < other.first : second < other.second;
    }
    std::size_t Byte(std::size_t at) const {
        const std::uint64_t number = at < kNumberBytes ? first : second;
        return number >> (kNumberBytes - 1 - at % kNumberBytes) * 8U & 0xffU;
    }
};

constexpr std::size_t kHeadBytes = sizeof(Head);
constexpr std::size_t kByteValues = 256;
// So few texts are compared pair by pair.
constexpr std::size_t kFew = 8;
// So few heads lie in the nearest memory, where comparing them is quicker than moving them byte by byte.
constexpr std::size_t kFewHeads = 1024;

// A number with `byte` in each of its bytes.
constexpr std::uint64_t Each(std::uint64_t byte) {
    return byte * 0x0101010101010101U;
}

std::uint64_t Number(const unsigned char* bytes) {
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < kNumberBytes; ++i)
        number = number << 8U | bytes[i];
    return number;
}

// The bytes from `depth` on; after the end are zeros.
Head HeadOf(std::string_view bytes, std::size_t depth) {
    std::array<unsigned char, kHeadBytes> head{};
    if (bytes.size() > depth)
        std::memcpy(head.data(), bytes.data() + depth, std::min(kHeadBytes, bytes.size() - depth));
    return {Number(head.data()), Number(head.data() + kNumberBytes)};
}

bool IsAscii(const Head& head) {
    return ((head.first | head.second) & Each(0x80)) == 0;
}

// All eight characters, which are ASCII, at once.
std::uint64_t LowerAscii(std::uint64_t characters) {
    const std::uint64_t from_a = characters + Each(0x80 - 'A');
    const std::uint64_t beyond_z = characters + Each(0x80 - 'Z' - 1);
    return characters | (from_a & ~beyond_z & Each(0x80)) >> 2U;
}

class ListOrder {
public:
    explicit ListOrder(const std::vector<std::string_view>& texts) {
        items_.reserve(texts.size());
        for (const std::string_view text : texts)
            items_.push_back({FirstHead(text), text.data(), static_cast<std::uint32_t>(text.size()), 0});
        SortHeads(items_);
        SortEqualHeads(items_, 0);
    }
    void Write(std::vector<std::string_view>& texts) const {
        std::transform(items_.begin(), items_.end(), texts.begin(), TextOf);
    }

private:
    struct Item {
        Head head;
        const char* text;
        std::uint32_t size;
        std::uint32_t key;  // its place in ends_
    };
    using Items = std::span<Item>;

    static std::string_view TextOf(const Item& item) { return {item.text, item.size}; }

    Head FirstHead(std::string_view text) {
        const Head head = HeadOf(text, 0);
        if (IsAscii(head)) return {LowerAscii(head.first), LowerAscii(head.second)};
        keys_.clear();
        AppendSortKey(keys_, text);
        return HeadOf(keys_, 0);
    }

    void SortHeads(Items items) {
        if (items.size() <= kFewHeads) {
            std::sort(items.begin(), items.end(),
                      [](const Item& one, const Item& other) { return one.head < other.head; });
            return;
        }
        const std::size_t byte = FirstDifference(items);
        if (byte == kHeadBytes) return;
        std::array<std::size_t, kByteValues> ends{};
        for (const Item& item : items)
            ++ends[item.head.Byte(byte)];
        std::array<std::size_t, kByteValues> begins{};
        for (std::size_t value = 1; value < kByteValues; ++value) {
            begins[value] = ends[value - 1];
            ends[value] += ends[value - 1];
        }
        MoveToTheirValues(items, byte, begins, ends);
        for (std::size_t value = 0, begin = 0; value < kByteValues; begin = ends[value++])
            if (ends[value] - begin > 1) SortHeads(items.subspan(begin, ends[value] - begin));
    }

    // The first byte in which any of the heads differ.
    static std::size_t FirstDifference(Items items) {
        Head differences{};
        for (const Item& item : items) {
            differences.first |= item.head.first ^ items.front().head.first;
            differences.second |= item.head.second ^ items.front().head.second;
        }
        std::size_t byte = 0;
        while (byte < kHeadBytes && differences.Byte(byte) == 0)
            ++byte;
        return byte;
    }

    // `begins` are the places that are free next.
    static void MoveToTheirValues(Items items, std::size_t byte, std::array<std::size_t, kByteValues>& begins,
                                  const std::array<std::size_t, kByteValues>& ends) {
        for (std::size_t value = 0; value < kByteValues; ++value) {
            while (begins[value] < ends[value]) {
                Item item = items[begins[value]];
                for (std::size_t wanted = item.head.Byte(byte); wanted != value;
                     wanted = item.head.Byte(byte))
                    std::swap(item, items[begins[wanted]++]);
                items[begins[value]++] = item;
            }
        }
    }

    // Heads that were taken at `depth`.
    void SortEqualHeads(Items items, std::size_t depth) {
        for (std::size_t begin = 0; begin < items.size();) {
            std::size_t end = begin + 1;
            while (end < items.size() && items[end].head == items[begin].head)
                ++end;
            if (end - begin > 1) SortFurtherOn(items.subspan(begin, end - begin), depth);
            begin = end;
        }
    }

    // Texts whose heads at `depth` are equal.
    void SortFurtherOn(Items items, std::size_t depth) {
        const auto compare = [](const Item& one, const Item& other) {
            return CompareForSort(TextOf(one), TextOf(other)) < 0;
        };
        if (items.size() <= kFew) {
            std::sort(items.begin(), items.end(), compare);
            return;
        }
        if (depth == 0) MakeKeys(items);
        const std::size_t next = depth + kHeadBytes;
        if (std::none_of(items.begin(), items.end(),
                         [&](const Item& item) { return Key(item).size() > next; })) {
            std::sort(items.begin(), items.end(), compare);
            return;
        }
        for (Item& item : items)
            item.head = HeadOf(Key(item), next);
        SortHeads(items);
        SortEqualHeads(items, next);
    }

    // For these alone: few texts share their beginning with others.
    void MakeKeys(Items items) {
        keys_.clear();
        ends_.clear();
        for (Item& item : items) {
            item.key = static_cast<std::uint32_t>(ends_.size());
            AppendSortKey(keys_, TextOf(item));
            ends_.push_back(keys_.size());
        }
    }
    std::string_view Key(const Item& item) const {
        const std::size_t begin = item.key == 0 ? 0 : ends_[item.key - 1];
        return std::string_view(keys_).substr(begin, ends_[item.key] - begin);
    }

    std::vector<Item> items_;
    std::string keys_;  // one after another
    std::vector<std::size_t> ends_;
};

}  // namespace

void SortForList(std::vector<std::string_view>& texts) {
    ListOrder(texts).Write(texts);
}

}  // namespace base
