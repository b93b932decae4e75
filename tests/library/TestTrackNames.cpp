#include "library/TrackNames.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using library::CorrectedName;

TEST(TrackNames, AreInUpperCaseWithoutBlanks) {
    EXPECT_EQ(CorrectedName(" Caf\u00e9 del Mar "), "CAF\u00c9DELMAR");
}

TEST(TrackNames, LoseTheirSigns) {
    EXPECT_EQ(CorrectedName("a-b?c'd+e[f]g{h}i*j_k=l&m^n%o$p\u00a3q!r\"s.t(u)v,w#x"),
              "ABCDEFGHIJKLMNOPQRSTUVWX");
    EXPECT_EQ(CorrectedName("/\\:;<>|~@`\u20ac"), "/\\:;<>|~@`\u20ac");
}

TEST(TrackNames, LoseTheWordsBeforeAGuest) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"Foo ft. Bar", "FOOBAR"},
        {"Foo feat. Bar", "FOOBAR"},
        {"Foo Featuring Bar", "FOOBAR"},
        {"Foo (Feat. Bar)", "FOOBAR"},
        {"Featured Left", "UREDLE"},
        {"F-t", ""},
        {"FEFEATURINGAT Bar", "BAR"},
        {"FeFeatAt", "FEAT"},
        {"fe,at", "FEAT"},
        {"f,t", ""},
        {"fftt", "FT"},
        {"Foo vs Bar", "FOOVSBAR"},
    };
    for (const auto& [name, corrected] : cases)
        EXPECT_EQ(CorrectedName(name), corrected) << name;
}

TEST(TrackNames, OfNothingButSignsAreEmpty) {
    EXPECT_EQ(CorrectedName(""), "");
    EXPECT_EQ(CorrectedName(" - (!) "), "");
}

}  // namespace
