// What a search of the library compares: cleaned text, never raw text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "store/RecordSet.h"
#include "store/Tables.h"

namespace library {

/// A field that can be searched: one of a song's texts or two of them joined, and what cleaning takes out.
struct SearchField {
    std::string_view name;
    store::Field first;
    std::optional<store::Field> second;
    std::string_view dropped;
};

/// "Broad", "Artist", "Title" or "Filename"; null for any other name.
const SearchField* SearchFieldNamed(std::string_view name);

/// Puts a text as the search of that field sees it behind `out`: in lower case, without blanks and "-"; for
/// file names also without ' & + ( ) * !.
void AppendCleaned(std::string& out, std::string_view text, const SearchField& field);

}  // namespace library
