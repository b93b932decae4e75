#include "store/FirstRows.h"

#include <bitset>
#include <cstddef>
#include <string_view>
#include <unordered_map>

namespace store {
namespace {

constexpr std::size_t kSketches = 4096;

// A number of a text that differs for most different texts, at a fraction of the cost of comparing them.
std::size_t Sketch(std::string_view text) {
    std::size_t sketch = text.size();
    if (!text.empty()) {
        sketch = sketch * 31 + static_cast<unsigned char>(text.back());
        sketch = sketch * 31 + static_cast<unsigned char>(text[text.size() / 2]);
        sketch = sketch * 31 + static_cast<unsigned char>(text[text.size() * 3 / 4]);
    }
    return sketch % kSketches;
}

}  // namespace

std::vector<std::optional<Bookmark>> FirstRowsWith(RecordSet& rows, Field field,
                                                   const std::vector<std::string>& texts) {
    std::vector<std::optional<Bookmark>> found(texts.size());
    std::bitset<kSketches> sketches;
    std::unordered_map<std::string_view, std::size_t> places;  // of the first of equal texts
    for (std::size_t i = 0; i < texts.size(); ++i) {
        sketches.set(Sketch(texts[i]));
        places.try_emplace(texts[i], i);
    }
    std::size_t missing = places.size();
    for (rows.MoveFirst(); !rows.Eof() && missing > 0; rows.MoveNext()) {
        const std::string_view value = rows.Text(field);
        if (!sketches.test(Sketch(value))) continue;
        const auto place = places.find(value);
        if (place == places.end() || found[place->second]) continue;
        found[place->second] = rows.CurrentBookmark();
        --missing;
    }
    for (std::size_t i = 0; i < texts.size(); ++i)
        found[i] = found[places.at(texts[i])];
    return found;
}

}  // namespace store
