#include "library/TopKeys.h"

#include <algorithm>
#include <charconv>

#include "base/Number.h"
#include "base/Text.h"

namespace library {
namespace {

constexpr int kCountDigits = 5;
constexpr std::int64_t kFirstOfMoreDigits = 100'000;
constexpr std::string_view kGap = "         ";

// The value of a text, at once when it is digits only.
std::int64_t CountOf(std::string_view text) {
    std::int64_t count = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    if (error == std::errc() && end == text.data() + text.size()) return count;
    return base::WholeVal(text);
}

std::string TextOf(std::int64_t count, std::string_view song_id) {
    return base::Padded(count, kCountDigits).append(kGap).append(song_id);
}

}  // namespace

void TopKeys::Offer(std::string_view play_count, std::string_view song_id) {
    if (play_count.empty()) return;
    const std::int64_t count = CountOf(play_count);
    if (count <= 0) return;
    if (keys_.size() == most_ && !StandsBehind(count, song_id, keys_.back())) return;
    const auto place = std::find_if(keys_.begin(), keys_.end(),
                                    [&](const Key& key) { return StandsBehind(count, song_id, key); });
    keys_.insert(place, {count, std::string(song_id), TextOf(count, song_id)});
    if (keys_.size() > most_) keys_.pop_back();
}

// Counts of five digits need no texts to be compared.
bool TopKeys::StandsBehind(std::int64_t count, std::string_view song_id, const Key& key) const {
    if (count < kFirstOfMoreDigits && key.count < kFirstOfMoreDigits) {
        if (count != key.count) return count > key.count;
        return base::CompareForSort(song_id, key.song_id) > 0;
    }
    return base::CompareForSort(TextOf(count, song_id), key.text) > 0;
}

std::vector<std::string> TopKeys::Keys() const {
    std::vector<std::string> texts;
    texts.reserve(keys_.size());
    for (const Key& key : keys_)
        texts.push_back(key.text);
    return texts;
}

std::string_view TopKeys::SongIdOf(std::string_view key) {
    const std::size_t gap = key.find(kGap);
    return gap == std::string_view::npos ? std::string_view() : key.substr(gap + kGap.size());
}

}  // namespace library
