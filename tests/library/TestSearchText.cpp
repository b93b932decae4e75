#include "library/SearchText.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Cleaned(std::string_view field, std::string_view text) {
    std::string cleaned;
    library::AppendCleaned(cleaned, text, *library::SearchFieldNamed(field));
    return cleaned;
}

TEST(SearchText, OnlyTheFourFieldsCanBeSearched) {
    for (const char* name : {"Artist", "Title", "Broad", "Filename"}) {
        ASSERT_NE(library::SearchFieldNamed(name), nullptr) << name;
        EXPECT_EQ(library::SearchFieldNamed(name)->name, name);
    }
    EXPECT_EQ(library::SearchFieldNamed(""), nullptr);
    EXPECT_EQ(library::SearchFieldNamed("artist"), nullptr);
}

TEST(SearchText, CleaningMakesLowerCaseAndTakesBlanksAndHyphensOut) {
    for (const char* field : {"Artist", "Title", "Broad"})
        EXPECT_EQ(Cleaned(field, " Ac-DC's (Live) & \u00c9! "), "acdc's(live)&\u00e9!") << field;
}

TEST(SearchText, FileNamesLoseSomeSignsToo) {
    EXPECT_EQ(Cleaned("Filename", "C:\\It's R&B + (Live) *1*!.mp3"), "c:\\itsrblive1.mp3");
}

TEST(SearchText, TheKelvinSignAndTheDottedIHaveSmallLettersOfAscii) {
    EXPECT_EQ(Cleaned("Title", "\u212aISS \u0130z"), "kissiz");
}

TEST(SearchText, ACleanedTextIsPutBehindWhatIsThere) {
    std::string text = "A ";

    library::AppendCleaned(text, "B C", *library::SearchFieldNamed("Title"));

    EXPECT_EQ(text, "A bc");
}

}  // namespace
