// One searched field of every song, cleaned and kept close together, so that a search is one pass over bytes
// that lie side by side.
//
// It is made when a search needs it and follows the table: songs that came are added, songs that went are
// skipped by whoever looks their row up, and when a song got another text all is made again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "library/SearchText.h"
#include "store/RecordSet.h"

namespace library {

class CleanedSongs {
public:
    /// Cleans the searched texts of at most `most` more songs. True when none is left.
    bool Prepare(const SearchRule& rule, store::RecordSet& songs, std::size_t most);
    /// The rows prepared so far whose texts contain a cleaned text, in table order; some of them may be gone
    /// from the table. The text must not be empty.
    std::vector<store::Bookmark> RowsWith(std::string_view wanted) const;
    /// Frees the memory.
    void Forget();

private:
    // The texts of consecutive rows, one after another; a row that is gone has an empty one.
    struct Chunk {
        std::string texts;
        std::vector<std::uint32_t> ends;
    };

    void AddRow(const store::RecordSet& song);
    void Append(std::string_view text);
    static void FindIn(const Chunk& chunk, std::string_view wanted, store::Bookmark first_row,
                       std::vector<store::Bookmark>& found);

    const SearchRule* rule_ = nullptr;
    std::uint64_t rewrites_ = 0;  // of the fields, when they were prepared
    std::vector<Chunk> chunks_;   // each but the last holds the same number of rows
    store::Bookmark prepared_ = 0;
    std::string joined_;
};

}  // namespace library
