// The addresses that are built into the program.
//
// The maker's pages are shipped inside the program under a scheme of its own, so start page, help, updates
// and backdrop work without a connection. The hosts of the two site logins are names reserved for examples:
// whoever distributes the program fills in their own, and keeps the two lengths that the tests of a page's
// address rely on.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace web {

/// Root of the maker's site, without a slash at the end.
inline constexpr std::string_view MakerSiteUrl = "brindlepost://start";
/// Part of the address of every page of the maker.
inline constexpr std::string_view MakerDomain = "brindlepost://start";
/// Public search services that need no key and take the words in a field `q`.
inline constexpr std::string_view GoogleSearchUrl = "https://duckduckgo.com/";
inline constexpr std::string_view GoogleImagesUrl = "https://www.bing.com/images/search";
/// How the address of the mail login page begins.
inline constexpr std::string_view LiveLoginUrl = "https://login.live.example/sign";
/// The host that the login of the mail site belongs to.
inline constexpr std::string_view LiveLoginHost = "login.live.example";
/// How the address of the other login page ends, with or without a slash.
inline constexpr std::string_view MySpaceHost = "pal.example";

inline constexpr std::size_t kLiveLoginLength = 31;
inline constexpr std::size_t kMySpaceHostLength = 11;

inline constexpr std::string_view kBackdropQuery = "/?referrer=quennet&origin=Brindlepost_BG";
inline constexpr std::string_view kHomeQuery = "/?referrer=quennet&origin=Brindlepost";
inline constexpr std::string_view kUpdatesQuery =
    "/index.php?page=applications&page2=brindlepost&page3=updates&referrer=quennet&origin=Brindlepost";
inline constexpr std::string_view kHelpQuery =
    "/index.php?page=applications&page2=brindlepost&page3=help&referrer=quennet&origin=Brindlepost";

/// An address of the maker's site.
std::string MakerAddress(std::string_view query);

/// Text as the search pages take it: trimmed, each blank a "+". Nothing else is escaped.
std::string SearchWords(std::string_view text);

/// The address of a web search; `words` come from SearchWords, `more` is put after them as it is.
std::string SearchAddress(std::string_view words, std::string_view more = {});

/// The address of a picture search.
std::string ImagesAddress(std::string_view words);

}  // namespace web
