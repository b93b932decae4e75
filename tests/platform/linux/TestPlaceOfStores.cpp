#include "platform/linux/PlaceOfStores.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "platform/linux/Bench.h"

namespace linux {
namespace {

using linux_tests::PlayFolder;
using linux_tests::Unprivileged;

constexpr const char* kStores[] = {"dbMedia.mdb", "dbFavs.mdb", "dbHistory.mdb", "dbLogin.mdb"};

std::string TextOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

mode_t ModeOf(const std::string& path) {
    struct stat status{};
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777U;
}

/// A program with its shipped stores, in a folder that nobody may write to, and a home.
class PlaceOfStoresTest : public testing::Test {
protected:
    PlaceOfStoresTest() {
        folder_.Make("program");
        for (const char* store : kStores)
            folder_.Write(std::string("program/") + store, std::string("shipped ") + store);
        folder_.Make("home");
        Allow("home", true);
        Allow("program", false);
    }
    ~PlaceOfStoresTest() override { Allow("program", true); }

    void Allow(const std::string& name, bool may_write) const {
        std::filesystem::permissions(folder_ / name,
                                     may_write ? std::filesystem::perms{0777} : std::filesystem::perms{0555});
    }
    std::string Program() const { return folder_ / "program"; }
    std::string Home() const { return folder_ / "home"; }
    std::string Kept(const std::string& name = {}) const {
        return folder_ / ("home/brindlepost" + (name.empty() ? name : "/" + name));
    }

    PlayFolder folder_;
};

TEST_F(PlaceOfStoresTest, TheyLieBesideAProgramWhoseFolderMayBeWritten) {
    Allow("program", true);
    const Unprivileged person(folder_);

    const PlaceOfStores place = FindPlaceOfStores(Program(), Home());

    EXPECT_EQ(place.folder, Program());
    EXPECT_EQ(place.trouble, "");
    EXPECT_FALSE(std::filesystem::exists(Kept()));
}

TEST_F(PlaceOfStoresTest, AProgramOfTheSystemHasThemInAFolderOfTheUsersOwn) {
    const Unprivileged person(folder_);

    const PlaceOfStores place = FindPlaceOfStores(Program(), Home());

    EXPECT_EQ(place.folder, Kept());
    EXPECT_EQ(place.trouble, "");
    EXPECT_EQ(ModeOf(Kept()), 0700U);
    for (const char* store : kStores) {
        EXPECT_EQ(TextOf(Kept(store)), std::string("shipped ") + store);
        EXPECT_EQ(ModeOf(Kept(store)), 0600U) << store;
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Kept()), {}), 4);
}

TEST_F(PlaceOfStoresTest, WhatIsThereStaysAndWhatIsMissingComes) {
    const Unprivileged person(folder_);
    FindPlaceOfStores(Program(), Home());
    folder_.Write("home/brindlepost/dbMedia.mdb", "a library of years");
    std::filesystem::remove(Kept("dbFavs.mdb"));
    std::filesystem::permissions(Kept(), std::filesystem::perms{0755});

    const PlaceOfStores place = FindPlaceOfStores(Program(), Home());

    EXPECT_EQ(place.trouble, "");
    EXPECT_EQ(TextOf(Kept("dbMedia.mdb")), "a library of years");
    EXPECT_EQ(TextOf(Kept("dbFavs.mdb")), "shipped dbFavs.mdb");
    EXPECT_EQ(ModeOf(Kept()), 0700U);
}

TEST_F(PlaceOfStoresTest, WhatWasNotShippedIsNotMade) {
    Allow("program", true);
    std::filesystem::remove(folder_ / "program/dbLogin.mdb");
    Allow("program", false);
    const Unprivileged person(folder_);

    const PlaceOfStores place = FindPlaceOfStores(Program(), Home());

    EXPECT_EQ(place.trouble, "");
    EXPECT_FALSE(std::filesystem::exists(Kept("dbLogin.mdb")));
    EXPECT_TRUE(std::filesystem::exists(Kept("dbMedia.mdb")));
}

TEST_F(PlaceOfStoresTest, AHomeThatCannotBeWrittenIsTold) {
    Allow("home", false);
    const Unprivileged person(folder_);

    const PlaceOfStores place = FindPlaceOfStores(Program(), Home());

    EXPECT_TRUE(place.trouble.starts_with(Kept() + " cannot be made: ")) << place.trouble;
}

TEST_F(PlaceOfStoresTest, AFileInTheFoldersPlaceIsTold) {
    folder_.Write("home/brindlepost", "a file");
    const Unprivileged person(folder_);

    EXPECT_TRUE(FindPlaceOfStores(Program(), Home()).trouble.starts_with(Kept() + " cannot be made: "));
    EXPECT_EQ(TextOf(Kept()), "a file");
}

TEST_F(PlaceOfStoresTest, AShippedStoreThatCannotBeReadIsTold) {
    std::filesystem::permissions(folder_ / "program/dbHistory.mdb", std::filesystem::perms::none);
    const Unprivileged person(folder_);

    EXPECT_TRUE(FindPlaceOfStores(Program(), Home()).trouble.starts_with(Kept("dbHistory.mdb")));
    EXPECT_FALSE(std::filesystem::exists(Kept("dbHistory.mdb")));
}

TEST_F(PlaceOfStoresTest, WithoutAHomeTheyStayBesideTheProgram) {
    const Unprivileged person(folder_);

    EXPECT_EQ(FindPlaceOfStores(Program(), "").folder, Program());
}

TEST_F(PlaceOfStoresTest, WhatThePackagesOfTheSystemInstallIsNeverWrittenBesideNotByRootEither) {
    EXPECT_EQ(FindPlaceOfStores("/usr/lib/no-such-program", Home()).folder, Kept());
    EXPECT_EQ(FindPlaceOfStores("/usr/local/no-such-program", "").folder, "/usr/local/no-such-program");
}

TEST_F(PlaceOfStoresTest, ManyStartsAtOnceMakeEachStoreOnce) {
    const Unprivileged person(folder_);
    std::vector<std::string> troubles(8);
    std::vector<std::thread> starts;
    starts.reserve(troubles.size());
    for (std::string& trouble : troubles)
        starts.emplace_back([&] { trouble = FindPlaceOfStores(Program(), Home()).trouble; });
    for (std::thread& start : starts)
        start.join();

    EXPECT_EQ(troubles, std::vector<std::string>(8));
    EXPECT_EQ(TextOf(Kept("dbMedia.mdb")), "shipped dbMedia.mdb");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Kept()), {}), 4);
}

}  // namespace
}  // namespace linux
