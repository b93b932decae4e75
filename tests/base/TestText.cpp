#include "base/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace base {
namespace {

using Parts = std::vector<std::string>;

const std::string kCafe = "caf\xC3\xA9";                    // 4 characters, 5 bytes
const std::string kNote = "\xF0\x9F\x8E\xB5";               // 1 character, 4 bytes
const std::string kStray = std::string("a\xFF") + "b\xC3";  // 4 characters: two of them stray bytes

TEST(Text, LengthCountsCharacters) {
    EXPECT_EQ(Len(""), 0U);
    EXPECT_EQ(Len("abc"), 3U);
    EXPECT_EQ(Len(kCafe), 4U);
    EXPECT_EQ(Len(kNote), 1U);
    EXPECT_EQ(Len(kStray), 4U);
    EXPECT_EQ(Len(std::string("a\0b", 3)), 3U);
}

TEST(Text, WhatIsNotUtf8CountsByteByByte) {
    EXPECT_EQ(Len("\xC0\x80"), 2U);  // longer than needed
    EXPECT_EQ(Len("\xE0\x80\xAF"), 3U);
    EXPECT_EQ(Len("\xED\xA0\x80"), 3U);      // half of a pair
    EXPECT_EQ(Len("\xF4\x90\x80\x80"), 4U);  // beyond the last code point
    EXPECT_EQ(Len("\xF8\x88\x80\x80\x80"), 5U);
    EXPECT_EQ(Len("\xE2\x82"), 2U);  // cut off
    EXPECT_EQ(Len("\xE2\x82\xAC"), 1U);
    EXPECT_EQ(Len("\x80\xBF"), 2U);
}

TEST(Text, LeftTakesTheFirstCharacters) {
    EXPECT_EQ(Left("abc", 2), "ab");
    EXPECT_EQ(Left("abc", 0), "");
    EXPECT_EQ(Left("abc", 9), "abc");
    EXPECT_EQ(Left(kCafe, 4), kCafe);
    EXPECT_EQ(Left(kCafe + "s", 4), kCafe);
    EXPECT_EQ(Left("", 3), "");
    EXPECT_EQ(Left(kStray, 2), "a\xFF");
}

TEST(Text, RightTakesTheLastCharacters) {
    EXPECT_EQ(Right("song.mp3", 3), "mp3");
    EXPECT_EQ(Right("abc", 0), "");
    EXPECT_EQ(Right("ab", 3), "ab");
    EXPECT_EQ(Right(kCafe, 1), "\xC3\xA9");
    EXPECT_EQ(Right(kCafe, 4), kCafe);
    EXPECT_EQ(Right("", 3), "");
    EXPECT_EQ(Right(kStray, 1), "\xC3");
}

TEST(Text, MidCountsFromOne) {
    EXPECT_EQ(Mid("abcd", 2, 2), "bc");
    EXPECT_EQ(Mid("abcd", 1), "abcd");
    EXPECT_EQ(Mid("abcd", 4), "d");
    EXPECT_EQ(Mid("abcd", 5), "");
    EXPECT_EQ(Mid("abcd", 99), "");
    EXPECT_EQ(Mid("abcd", 0), "");
    EXPECT_EQ(Mid("abcd", 2, 0), "");
    EXPECT_EQ(Mid(kCafe + "s", 4), "\xC3\xA9s");
    EXPECT_EQ(Mid(kCafe, 5), "");
}

TEST(Text, InStrFindsTheFirstPlace) {
    EXPECT_EQ(InStr("banana", "an"), 2U);
    EXPECT_EQ(InStr("banana", "an", 3), 4U);
    EXPECT_EQ(InStr("banana", "an", 5), 0U);
    EXPECT_EQ(InStr("banana", "x"), 0U);
    EXPECT_EQ(InStr("banana", "banana!"), 0U);
    EXPECT_EQ(InStr("banana", "a", 99), 0U);
    EXPECT_EQ(InStr("banana", "b", 0), 1U);
    EXPECT_EQ(InStr("Banana", "b"), 0U);
    EXPECT_EQ(InStr(kCafe + "-" + kCafe, "-"), 5U);
    EXPECT_EQ(InStr(kCafe + "-" + kCafe, "caf", 2), 6U);
}

TEST(Text, AnEmptyTextIsFoundWhereTheSearchBegins) {
    EXPECT_EQ(InStr("abc", ""), 1U);
    EXPECT_EQ(InStr("abc", "", 3), 3U);
    EXPECT_EQ(InStr("abc", "", 4), 0U);
    EXPECT_EQ(InStr("", ""), 0U);
}

TEST(Text, AByteIsNotFoundInsideACharacter) {
    EXPECT_EQ(InStr(kCafe, "\xA9"), 0U);
    EXPECT_EQ(InStr(kCafe, "\xC3"), 0U);
    EXPECT_EQ(InStr("a\xA9", "\xA9"), 2U);
    EXPECT_FALSE(Contains(kCafe, "\xC3"));
    EXPECT_EQ(InStrRev(kCafe + "\xA9", "\xA9"), 5U);
    EXPECT_EQ(Replace(kCafe, "\xA9", "x"), kCafe);
}

TEST(Text, InStrRevFindsTheLastPlace) {
    EXPECT_EQ(InStrRev("C:\\a\\b", "\\"), 5U);
    EXPECT_EQ(InStrRev("abc", "x"), 0U);
    EXPECT_EQ(InStrRev(kCafe + kCafe, "caf"), 5U);
    EXPECT_EQ(InStrRev("", "x"), 0U);
    EXPECT_EQ(InStrRev("aaa", "aa"), 2U);
}

TEST(Text, TrimTakesBlanksOnly) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta\n"), "\ta\n");
    EXPECT_EQ(Trim("    "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(Trim("\xC2\xA0x"), "\xC2\xA0x");
}

TEST(Text, CaseFollowsUnicode) {
    EXPECT_EQ(LCase("ABC xyz 1"), "abc xyz 1");
    EXPECT_EQ(UCase("ABC xyz 1"), "ABC XYZ 1");
    EXPECT_EQ(LCase("\xC3\x89TOILE"), "\xC3\xA9toile");
    EXPECT_EQ(UCase("\xC3\xA9toile"), "\xC3\x89TOILE");
    EXPECT_EQ(LCase("\xCE\x91\xCE\xA3"), "\xCE\xB1\xCF\x83");  // Greek, also at the end of a word
    EXPECT_EQ(UCase("\xCF\x82"), "\xCE\xA3");
    EXPECT_EQ(LCase("\xD0\x96"), "\xD0\xB6");  // Cyrillic
    EXPECT_EQ(LCase("\xC4\xB0"), "i");         // dotted capital i
    EXPECT_EQ(UCase("\xC4\xB1"), "I");         // dotless small i
    EXPECT_EQ(UCase("\xC3\x9F"), "\xC3\x9F");  // no single capital
    EXPECT_EQ(LCase("\xE1\xBA\x9E"), "\xC3\x9F");
    EXPECT_EQ(UCase("\xC3\xBF"), "\xC5\xB8");
    EXPECT_EQ(LCase("\xE2\x84\xAA"), "k");  // Kelvin sign
    EXPECT_EQ(UCase("\xE1\xBE\x80"), "\xE1\xBE\x88");
    EXPECT_EQ(LCase("\xF0\x90\x90\x80"), "\xF0\x90\x90\xA8");  // Deseret
    EXPECT_EQ(UCase("\xC4\x81\xC4\x83\xC4\x85"), "\xC4\x80\xC4\x82\xC4\x84");
    EXPECT_EQ(UCase("\xE1\xB8\x81"), "\xE1\xB8\x80");
    EXPECT_EQ(LCase("\xC4\x80\xC4\x81"), "\xC4\x81\xC4\x81");
    EXPECT_EQ(LCase("\xE6\x97\xA5" + kNote), "\xE6\x97\xA5" + kNote);
}

TEST(Text, CaseLeavesStrayBytesAlone) {
    EXPECT_EQ(LCase("A\xFF"
                    "B\xC3"),
              "a\xFF"
              "b\xC3");
    EXPECT_EQ(UCase(std::string("a\0b", 3)), std::string("A\0B", 3));
}

TEST(Text, ReplaceDoesNotLookAtWhatItPutIn) {
    EXPECT_EQ(Replace("a  b", "  ", " "), "a b");
    EXPECT_EQ(Replace("a    b", "  ", " "), "a  b");
    EXPECT_EQ(Replace("aaa", "a", "aa"), "aaaaaa");
    EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
    EXPECT_EQ(Replace("abc", "", "x"), "abc");
    EXPECT_EQ(Replace("abc", "b", ""), "ac");
    EXPECT_EQ(Replace("", "b", "x"), "");
    EXPECT_EQ(Replace(kCafe, "\xC3\xA9", "e"), "cafe");
}

TEST(Text, SplitKeepsEmptyParts) {
    EXPECT_EQ(Split("a b  c", " "), (Parts{"a", "b", "", "c"}));
    EXPECT_EQ(Split(" a ", " "), (Parts{"", "a", ""}));
    EXPECT_EQ(Split("a\" \"b", "\" \""), (Parts{"a", "b"}));
    EXPECT_EQ(Split("abc", "x"), (Parts{"abc"}));
    EXPECT_EQ(Split("abc", ""), (Parts{"abc"}));
    EXPECT_EQ(Split("", "x"), Parts{});
    EXPECT_EQ(Split("xx", "x"), (Parts{"", "", ""}));
}

TEST(Text, ASortedListKnowsNoCaseUntilTheTie) {
    EXPECT_LT(CompareForSort("apple", "Banana"), 0);
    EXPECT_LT(CompareForSort("Apple", "banana"), 0);
    EXPECT_GT(CompareForSort("b", "A"), 0);
    EXPECT_EQ(CompareForSort("abc", "abc"), 0);
    EXPECT_LT(CompareForSort("ABC", "abc"), 0);
    EXPECT_LT(CompareForSort("aB", "ab"), 0);
    EXPECT_LT(CompareForSort("Ab", "aB"), 0);
    EXPECT_LT(CompareForSort("ab", "ABC"), 0);
    EXPECT_LT(CompareForSort("", "a"), 0);
    EXPECT_LT(CompareForSort("\xC3\x89", "\xC3\xA9"), 0);
    EXPECT_LT(CompareForSort("\xC3\xA9", "\xC3\x89z"), 0);
    EXPECT_LT(CompareForSort("z", "\xC3\xA9"), 0);
    EXPECT_LT(CompareForSort(kNote, "\xFF"), 0);
}

TEST(Text, TheOrderIsThatOfTheCharactersWhereverTwoTextsPart) {
    constexpr std::string_view kBytes = "aA\xC3\xA9\x89\xE3\x81\x80\xFF";
    std::mt19937 chance(11);
    const auto draw = [&](std::size_t length) {
        std::string text;
        for (std::size_t i = 0; i < length; ++i)
            text += kBytes[chance() % kBytes.size()];
        return text;
    };
    for (int round = 0; round < 20'000; ++round) {
        const std::string front = draw(chance() % 4);
        const std::string left = front + draw(chance() % 4);
        const std::string right = front + draw(chance() % 4);
        std::string left_key;
        std::string right_key;
        AppendSortKey(left_key, left);
        AppendSortKey(right_key, right);

        const int order = CompareForSort(left, right);

        EXPECT_EQ(order, -CompareForSort(right, left));
        EXPECT_EQ(order == 0, left == right);
        if (left_key != right_key) {
            EXPECT_EQ(order < 0, left_key < right_key);
        }
    }
}

TEST(Text, EqualTextsAreNeighboursInASortedList) {
    Parts texts = {"b", "A", "a", "B", "a", "A", "\xC3\x89", "\xC3\xA9", "\xC3\x89", "", "a "};

    std::sort(texts.begin(), texts.end(), [](const std::string& left, const std::string& right) {
        return CompareForSort(left, right) < 0;
    });

    EXPECT_EQ(texts, (Parts{"", "A", "A", "a", "a", "a ", "B", "b", "\xC3\x89", "\xC3\x89", "\xC3\xA9"}));
}

TEST(Text, TextsAreEqualWhateverTheirCase) {
    EXPECT_TRUE(EqualIgnoringCase("ABBA", "abba"));
    EXPECT_TRUE(EqualIgnoringCase("\xC3\x89t\xC3\xA9", "\xC3\xA9T\xC3\x89"));
    EXPECT_TRUE(EqualIgnoringCase("\xE2\x84\xAA", "K"));
    EXPECT_TRUE(EqualIgnoringCase("", ""));
    EXPECT_FALSE(EqualIgnoringCase("abba", "abb"));
    EXPECT_FALSE(EqualIgnoringCase("abb", "abba"));
    EXPECT_FALSE(EqualIgnoringCase("abba", "abbb"));
}

TEST(Text, BeginningEndAndPartAreFound) {
    EXPECT_TRUE(StartsWith("abc", "ab"));
    EXPECT_TRUE(StartsWith("abc", ""));
    EXPECT_FALSE(StartsWith("abc", "b"));
    EXPECT_TRUE(EndsWith("abc", "bc"));
    EXPECT_FALSE(EndsWith("abc", "abcd"));
    EXPECT_TRUE(Contains("abc", "b"));
    EXPECT_TRUE(Contains("abc", ""));
    EXPECT_FALSE(Contains("abc", "B"));
}

TEST(Text, Utf8IsKnown) {
    EXPECT_TRUE(IsUtf8(""));
    EXPECT_TRUE(IsUtf8(kCafe + kNote));
    EXPECT_FALSE(IsUtf8(kStray));
    EXPECT_FALSE(IsUtf8("\xED\xA0\x80"));
}

TEST(Text, LowerAndUpperCaseLeadBackAndForthThroughTheLatinLetters) {
    // "\xC3\x80" to "\xC3\x9E" are capitals, but for the multiplication sign.
    for (int low = 0x80; low <= 0x9E; ++low) {
        const std::string capital = {'\xC3', static_cast<char>(low)};
        const std::string small = {'\xC3', static_cast<char>(low + 0x20)};
        const bool is_letter = low != 0x97;
        EXPECT_EQ(LCase(capital), is_letter ? small : capital);
        EXPECT_EQ(UCase(small), is_letter ? capital : small);
    }
}

TEST(Text, Utf16HasOneUnitForMostCharactersAndTwoForTheRest) {
    EXPECT_EQ(ToUtf16(""), u"");
    EXPECT_EQ(ToUtf16("a\\0"), u"a\\0");
    EXPECT_EQ(ToUtf16(kCafe), u"caf\u00E9");
    EXPECT_EQ(ToUtf16("\xEF\xBF\xBD"), u"\uFFFD");
    EXPECT_EQ(ToUtf16(kNote), (std::u16string{0xD83C, 0xDFB5}));
    EXPECT_EQ(ToUtf16("\xF4\x8F\xBF\xBF"), (std::u16string{0xDBFF, 0xDFFF}));
}

TEST(Text, StrayBytesBecomeTheReplacementInUtf16) {
    EXPECT_EQ(ToUtf16(kStray), u"a\uFFFDb\uFFFD");
    EXPECT_EQ(ToUtf16("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD");
}

}  // namespace
}  // namespace base
