#include "platform/webengine/SearchEngines.h"

#include <gtest/gtest.h>

namespace {

using webengine::AtSearchEngine;

constexpr std::string_view kForm = "https://search.example/search?hl=en&q={words}&meta=";
const QString kMojeek = QStringLiteral("mojeek");

TEST(SearchEngines, ASearchOfTheProgramGoesToTheChosenService) {
    EXPECT_EQ(AtSearchEngine(kMojeek, kForm, "https://search.example/search?hl=en&q=owls+&+larks&meta="),
              "https://www.mojeek.com/search?q=owls+&+larks");
}

TEST(SearchEngines, ASearchForWordsInBracketsLosesTheLastCharacterAndGoesThereAsWell) {
    EXPECT_EQ(AtSearchEngine(kMojeek, kForm, "https://search.example/search?hl=en&q=owls+(larks)&meta"),
              "https://www.mojeek.com/search?q=owls+(larks)");
    EXPECT_EQ(AtSearchEngine(kMojeek, kForm, "https://search.example/search?hl=en&q=(&meta="),
              "https://www.mojeek.com/search?q=(");
}

TEST(SearchEngines, OfAFormThatEndsWithTheWordsNothingIsLost) {
    EXPECT_EQ(AtSearchEngine(kMojeek, "https://search.example/?q={words}", "https://search.example/?q=a+(b)"),
              "https://www.mojeek.com/search?q=a+(b)");
}

TEST(SearchEngines, EveryOtherAddressStays) {
    for (const char* address :
         {"https://search.example/search?q=owls", "https://owl.example/", "",
          "https://search.example/search?hl=en&q=owls", "https://search.example/search?hl=en&q=&meta",
          "https://search.example/search?hl=en&q=owls&meta",
          "https://search.example/search?hl=en&q=(owls&met", "https://search.example/search?hl=en&q=(owls)"})
        EXPECT_EQ(AtSearchEngine(kMojeek, kForm, address), address);
}

TEST(SearchEngines, TheBuiltInServiceAndAnUnknownOneStay) {
    const std::string address = "https://search.example/search?hl=en&q=owls&meta=";

    EXPECT_EQ(AtSearchEngine(QString(), kForm, address), address);
    EXPECT_EQ(AtSearchEngine(QStringLiteral("teeth"), kForm, address), address);
    EXPECT_EQ(AtSearchEngine(kMojeek, "", address), address);
}

TEST(SearchEngines, EachIsEncryptedAndEndsWhereTheWordsBegin) {
    for (const webengine::SearchEngine& engine : webengine::kSearchEngines) {
        const QString address = QLatin1String(engine.address);
        EXPECT_TRUE(address.startsWith(QStringLiteral("https://"))) << engine.key;
        EXPECT_TRUE(address.endsWith(QLatin1Char('='))) << engine.key;
        EXPECT_EQ(webengine::SearchEngineOf(QLatin1String(engine.key)), &engine);
    }
}

}  // namespace
