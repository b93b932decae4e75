#include "library/SearchText.h"

#include <algorithm>
#include <array>
#include <cassert>

#include "base/Text.h"

namespace library {
namespace {

namespace song = store::tblSong;

constexpr std::string_view kDropped = " -";
constexpr std::string_view kDroppedInFilenames = " -'&+()*!";

constexpr std::array kRules = {
    SearchRule{SearchField::Broad, "Broad", song::artist, song::title, kDropped},
    SearchRule{SearchField::Artist, "Artist", song::artist, std::nullopt, kDropped},
    SearchRule{SearchField::Title, "Title", song::title, std::nullopt, kDropped},
    SearchRule{SearchField::Filename, "Filename", song::FilePath, std::nullopt, kDroppedInFilenames},
};

}  // namespace

const SearchRule& RuleOf(SearchField field) {
    const auto* const rule = std::find_if(kRules.begin(), kRules.end(),
                                          [field](const SearchRule& one) { return one.field == field; });
    assert(rule != kRules.end());
    return *rule;
}

void AppendCleaned(std::string& out, std::string_view text, const SearchRule& rule) {
    const std::string lower = base::LCase(text);
    std::copy_if(lower.begin(), lower.end(), std::back_inserter(out),
                 [&rule](char character) { return rule.dropped.find(character) == std::string_view::npos; });
}

}  // namespace library
