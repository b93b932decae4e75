#include "library/SearchText.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using library::RuleOf;
using library::SearchField;

std::string Cleaned(SearchField field, std::string_view text) {
    std::string cleaned;
    library::AppendCleaned(cleaned, text, RuleOf(field));
    return cleaned;
}

TEST(SearchText, EachFieldHasARuleOfItsName) {
    EXPECT_EQ(RuleOf(SearchField::Broad).text, "Broad");
    EXPECT_EQ(RuleOf(SearchField::Artist).text, "Artist");
    EXPECT_EQ(RuleOf(SearchField::Title).text, "Title");
    EXPECT_EQ(RuleOf(SearchField::Filename).text, "Filename");
}

TEST(SearchText, CleaningMakesLowerCaseAndTakesBlanksAndHyphensOut) {
    for (const SearchField field : {SearchField::Artist, SearchField::Title, SearchField::Broad})
        EXPECT_EQ(Cleaned(field, " Ac-DC's (Live) & \u00c9! "), "acdc's(live)&\u00e9!") << RuleOf(field).text;
}

TEST(SearchText, FileNamesLoseSomeSignsToo) {
    EXPECT_EQ(Cleaned(SearchField::Filename, "C:\\It's R&B + (Live) *1*!.mp3"), "c:\\itsrblive1.mp3");
}

TEST(SearchText, TheKelvinSignAndTheDottedIHaveSmallLettersOfAscii) {
    EXPECT_EQ(Cleaned(SearchField::Title, "\u212aISS \u0130z"), "kissiz");
}

TEST(SearchText, ACleanedTextIsPutBehindWhatIsThere) {
    std::string text = "A ";

    library::AppendCleaned(text, "B C", RuleOf(SearchField::Title));

    EXPECT_EQ(text, "A bc");
}

}  // namespace
