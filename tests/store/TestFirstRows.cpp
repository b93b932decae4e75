#include "store/FirstRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "fakes/SeededStores.h"

namespace {

using store::FirstRowsWith;
namespace tblSong = store::tblSong;

class FirstRowsTest : public testing::Test {
protected:
    store::RecordSet& Songs(const std::vector<std::string>& paths) {
        for (const std::string& path : paths)
            stores_.Seed("tblSong", {{"1", "", "", path, ""}});
        source_ = stores_.OpenTable("tblSong");
        return source_->Recordset();
    }

private:
    fakes::SeededStores stores_;
    std::unique_ptr<store::DataSource> source_;
};

TEST_F(FirstRowsTest, EachTextGetsItsFirstRow) {
    store::RecordSet& songs = Songs({"a", "b", "a", "c", "b"});

    const auto found = FirstRowsWith(songs, tblSong::FilePath, {"b", "none", "c", "b"});

    ASSERT_EQ(found.size(), 4U);
    EXPECT_EQ(found[0], 1U);
    EXPECT_FALSE(found[1]);
    EXPECT_EQ(found[2], 3U);
    EXPECT_EQ(found[3], 1U);
}

TEST_F(FirstRowsTest, TheEmptyTextIsATextLikeOthers) {
    store::RecordSet& songs = Songs({"a", ""});

    EXPECT_EQ(FirstRowsWith(songs, tblSong::FilePath, {""}).front(), 1U);
}

TEST_F(FirstRowsTest, NoTextsAndNoTableFindNothing) {
    store::RecordSet none;

    EXPECT_TRUE(FirstRowsWith(Songs({"a"}), tblSong::FilePath, {}).empty());
    EXPECT_FALSE(FirstRowsWith(none, tblSong::FilePath, {"a"}).front());
}

TEST_F(FirstRowsTest, FindsWhatAWalkForEachTextFinds) {
    std::mt19937 random(3);
    const auto random_text = [&random] { return std::to_string(random() % 700) + (random() % 2 ? "x" : ""); };
    std::vector<std::string> paths(500);
    std::generate(paths.begin(), paths.end(), random_text);
    std::vector<std::string> wanted(20);
    std::generate(wanted.begin(), wanted.end(), random_text);
    store::RecordSet& songs = Songs(paths);

    const auto found = FirstRowsWith(songs, tblSong::FilePath, wanted);

    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const auto row = std::find(paths.begin(), paths.end(), wanted[i]);
        const auto number = static_cast<store::Bookmark>(row - paths.begin());

        EXPECT_EQ(found[i].value_or(paths.size()), number) << wanted[i];
    }
}

}  // namespace
