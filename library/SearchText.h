// One search of the library: a cleaned text that is looked for in the cleaned field of every song.
//
// Cleaning makes lower case and drops blanks and "-"; for file names also ' & + ( ) * !. A row is cleaned
// into one buffer that is used again for the next row.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "store/RecordSet.h"
#include "store/Tables.h"

namespace library {

class SearchText {
public:
    /// A search by "Artist", "Title", "Broad" (artist and title joined) or "Filename"; nothing for any other
    /// field.
    static std::optional<SearchText> For(std::string_view field, std::string_view text);

    /// Whether the song that `rows` stands on contains the text.
    bool Matches(const store::RecordSet& rows);

private:
    SearchText(store::Field first, std::optional<store::Field> second, std::string_view dropped,
               std::string_view text);

    void Clean(std::string_view text);
    void Append(std::string_view text);
    bool FitsAscii(std::string_view text);

    store::Field first_;
    std::optional<store::Field> second_;
    std::array<char, 128> kept_{};  // the lower-case letter of each ASCII character, 0 for a dropped one
    std::string needle_;
    std::string cleaned_;
    std::size_t used_ = 0;
};

}  // namespace library
