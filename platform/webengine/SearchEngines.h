// The public search services a user can choose from. Each takes the words in a field at the end of its
// address.
#pragma once

#include <QLatin1String>
#include <QString>
#include <string>
#include <string_view>

namespace webengine {

struct SearchEngine {
    const char* key;  ///< in the file of the user's choices
    const char* name;
    const char* address;  ///< the escaped words come after it
};

/// The built-in one has the empty key and is not listed here.
inline constexpr SearchEngine kSearchEngines[] = {
    {"brave", "Brave Search", "https://search.brave.com/search?q="},
    {"mojeek", "Mojeek", "https://www.mojeek.com/search?q="},
    {"startpage", "Startpage", "https://www.startpage.com/do/search?q="},
    {"ecosia", "Ecosia", "https://www.ecosia.org/search?q="},
    {"bing", "Bing", "https://www.bing.com/search?q="},
    {"wikipedia", "Wikipedia", "https://en.wikipedia.org/w/index.php?search="},
};

/// Null for an unknown key, and for that of the built-in one.
inline const SearchEngine* SearchEngineOf(const QString& key) {
    for (const SearchEngine& engine : kSearchEngines) {
        if (key == QLatin1String(engine.key)) return &engine;
    }
    return nullptr;
}

/// An address of the given form (PageSettings::search_form), with the same words, at the service of that key;
/// any other address, and any for the built-in service, as it is. An address whose words hold a "(" may lack
/// its last character, as the address row leaves it.
std::string AtSearchEngine(const QString& key, std::string_view form, std::string_view address);

}  // namespace webengine
