#include "library/DistinctTexts.h"

#include <functional>

namespace library {
namespace {

constexpr std::size_t kFirstPlaces = 64;
constexpr std::size_t kManyTexts = 65'536;

std::uint32_t Tag(std::uint64_t hash) {
    return static_cast<std::uint32_t>(hash >> 32U);
}

}  // namespace

bool DistinctTexts::MayBeNew(std::string_view text) {
    if (has_given_up_) return true;
    if (++asked_ == kManyTexts && 2 * texts_.Size() > kManyTexts) has_given_up_ = true;
    return has_given_up_ || IsNew(text);
}

bool DistinctTexts::IsNew(std::string_view text) {
    if (!texts_.Empty() && text == last_) return false;
    const std::size_t known = texts_.Size();
    last_ = texts_.At(NumberOf(text));
    return texts_.Size() > known;
}

std::uint32_t DistinctTexts::NumberOf(std::string_view text) {
    if (2 * (texts_.Size() + 1) > places_.size()) Grow();
    const std::uint64_t hash = std::hash<std::string_view>{}(text);
    Place& place = places_[PlaceOf(text, hash)];
    if (place.text == 0) {
        texts_.PushBack(text);
        place = {static_cast<std::uint32_t>(texts_.Size()), Tag(hash)};
    }
    return place.text - 1;
}

std::optional<std::uint32_t> DistinctTexts::Find(std::string_view text) const {
    if (places_.empty()) return std::nullopt;
    const Place& place = places_[PlaceOf(text, std::hash<std::string_view>{}(text))];
    if (place.text == 0) return std::nullopt;
    return place.text - 1;
}

// The place of the text, or the free one that it would take.
std::size_t DistinctTexts::PlaceOf(std::string_view text, std::uint64_t hash) const {
    const std::size_t mask = places_.size() - 1;
    std::size_t at = hash & mask;
    while (places_[at].text != 0 &&
           (places_[at].hash != Tag(hash) || texts_.At(places_[at].text - 1) != text)) {
        at = (at + 1) & mask;
    }
    return at;
}

void DistinctTexts::Grow() {
    places_.assign(places_.empty() ? kFirstPlaces : 2 * places_.size(), Place());
    const std::size_t mask = places_.size() - 1;
    for (std::size_t text = 0; text < texts_.Size(); ++text) {
        const std::uint64_t hash = std::hash<std::string_view>{}(texts_.At(text));
        std::size_t at = hash & mask;
        while (places_[at].text != 0)
            at = (at + 1) & mask;
        places_[at] = {static_cast<std::uint32_t>(text + 1), Tag(hash)};
    }
}

void DistinctTexts::Clear() {
    *this = {};
}

}  // namespace library
