#include "store/StartingContent.h"

#include <gtest/gtest.h>

#include <string>

#include "base/Number.h"
#include "fakes/SeededStores.h"
#include "store/Settings.h"

namespace {

using fakes::SeededStores;

TEST(StartingContent, HasTheSettingsRowsInOrder) {
    SeededStores stores;

    const auto rows = stores.Rows("tblHistory");

    ASSERT_EQ(rows.size(), store::kSettings.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i][0], base::ToText(static_cast<std::int64_t>(i) + 1));
        EXPECT_EQ(rows[i][1], "Settings");
    }
}

TEST(StartingContent, TurnsOnTheOptionsThatAreOnByDefault) {
    for (std::size_t row = 7; row <= store::kSettings.size(); ++row)
        EXPECT_EQ(store::kSettings[row - 1].shipped, "True") << row;
    EXPECT_EQ(store::kSettings[0].shipped, "False");
    EXPECT_EQ(store::kSettings[1].shipped, "False");
    EXPECT_EQ(store::kSettings[3].shipped, "Broad");
}

TEST(StartingContent, HasTheHomePagesGroupAndNoUser) {
    SeededStores stores;

    EXPECT_EQ(stores.Rows("tblFavs"), (std::vector<SeededStores::Row>{{"1", "Home Pages", " ", " "}}));
    EXPECT_TRUE(stores.Rows("tblLogin").empty());
}

}  // namespace
