// The library as the track matcher needs it: which song has which corrected names.
//
// A song's artist fits when it occurs in the letter "a" followed by the artist that is looked for, its title
// when it occurs in the letter "c" followed by the title; both letters belong to it. So few names can fit
// that every part of the looked-for text is tried, which costs no walk over the songs.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "library/DistinctTexts.h"
#include "store/RecordSet.h"

namespace library {

class TrackIndex {
public:
    /// The first song in table order whose names fit the corrected names, as the table is now.
    std::optional<store::Bookmark> FirstMatch(store::RecordSet& songs, std::string_view artist,
                                              std::string_view title);

private:
    using Numbers = std::vector<std::uint32_t>;

    /// Corrected names, each known by a number.
    class Names {
    public:
        std::uint32_t NumberOf(std::string_view name);
        /// The names that occur in a text.
        Numbers In(std::string_view text) const;

    private:
        DistinctTexts texts_;
        std::size_t longest_ = 0;
    };

    /// The songs of one pair of names.
    struct Songs {
        store::Bookmark first;
        store::Bookmark last;
    };

    void Update(store::RecordSet& songs);
    void Add(const store::RecordSet& song);
    std::optional<store::Bookmark> FirstLeft(store::RecordSet& songs, const Songs& pair) const;

    Names artists_;
    Names titles_;
    std::unordered_map<std::uint64_t, Songs> pairs_;
    std::vector<store::Bookmark> next_;  // by bookmark: the next song of the same names; itself for the last
    std::uint64_t rewrites_ = 0;
};

}  // namespace library
