// What a search of the library compares: cleaned text, never raw text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "store/RecordSet.h"
#include "store/Tables.h"

namespace library {

/// In the order in which the checked entry of the search menu is looked for.
enum class SearchField { Broad, Artist, Title, Filename };

/// What a field searches: one of a song's texts or two of them joined, and what cleaning takes out.
struct SearchRule {
    SearchField field;
    std::string_view text;  ///< the field's name, as the search box shows it
    store::Field first;
    std::optional<store::Field> second;
    std::string_view dropped;
};

/// The same object for the same field.
const SearchRule& RuleOf(SearchField field);

/// Appends a text as the search of that field sees it to `out`: in lower case, without blanks and "-"; for
/// file names also without ' & + ( ) * !.
void AppendCleaned(std::string& out, std::string_view text, const SearchRule& rule);

}  // namespace library
