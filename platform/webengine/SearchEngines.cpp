#include "platform/webengine/SearchEngines.h"

#include "platform/webengine/PageSettings.h"

namespace webengine {

std::string AtSearchEngine(const QString& key, std::string_view form, std::string_view address) {
    const SearchEngine* const engine = SearchEngineOf(key);
    const std::size_t place = form.find(kSearchWords);
    if (engine == nullptr || place == std::string_view::npos) return std::string(address);
    const std::string_view before = form.substr(0, place);
    const std::string_view after = form.substr(place + kSearchWords.size());
    const bool is_search = address.size() >= before.size() + after.size() && address.starts_with(before) &&
                           address.ends_with(after);
    if (!is_search) return std::string(address);
    address.remove_prefix(before.size());
    address.remove_suffix(after.size());
    return std::string(engine->address).append(address);
}

}  // namespace webengine
