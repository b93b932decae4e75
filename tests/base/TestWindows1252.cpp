#include "base/Windows1252.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "base/Text.h"

namespace base {
namespace {

const std::string kMark = "\xEF\xBB\xBF";

TEST(Windows1252, PlainLettersAreTheSameBothWays) {
    const std::string text = "Foo - Bar\r\n\tend~\x7F";

    EXPECT_EQ(DecodeFileText(text), text);
    EXPECT_EQ(EncodeFileText(text), text);
    EXPECT_EQ(DecodeFileText(""), "");
    EXPECT_EQ(EncodeFileText(""), "");
}

TEST(Windows1252, TheCodePageIsReadAndWritten) {
    const std::vector<std::pair<std::string, std::string>> pairs = {
        {"\x80", "\u20AC"},  // the euro sign
        {"\x85\x92", "\u2026\u2019"},
        {"\x8A\x9A\x8E\x9E", "\u0160\u0161\u017D\u017E"},
        {"\x9F", "\u0178"},
        {"\xA0\xC4\xE9\xFF", "\u00A0\u00C4\u00E9\u00FF"},
        {std::string("a\0b", 3), std::string("a\0b", 3)},
    };

    for (const auto& [bytes, text] : pairs) {
        EXPECT_EQ(DecodeFileText(bytes), text);
        EXPECT_EQ(EncodeFileText(text), bytes);
    }
}

TEST(Windows1252, EachOf256BytesIsReadAsACharacterOfItsOwnAndWrittenAgain) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);

    const std::string text = DecodeFileText(all);

    EXPECT_TRUE(IsUtf8(text));
    EXPECT_EQ(Len(text), 256U);
    EXPECT_EQ(EncodeFileText(text), all);
}

TEST(Windows1252, TheFiveOpenBytesAreTheControlCharactersOfTheirNumber) {
    EXPECT_EQ(DecodeFileText("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}

TEST(Windows1252, AMarkedFileIsUtf8AndLosesItsMarkOnce) {
    EXPECT_EQ(DecodeFileText(kMark + "\u0416 - \u20AC"), "\u0416 - \u20AC");
    EXPECT_EQ(DecodeFileText(kMark), "");
    EXPECT_EQ(DecodeFileText(kMark + kMark + "a"), kMark + "a");
    EXPECT_TRUE(HasUtf8Mark(kMark + "a"));
    EXPECT_FALSE(HasUtf8Mark("\xEF\xBB"));
}

TEST(Windows1252, AFileWithoutAMarkIsNeverTakenForUtf8) {
    EXPECT_EQ(DecodeFileText("\xC3\xA9"), "\u00C3\u00A9");
}

TEST(Windows1252, ATextThatDoesNotFitIsWrittenAsMarkedUtf8) {
    for (const std::string text : {"\u0416", "a\u4E16b", "\U0001F3B5", "\u0080", "\uFFFD", "a\xFFz"})
        EXPECT_EQ(EncodeFileText(text), kMark + text);
}

TEST(Windows1252, ATextThatWouldBeginLikeTheMarkIsMarked) {
    const std::string text = "\u00EF\u00BB\u00BF - a";

    EXPECT_EQ(EncodeFileText(text), kMark + text);
    EXPECT_EQ(DecodeFileText(EncodeFileText(text)), text);
}

TEST(Windows1252, WhatIsWrittenIsReadAsTheSameText) {
    std::mt19937 random(14);
    const std::vector<std::string> pieces = {"a",      " - ",    "\r\n",   "\u20AC",     "\u00EF", "\u00BB",
                                             "\u00BF", "\u0081", "\u0416", "\U0001F3B5", "\xFF",   "\u0080"};
    for (int round = 0; round < 2000; ++round) {
        std::string text;
        const auto kinds = std::uniform_int_distribution<std::size_t>(1, pieces.size())(random);
        for (int i = std::uniform_int_distribution<int>(0, 8)(random); i > 0; --i)
            text += pieces.at(std::uniform_int_distribution<std::size_t>(0, kinds - 1)(random));

        EXPECT_EQ(DecodeFileText(EncodeFileText(text)), text);
    }
}

}  // namespace
}  // namespace base
