// Texts are lower-cased once, sixteen bytes of each make two numbers, and the numbers are sorted: they lie
// side by side, the texts anywhere. Only texts with equal numbers are looked at again, sixteen bytes further
// on.
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

/// Bytes of a text as two numbers, which compare as the bytes do.
struct Head {
    std::uint64_t first;
    std::uint64_t second;

    bool operator==(const Head&) const = default;
    bool operator<(const Head& other) const {
        return first != other.first ? first < other.first : second < other.second;
    }
};

constexpr std::size_t kHeadBytes = sizeof(Head);
// So few texts are compared pair by pair.
constexpr std::size_t kFew = 8;

class ListOrder {
public:
    explicit ListOrder(const std::vector<std::string_view>& texts) : texts_(texts) {
        items_.reserve(texts.size());
        ends_.reserve(texts.size());
        std::size_t bytes = 0;
        for (const std::string_view text : texts)
            bytes += text.size();
        keys_.reserve(bytes);
        for (const std::string_view text : texts) {
            items_.push_back({{}, static_cast<std::uint32_t>(items_.size())});
            AppendSortKey(keys_, text);
            ends_.push_back(keys_.size());
        }
        Sort(items_, 0);
    }
    std::vector<std::string_view> Sorted() const {
        std::vector<std::string_view> sorted;
        sorted.reserve(items_.size());
        for (const Item& item : items_)
            sorted.push_back(texts_[item.text]);
        return sorted;
    }

private:
    struct Item {
        Head head;
        std::uint32_t text;
    };
    using Items = std::span<Item>;

    std::string_view Key(const Item& item) const {
        const std::size_t begin = item.text == 0 ? 0 : ends_[item.text - 1];
        return std::string_view(keys_).substr(begin, ends_[item.text] - begin);
    }

    // The bytes of the key from `depth` on; behind its end are zeros.
    Head HeadAt(const Item& item, std::size_t depth) const {
        const std::string_view key = Key(item);
        std::array<unsigned char, kHeadBytes> bytes{};
        if (key.size() > depth)
            std::memcpy(bytes.data(), key.data() + depth, std::min(kHeadBytes, key.size() - depth));
        return {Number(bytes.data()), Number(bytes.data() + sizeof(std::uint64_t))};
    }
    static std::uint64_t Number(const unsigned char* bytes) {
        std::uint64_t number = 0;
        for (std::size_t i = 0; i < sizeof number; ++i)
            number = number << 8U | bytes[i];
        return number;
    }

    // Keys that are equal before `depth`.
    void Sort(Items items, std::size_t depth) {
        const bool all_ended = std::none_of(items.begin(), items.end(),
                                            [&](const Item& item) { return Key(item).size() > depth; });
        if (items.size() <= kFew || all_ended) {
            std::sort(items.begin(), items.end(), [this](const Item& one, const Item& other) {
                return CompareForSort(texts_[one.text], texts_[other.text]) < 0;
            });
            return;
        }
        for (Item& item : items)
            item.head = HeadAt(item, depth);
        std::sort(items.begin(), items.end(),
                  [](const Item& one, const Item& other) { return one.head < other.head; });
        SortEqualHeads(items, depth + kHeadBytes);
    }

    void SortEqualHeads(Items items, std::size_t depth) {
        for (std::size_t begin = 0; begin < items.size();) {
            std::size_t end = begin + 1;
            while (end < items.size() && items[end].head == items[begin].head)
                ++end;
            if (end - begin > 1) Sort(items.subspan(begin, end - begin), depth);
            begin = end;
        }
    }

    const std::vector<std::string_view>& texts_;
    std::vector<Item> items_;
    std::string keys_;  // of all texts, one behind another
    std::vector<std::size_t> ends_;
};

}  // namespace

void SortForList(std::vector<std::string_view>& texts) {
    texts = ListOrder(texts).Sorted();
}

}  // namespace base
