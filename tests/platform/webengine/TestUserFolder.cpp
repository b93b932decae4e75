#include "platform/webengine/UserFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;

class UserFolder : public testing::Test {
protected:
    static void Write(const fs::path& path, const std::string& text) { std::ofstream(path) << text; }
    static mode_t ModeOf(const fs::path& path) {
        struct stat found{};
        EXPECT_EQ(::stat(path.c_str(), &found), 0) << path;
        return found.st_mode & 07777U;
    }

    QTemporaryDir place;
    const std::string root = place.path().toStdString() + "/data/pages/one";
    webengine::UserFolder folder{root};
};

TEST_F(UserFolder, BeforeALoginNothingIsKeptAndNothingIsMade) {
    EXPECT_EQ(folder.Path(), "");
    EXPECT_EQ(folder.Engine(), "");
    EXPECT_FALSE(fs::exists(root));
}

TEST_F(UserFolder, EachUserHasOneThatNobodyElseMayLookInto) {
    folder.Begin("Ann", true);
    const std::string ann = folder.Path();
    const std::string engine = folder.Engine();
    folder.Begin("ann", true);

    EXPECT_EQ(ann, root + "/416e6e");
    EXPECT_EQ(engine, ann + "/engine-1");
    EXPECT_NE(folder.Path(), ann) << "names are told apart by case";
    EXPECT_EQ(ModeOf(root), 0700U);
    EXPECT_EQ(ModeOf(ann), 0700U);
    EXPECT_EQ(ModeOf(engine), 0700U);
}

TEST_F(UserFolder, AFolderThatOthersCouldLookIntoIsClosedToThem) {
    folder.Begin("Ann", true);
    fs::permissions(folder.Path(), fs::perms::all);

    folder.Begin("Ann", true);

    EXPECT_EQ(ModeOf(folder.Path()), 0700U);
}

TEST_F(UserFolder, NoNameLeadsOutOfTheFolder) {
    for (const std::string name : {"../../Bob", "/", ".", "..", "a/b", "\xC3\xA9", " ", "\n"}) {
        folder.Begin(name, true);

        EXPECT_EQ(fs::path(folder.Path()).parent_path(), root) << name;
        EXPECT_TRUE(fs::is_directory(folder.Path())) << name;
    }
}

TEST_F(UserFolder, LongNamesAreToldApartToo) {
    folder.Begin(std::string(5000, 'a') + "1", true);
    const std::string first = folder.Path();
    folder.Begin(std::string(5000, 'a') + "2", true);

    EXPECT_TRUE(fs::is_directory(first));
    EXPECT_TRUE(fs::is_directory(folder.Path()));
    EXPECT_NE(folder.Path(), first);
}

TEST_F(UserFolder, WhatWasKeptIsThereAtTheNextLogin) {
    folder.Begin("Ann", true);
    Write(folder.Path() + "/choices", "zoom");
    Write(folder.Engine() + "/Preferences", "{}");
    folder.End();
    EXPECT_EQ(folder.Path(), "");

    folder.Begin("Ann", true);

    EXPECT_TRUE(fs::exists(folder.Path() + "/choices"));
    EXPECT_TRUE(fs::exists(folder.Engine() + "/Preferences"));
}

TEST_F(UserFolder, OneWhoKeepsNoHistoryLosesWhatTheEngineKept) {
    folder.Begin("Bob", true);
    const std::string bob = folder.Engine();
    folder.Begin("Ann", true);
    const std::string ann = folder.Engine();
    Write(ann + "/Cookies", "damaged");
    folder.End();
    folder.Begin("Ann", true);
    Write(folder.Path() + "/choices", "zoom");
    const std::string second = folder.Engine();
    folder.End();

    folder.Begin("Ann", false);

    EXPECT_EQ(folder.Engine(), "");
    EXPECT_FALSE(fs::is_directory(ann));
    EXPECT_FALSE(fs::is_directory(second));
    EXPECT_FALSE(fs::exists(folder.Path() + "/damaged"));
    EXPECT_TRUE(fs::exists(folder.Path() + "/choices")) << "what holds for every site is no history";
    EXPECT_TRUE(fs::exists(bob)) << "the other user's stays";
}

