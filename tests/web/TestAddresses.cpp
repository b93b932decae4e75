#include <gtest/gtest.h>

#include "base/Text.h"
#include "web/Addresses.h"

namespace {

TEST(Addresses, TheLiveLoginAddressHasAsManyCharactersAsTheTestOnItTakes) {
    EXPECT_EQ(base::Len(web::LiveLoginUrl), 31U);
    EXPECT_EQ(web::kLiveLoginLength, 31U);
}

TEST(Addresses, TheMySpaceHostHasAsManyCharactersAsTheTestOnItTakes) {
    EXPECT_EQ(base::Len(web::MySpaceHost), 11U);
    EXPECT_EQ(web::kMySpaceHostLength, 11U);
}

TEST(Addresses, TheMakersDomainStandsInEveryAddressOfTheMaker) {
    for (const auto query :
         {std::string_view("/"), web::kBackdropQuery, web::kHelpQuery, web::kUpdatesQuery}) {
        EXPECT_NE(base::InStr(web::MakerAddress(query), web::MakerDomain), 0U) << query;
    }
}

TEST(Addresses, TheMakersSiteEndsWithoutASlash) {
    EXPECT_FALSE(base::EndsWith(web::MakerSiteUrl, "/"));
}

TEST(Addresses, SearchWordsAreTrimmedAndBlanksBecomePlus) {
    EXPECT_EQ(web::SearchWords("  a b  c "), "a+b++c");
}

TEST(Addresses, SearchWordsAreNotEscapedFurther) {
    EXPECT_EQ(web::SearchWords("rock & roll?"), "rock+&+roll?");
}

TEST(Addresses, ASearchAddressCarriesWordsAndAddition) {
    EXPECT_EQ(web::SearchAddress("a+b", "+Lyrics"),
              std::string(web::GoogleSearchUrl) + "?hl=en&q=a+b+Lyrics&btnG=Google+Search&meta=");
}

TEST(Addresses, APictureSearchGoesToItsOwnEndpoint) {
    EXPECT_EQ(web::ImagesAddress("owl"),
              std::string(web::GoogleImagesUrl) + "?hl=en&q=owl&btnG=Google+Search&meta=");
}

}  // namespace
