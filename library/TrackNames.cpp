#include "library/TrackNames.h"

#include "base/Text.h"

namespace library {
namespace {

void Drop(std::string& text, std::string_view signs) {
    std::erase_if(text, [signs](char character) { return signs.find(character) != std::string_view::npos; });
}

void Replace(std::string& text, std::string_view from, std::string_view to) {
    if (base::Contains(text, from)) text = base::Replace(text, from, to);
}

}  // namespace

// The order counts: a word that a dropped sign had cut in two goes only when its step comes later.
std::string CorrectedName(std::string_view name) {
    std::string text(name);
    Drop(text, " ");
    text = base::UCase(text);
    Drop(text, "-?'+[]{}*_=&^%$");
    Replace(text, "\u00a3", "");
    Drop(text, "!\".");
    Replace(text, "FEATURING", "");
    Replace(text, "FEAT", "");
    Drop(text, "&(')!,#");
    Replace(text, "FT", "");
    Replace(text, " VS ", " ");  // no blank is left by now
    return text;
}

}  // namespace library
