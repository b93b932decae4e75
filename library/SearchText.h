// One search of the library: a cleaned text that is looked for in the cleaned field of every song.
//
// Cleaning makes lower case and drops blanks and "-"; for file names also ' & + ( ) * !. A row is not cleaned
// to be searched: the scan skips what cleaning would drop. Only a row with letters beyond ASCII that matter
// to the text is cleaned into a buffer first.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
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
    /// Whether two texts, joined, contain it.
    bool IsIn(std::string_view front, std::string_view back);

private:
    enum class Answer { No, Yes, CleanFirst };
    enum class Mark : unsigned char { None, FirstOfText, NeedsCleaning };

    SearchText(store::Field first, std::optional<store::Field> second, std::string_view dropped,
               std::string_view text);

    void AppendCleaned(std::string_view text);
    void SetMarks();
    Answer Scan(std::string_view text, std::string_view rest) const;
    Answer ScanEach(std::string_view text, std::string_view rest) const;
    Answer ScanBlock(std::string_view text, std::size_t start, std::string_view rest) const;
    Answer LookAt(std::string_view text, std::size_t place, std::string_view rest) const;
    bool ContinuesIn(std::string_view text, std::string_view rest) const;
    bool NeedsCleaning(std::string_view text) const;

    store::Field first_;
    std::optional<store::Field> second_;
    std::array<char, 256> kept_{};  // a byte as the search sees it; 0 for a dropped one
    std::array<Mark, 256> marks_{};
    std::uint64_t first_in_each_ = 0;  // the first byte of the searched text, eight times
    bool ascii_ = true;
    std::string needle_;
    std::string cleaned_;
};

}  // namespace library
