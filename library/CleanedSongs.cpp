#include "library/CleanedSongs.h"

#include <algorithm>
#include <cassert>

#include "base/Text.h"

namespace library {
namespace {

constexpr store::Bookmark kRowsOfChunk = 8192;
constexpr std::size_t kBlock = 64;

std::uint64_t RewritesOf(const SearchRule& rule, const store::RecordSet& songs) {
    return songs.Rewrites(rule.first) + (rule.second ? songs.Rewrites(*rule.second) : 0);
}

// Whether a text with this first and last byte may begin in the block; plain enough for wide registers.
bool MayBegin(const char* block, char first, char last, std::size_t distance) {
    unsigned char any = 0;
    for (std::size_t i = 0; i < kBlock; ++i) {
        const bool may_begin = (block[i] == first) & (block[i + distance] == last);
        any |= static_cast<unsigned char>(may_begin);
    }
    return any != 0;
}

// As text.find(wanted, from), in large steps over what cannot begin the wanted text.
std::size_t Find(std::string_view text, std::string_view wanted, std::size_t from) {
    const std::size_t distance = wanted.size() - 1;
    while (from + kBlock + distance <= text.size()) {
        if (MayBegin(text.data() + from, wanted.front(), wanted.back(), distance)) {
            const std::size_t found = text.substr(from, kBlock + distance).find(wanted);
            if (found != std::string_view::npos) return from + found;
        }
        from += kBlock;
    }
    return text.find(wanted, from);
}

using Ends = std::vector<std::uint32_t>;

// As std::upper_bound(row, ends.end(), at), in growing steps: the row of the next find is mostly near.
Ends::const_iterator RowAt(const Ends& ends, Ends::const_iterator row, std::size_t at) {
    std::ptrdiff_t step = 1;
    for (; step < ends.end() - row && row[step - 1] <= at; step *= 2)
        row += step;
    return std::upper_bound(row, row + std::min(step, ends.end() - row), at);
}

}  // namespace

bool CleanedSongs::Prepare(const SearchRule& rule, store::RecordSet& songs, std::size_t most) {
    const store::Bookmark end = songs.EndOfBookmarks();
    if (rule_ != &rule || rewrites_ != RewritesOf(rule, songs) || end < prepared_) {
        Forget();
        rule_ = &rule;
        rewrites_ = RewritesOf(rule, songs);
    }
    for (; prepared_ < end && most > 0; ++prepared_, --most) {
        if (songs.MoveTo(prepared_)) {
            AddRow(songs);
        } else {
            Append({});
        }
    }
    return prepared_ == end;
}

void CleanedSongs::AddRow(const store::RecordSet& song) {
    if (!rule_->second) {
        Append(song.Text(rule_->first));
        return;
    }
    joined_.assign(song.Text(rule_->first)).append(song.Text(*rule_->second));
    Append(joined_);
}

void CleanedSongs::Append(std::string_view text) {
    if (chunks_.empty() || chunks_.back().ends.size() == kRowsOfChunk) {
        if (!chunks_.empty()) chunks_.back().texts.shrink_to_fit();
        chunks_.emplace_back();
        chunks_.back().ends.reserve(kRowsOfChunk);
    }
    Chunk& chunk = chunks_.back();
    AppendCleaned(chunk.texts, text, *rule_);
    chunk.ends.push_back(static_cast<std::uint32_t>(chunk.texts.size()));
}

std::vector<store::Bookmark> CleanedSongs::RowsWith(std::string_view wanted) const {
    assert(!wanted.empty());
    std::vector<store::Bookmark> found;
    store::Bookmark first_row = 0;
    for (const Chunk& chunk : chunks_) {
        FindIn(chunk, wanted, first_row, found);
        first_row += kRowsOfChunk;
    }
    return found;
}

// A text that is no valid UTF-8 could be found inside of a character: it is looked for once more, slowly.
void CleanedSongs::FindIn(const Chunk& chunk, std::string_view wanted, store::Bookmark first_row,
                          std::vector<store::Bookmark>& found) {
    const std::string_view texts = chunk.texts;
    const bool is_utf8 = base::IsUtf8(wanted);
    std::size_t from = 0;
    auto row = chunk.ends.begin();
    for (std::size_t at = Find(texts, wanted, 0); at != std::string_view::npos;
         at = Find(texts, wanted, from)) {
        row = RowAt(chunk.ends, row, at);
        from = at + 1;
        if (at + wanted.size() > *row) continue;  // it goes on in the next row
        const std::size_t begin = row == chunk.ends.begin() ? 0 : *(row - 1);
        if (is_utf8 || base::Contains(texts.substr(begin, *row - begin), wanted))
            found.push_back(first_row + static_cast<store::Bookmark>(row - chunk.ends.begin()));
        from = *row;
    }
}

void CleanedSongs::Forget() {
    *this = {};
}

}  // namespace library