TEST_F(UserFolder, TheEngineNeverGetsAFolderThatItHadGivenUp) {
    folder.Begin("Ann", true);
    Write(folder.Path() + "/choices", "zoom");
    Write(folder.Engine() + "/Cookies", "SQLite format 3");
    const std::string before = folder.Engine();

    folder.RenewEngine();

    EXPECT_NE(folder.Engine(), before);
    EXPECT_TRUE(fs::is_empty(folder.Engine()));
    EXPECT_TRUE(fs::exists(folder.Path() + "/choices"));
    // An engine that is on its way out writes once more.
    std::error_code refused;
    fs::create_directories(before, refused);
    EXPECT_TRUE(refused);
    Write(before + "/Network Persistent State", "one.example");
    EXPECT_FALSE(fs::exists(before + "/Network Persistent State"));
    const std::string renewed = folder.Engine();
    folder.Begin("Ann", true);
    EXPECT_EQ(folder.Engine(), renewed);
    folder.Begin("Ann", false);
    folder.Begin("Ann", true);
    EXPECT_NE(folder.Engine(), renewed);
    EXPECT_NE(folder.Engine(), before);
}

TEST_F(UserFolder, TellsWhoHasHadAnEngine) {
    EXPECT_FALSE(folder.HasEngine("Ann"));
    folder.Begin("Ann", true);
    folder.Begin("Bob", false);

    EXPECT_TRUE(folder.HasEngine("Ann"));
    EXPECT_FALSE(folder.HasEngine("Bob"));
    EXPECT_FALSE(folder.HasEngine(""));
    folder.RemoveEngines("Ann");
    EXPECT_FALSE(folder.HasEngine("Ann"));
    EXPECT_FALSE(webengine::UserFolder("").HasEngine("Ann"));
}

TEST_F(UserFolder, ADamagedStoreIsSetAsideAndTheEngineBeginsAgain) {
    folder.Begin("Ann", true);
    const std::string engine = folder.Engine();
    Write(engine + "/Cookies", std::string(4096, 'x'));
    folder.End();

    folder.Begin("Ann", true);

    EXPECT_NE(folder.Engine(), engine);
    EXPECT_TRUE(fs::is_empty(folder.Engine()));
    EXPECT_TRUE(fs::exists(folder.Path() + "/damaged/Cookies"));
    folder.RenewEngine();
    EXPECT_FALSE(fs::exists(folder.Path() + "/damaged")) << "it holds cookies too";
}

TEST_F(UserFolder, AFileInThePlaceOfAFolderIsSetAside) {
    folder.Begin("Ann", true);
    const std::string ann = folder.Path();
    fs::remove_all(ann);
    Write(ann, "no folder");

    folder.Begin("Ann", true);

    EXPECT_EQ(folder.Path(), ann);
    EXPECT_TRUE(fs::is_directory(folder.Engine()));
    EXPECT_TRUE(fs::exists(ann + ".damaged"));
}

TEST_F(UserFolder, WhereNothingCanBeWrittenNothingIsKept) {
    const std::string file = place.path().toStdString() + "/file";
    Write(file, "no folder");
    webengine::UserFolder below_a_file{file + "/pages"};

    below_a_file.Begin("Ann", true);

    EXPECT_EQ(below_a_file.Path(), "");
    EXPECT_EQ(below_a_file.Engine(), "");
    webengine::UserFolder of_another("/proc/pages");
    of_another.Begin("Ann", true);
    EXPECT_EQ(of_another.Path(), "");
}

TEST_F(UserFolder, WithoutAFolderOfAllUsersNothingIsKept) {
    webengine::UserFolder homeless{webengine::UserFolder::OfAllUsers("", "/opt/brindlepost")};

    homeless.Begin("Ann", true);

    EXPECT_EQ(homeless.Path(), "");
}

TEST_F(UserFolder, TwoProgramsOfOneAccountHaveTwo) {
    const std::string one = webengine::UserFolder::OfAllUsers("/data", "/opt/one");

    EXPECT_TRUE(one.starts_with("/data/brindlepost/pages/")) << one;
    EXPECT_NE(one, webengine::UserFolder::OfAllUsers("/data", "/opt/two"));
    EXPECT_EQ(one, webengine::UserFolder::OfAllUsers("/data", "/opt/one"));
}

TEST_F(UserFolder, ANewUserFindsNothingOfAnEarlierOneOfTheSameName) {
    folder.Begin("Ann", true);
    Write(folder.Path() + "/choices", "zoom");
    const std::string ann = folder.Path();
    folder.End();

    folder.Remove("Ann");

    EXPECT_FALSE(fs::exists(ann));
    EXPECT_TRUE(fs::exists(root));
}

TEST_F(UserFolder, NoListOfVisitedLinksIsLeft) {
    folder.Begin("Ann", true);
    const std::string links = folder.Engine() + "/Visited Links";
    Write(links, "hashes");

    folder.End();
    EXPECT_FALSE(fs::exists(links));

    folder.Begin("Ann", true);
    Write(links, "what a run that ended badly left");
    folder.Begin("Ann", true);
    EXPECT_FALSE(fs::exists(links));
}

}  // namespace
