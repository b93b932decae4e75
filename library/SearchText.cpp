#include "library/SearchText.h"

#include <algorithm>
#include <array>

#include "base/Text.h"

namespace library {
namespace {

namespace song = store::tblSong;

constexpr std::string_view kDropped = " -";
constexpr std::string_view kDroppedInFilenames = " -'&+()*!";

constexpr std::array kFields = {
    SearchField{"Broad", song::artist, song::title, kDropped},
    SearchField{"Artist", song::artist, std::nullopt, kDropped},
    SearchField{"Title", song::title, std::nullopt, kDropped},
    SearchField{"Filename", song::FilePath, std::nullopt, kDroppedInFilenames},
};

}  // namespace

const SearchField* SearchFieldNamed(std::string_view name) {
    const auto* const field = std::find_if(kFields.begin(), kFields.end(),
                                           [name](const SearchField& one) { return one.name == name; });
    return field == kFields.end() ? nullptr : field;
}

void AppendCleaned(std::string& out, std::string_view text, const SearchField& field) {
    const std::string lower = base::LCase(text);
    std::copy_if(lower.begin(), lower.end(), std::back_inserter(out), [&field](char character) {
        return field.dropped.find(character) == std::string_view::npos;
    });
}

}  // namespace library
