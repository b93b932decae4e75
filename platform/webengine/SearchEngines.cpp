#include "platform/webengine/SearchEngines.h"

#include <optional>

#include "platform/webengine/PageSettings.h"

namespace webengine {
namespace {

/// What is between the two parts; nothing where they are not there.
std::optional<std::string_view> Between(std::string_view before, std::string_view address,
                                        std::string_view after) {
    if (address.size() < before.size() + after.size()) return std::nullopt;
    if (!address.starts_with(before) || !address.ends_with(after)) return std::nullopt;
    address.remove_prefix(before.size());
    address.remove_suffix(after.size());
    return address;
}

/// The words of a search. What holds a bracket is taken for a row of the history, "Title (address)", and
/// comes without its last character.
std::optional<std::string_view> WordsOf(std::string_view before, std::string_view address,
                                        std::string_view after) {
    const auto words = Between(before, address, after);
    if (words || after.empty()) return words;
    const auto cut = Between(before, address, after.substr(0, after.size() - 1));
    return cut && cut->find('(') != std::string_view::npos ? cut : std::nullopt;
}

}  // namespace

std::string AtSearchEngine(const QString& key, std::string_view form, std::string_view address) {
    const SearchEngine* const engine = SearchEngineOf(key);
    const std::size_t place = form.find(kSearchWords);
    if (engine == nullptr || place == std::string_view::npos) return std::string(address);
    const std::string_view before = form.substr(0, place);
    const std::string_view after = form.substr(place + kSearchWords.size());
    const auto words = WordsOf(before, address, after);
    return words ? std::string(engine->address).append(*words) : std::string(address);
}

}  // namespace webengine
