#include "store/StartingContent.h"

#include <gtest/gtest.h>

#include <string>

#include "base/Number.h"
#include "fakes/SeededStores.h"

namespace {

using fakes::SeededStores;

TEST(StartingContent, HasTheTwentySettingsRowsInOrder) {
    SeededStores stores;

    const auto rows = stores.Rows("tblHistory");

    ASSERT_EQ(rows.size(), 20U);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i][0], base::ToText(static_cast<std::int64_t>(i) + 1));
        EXPECT_EQ(rows[i][1], "Settings");
    }
}

TEST(StartingContent, TurnsOnTheOptionsThatAreOnByDefault) {
    for (std::size_t row = 7; row <= 20; ++row)
        EXPECT_EQ(store::kStartingSettings[row - 1], "True") << row;
    EXPECT_EQ(store::kStartingSettings[0], "False");
    EXPECT_EQ(store::kStartingSettings[1], "False");
    EXPECT_EQ(store::kStartingSettings[3], "Broad");
}

TEST(StartingContent, HasTheHomePagesGroupAndNoUser) {
    SeededStores stores;

    EXPECT_EQ(stores.Rows("tblFavs"), (std::vector<SeededStores::Row>{{"1", "Home Pages", " ", " "}}));
    EXPECT_TRUE(stores.Rows("tblLogin").empty());
}

}  // namespace
