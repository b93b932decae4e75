#include "web/Addresses.h"

#include "base/Text.h"

namespace web {

static_assert(LiveLoginUrl.size() == kLiveLoginLength);
static_assert(MySpaceHost.size() == kMySpaceHostLength);

namespace {

std::string QueryAddress(std::string_view site, std::string_view words, std::string_view more) {
    std::string address(site);
    address.append("?hl=en&q=").append(words).append(more).append("&btnG=Google+Search&meta=");
    return address;
}

}  // namespace

std::string MakerAddress(std::string_view query) {
    return std::string(MakerSiteUrl).append(query);
}

std::string SearchWords(std::string_view text) {
    return base::Replace(base::Trim(text), " ", "+");
}

std::string SearchAddress(std::string_view words, std::string_view more) {
    return QueryAddress(GoogleSearchUrl, words, more);
}

std::string ImagesAddress(std::string_view words) {
    return QueryAddress(GoogleImagesUrl, words, {});
}

}  // namespace web
