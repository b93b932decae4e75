#include "library/CleanedSongs.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <cstring>

#include "base/Text.h"

namespace library {
namespace {

constexpr store::Bookmark kRowsOfChunk = 8192;
constexpr std::size_t kBlock = 64;

std::uint64_t RewritesOf(const SearchRule& rule, const store::RecordSet& songs) {
    return songs.Rewrites(rule.first) + (rule.second ? songs.Rewrites(*rule.second) : 0);
}

constexpr std::size_t kWord = sizeof(std::uint64_t);
static_assert(kBlock == kWord * kWord, "a bit a byte");

// A bit for each of eight bytes, the first the lowest; each byte is 0 or 1.
std::uint64_t BitsOf(const unsigned char* bytes) {
    std::uint64_t word = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&word, bytes, kWord);
    } else {
        for (std::size_t i = 0; i < kWord; ++i)
            word |= std::uint64_t{bytes[i]} << (kWord * i);
    }
    // The product has byte i in its bit 56 + i.
    constexpr std::uint64_t kGather = 0x0102040810204080;
    return (word * kGather) >> 56U;
}

// The places of a block, a bit each, where a text with this first and last byte may begin. Plain enough for
// wide registers.
std::uint64_t MayBegin(const char* block, char first, char last, std::size_t distance) {
    std::array<unsigned char, kBlock> may_begin;  // NOLINT(cppcoreguidelines-pro-type-member-init)
    unsigned char any = 0;
    for (std::size_t i = 0; i < kBlock; ++i) {
        may_begin[i] = static_cast<unsigned char>((block[i] == first) & (block[i + distance] == last));
        any |= may_begin[i];
    }
    if (any == 0) return 0;
    std::uint64_t places = 0;
    for (std::size_t word = 0; word < kWord; ++word)
        places |= BitsOf(may_begin.data() + word * kWord) << (word * kWord);
    return places;
}

// As text.find(wanted, from), in large steps over what cannot begin the wanted text.
class Finder {
public:
    Finder(std::string_view text, std::string_view wanted) : text_(text), wanted_(wanted) {}

    // `from` never falls.
    std::size_t Find(std::size_t from) {
        const std::size_t distance = wanted_.size() - 1;
        while (begin_ + kBlock + distance <= text_.size()) {
            if (!is_read_) Read(distance);
            if (from > begin_) places_ &= from - begin_ < kBlock ? ~std::uint64_t{0} << (from - begin_) : 0;
            for (; places_ != 0; places_ &= places_ - 1) {
                const std::size_t at = begin_ + static_cast<std::size_t>(std::countr_zero(places_));
                if (IsAt(at)) return at;
            }
            begin_ += kBlock;
            is_read_ = false;
        }
        return text_.find(wanted_, std::max(from, begin_));
    }

private:
    // The first and the last byte are known to be right.
    bool IsAt(std::size_t at) const {
        return wanted_.size() <= 2 || std::memcmp(text_.data() + at, wanted_.data(), wanted_.size()) == 0;
    }
    void Read(std::size_t distance) {
        places_ = MayBegin(text_.data() + begin_, wanted_.front(), wanted_.back(), distance);
        is_read_ = true;
    }

    std::string_view text_;
    std::string_view wanted_;
    std::size_t begin_ = 0;     // of the block
    std::uint64_t places_ = 0;  // of the block where the text may begin, those before `from` left out
    bool is_read_ = false;
};

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
    Finder finder(texts, wanted);
    std::size_t from = 0;
    auto row = chunk.ends.begin();
    for (std::size_t at = finder.Find(0); at != std::string_view::npos; at = finder.Find(from)) {
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
