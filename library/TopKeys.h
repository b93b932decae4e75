// The keys of the most played songs: the play count in at least five digits, a gap, and the SongID. They sort
// as texts, so that equal counts stand in the text order of their ids.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace library {

class TopKeys {
public:
    /// Keeps the last `most` keys in the order of a sorted list.
    explicit TopKeys(std::size_t most) : most_(most) {}

    /// A song; one that was never played makes no key.
    void Offer(std::string_view play_count, std::string_view song_id);
    /// The kept keys, the last one first.
    std::vector<std::string> Keys() const;

    /// The SongID in a key.
    static std::string_view SongIdOf(std::string_view key);

private:
    struct Key {
        std::int64_t count;
        std::string song_id;
        std::string text;
    };

    bool StandsBehind(std::int64_t count, std::string_view song_id, const Key& key) const;

    std::size_t most_;
    std::vector<Key> keys_;  // the last one of a sorted list first
};

}  // namespace library
