#include "platform/linux/FoldersAhead.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "Bench.h"
#include "base/DrivePath.h"

namespace {

using linux::FoldersAhead;
using linux::LinkTo;
using Names = std::vector<std::string>;

/// Longer than the thread needs for a few small folders, if anything lets it work.
constexpr std::chrono::milliseconds kAMoment{50};
/// Longer than what was read ahead is taken.
constexpr std::chrono::milliseconds kTooOld{1100};

bool Always(const std::string& /*folder*/) {
    return true;
}

class FoldersAheadTest : public testing::Test {
protected:
    std::optional<ports::FolderListing> List(const std::string& path) {
        return ahead_.List(path, go_on_, judge_, allowed_);
    }
    /// What is below a folder, in the order of a walk.
    void Walk(const std::string& path, Names& met) {
        const auto listing = List(path);
        met.push_back(path + (listing ? "" : " unreadable"));
        if (!listing) return;
        for (const std::string& name : listing->Files)
            met.push_back(std::string(path).append(" has ").append(name));
        for (const std::string& name : listing->SubFolders)
            Walk(std::string(path).append("/").append(base::TextToBytes(name)), met);
    }
    Names Walked(const std::string& path) {
        Names met;
        Walk(path, met);
        return met;
    }
    /// The same, without anything read ahead.
    static void WalkAlone(const std::string& path, Names& met) {
        const auto listing = linux::ReadFolder(path);
        met.push_back(path + (listing ? "" : " unreadable"));
        if (!listing) return;
        for (const std::string& name : listing->Files)
            met.push_back(std::string(path).append(" has ").append(name));
        for (const std::string& name : listing->SubFolders)
            WalkAlone(std::string(path).append("/").append(base::TextToBytes(name)), met);
    }
    void MakeTree() {
        for (int artist = 0; artist < 12; ++artist) {
            for (int album = 0; album < artist; ++album) {
                const std::string folder =
                    "Artist " + std::to_string(artist) + "/Album\xFF " + std::to_string(album) + "/disc";
                folder_.Make(folder);
                for (int song = 0; song < album * 3; ++song)
                    folder_.Write(folder + "/So\xE9ng " + std::to_string(song) + ".mp3");
            }
        }
    }

    linux_tests::PlayFolder folder_;
    ports::MayGoOn go_on_ = [] { return true; };
    linux::LinkJudge judge_ = [](const std::string&) { return LinkTo::Here; };
    std::function<bool(const std::string&)> allowed_ = Always;
    FoldersAhead ahead_;
};

TEST_F(FoldersAheadTest, AWalkMeetsWhatItMeetsWithoutIt) {
    MakeTree();
    folder_.Make("elsewhere/below");
    folder_.Write("elsewhere/song.mp3");
    folder_.Link("../elsewhere", "Artist 3/link");
    folder_.Link("elsewhere/song.mp3", "Artist 4/song link.mp3");
    folder_.Make("shut/inside");
    Names expected;
    const linux_tests::Unprivileged unprivileged(folder_);
    ::chmod((folder_ / "shut").c_str(), 0);
    WalkAlone(folder_.Path(), expected);

    for (int round = 0; round < 5; ++round)
        EXPECT_EQ(Walked(folder_.Path()), expected);
}

TEST_F(FoldersAheadTest, AFolderThatIsAskedForOutOfOrderIsReadAsItIs) {
    MakeTree();
    List(folder_.Path());
    List(folder_ / "Artist 1");
    std::this_thread::sleep_for(kAMoment);

    List(folder_ / "Artist 9");
    folder_.Write("Artist 3/new.mp3");

    EXPECT_EQ(List(folder_ / "Artist 3")->Files, Names{"new.mp3"});
}

TEST_F(FoldersAheadTest, WhatWasReadTooLongAgoIsReadAgain) {
    MakeTree();
    List(folder_.Path());
    List(folder_ / "Artist 1");
    std::this_thread::sleep_for(kTooOld);

    folder_.Write("Artist 1/Album\xFF 0/new.mp3");

    EXPECT_EQ(List(folder_ / "Artist 1/Album\xFF 0")->Files, Names{"new.mp3"});
}

TEST_F(FoldersAheadTest, AFolderThatMayNotBeReadAheadIsLeftToTheWalk) {
    MakeTree();
    allowed_ = [this](const std::string& folder) { return folder != folder_ / "Artist 2"; };
    List(folder_.Path());
    List(folder_ / "Artist 1");
    std::this_thread::sleep_for(kAMoment);

    folder_.Write("Artist 2/new.mp3");

    EXPECT_EQ(List(folder_ / "Artist 2")->Files, Names{"new.mp3"});
}

TEST_F(FoldersAheadTest, WhereALinkLeadsIsAskedByTheWalkAlone) {
    MakeTree();
    for (int artist = 1; artist < 12; ++artist)
        folder_.Link("..", "Artist " + std::to_string(artist) + "/link");
    const std::thread::id walk = std::this_thread::get_id();
    int asked = 0;
    judge_ = [walk, &asked](const std::string&) {
        EXPECT_EQ(std::this_thread::get_id(), walk);
        ++asked;
        return LinkTo::Nothing;
    };

    Walked(folder_.Path());

    EXPECT_EQ(asked, 11);
}

TEST_F(FoldersAheadTest, ACancelledWalkEndsAndTheNextOneIsWhole) {
    MakeTree();
    folder_.Make("Artist 2/long");
    for (int song = 0; song < 1200; ++song)
        folder_.Write("Artist 2/long/" + std::to_string(song) + ".mp3");
    Names expected;
    WalkAlone(folder_.Path(), expected);
    go_on_ = [] { return false; };
    Walked(folder_.Path());
    go_on_ = [] { return true; };

    EXPECT_EQ(Walked(folder_.Path()), expected);
}

// Another walk may begin wherever a walk asks whether it may go on.
TEST_F(FoldersAheadTest, AWalkInsideAWalkMeetsTheSame) {
    MakeTree();
    // Of these the walk may find each read, and then asks nothing; the first folder it always reads itself.
    for (const char* const folder : {"Artist 2/long", "Artist 2/longer", "Artist 2/longest"})
        folder_.Make(folder);
    for (const char* const folder : {".", "Artist 2/long", "Artist 2/longer", "Artist 2/longest"}) {
        for (int song = 0; song < 600; ++song)
            folder_.Write(std::string(folder) + "/" + std::to_string(song) + ".mp3");
    }
    Names expected;
    WalkAlone(folder_.Path(), expected);
    bool is_inside = false;
    int walks = 0;
    Names inside;
    go_on_ = [&] {
        if (is_inside || walks == 2) return true;
        ++walks;
        is_inside = true;
        inside = Walked(folder_.Path());
        is_inside = false;
        return true;
    };

    EXPECT_EQ(Walked(folder_.Path()), expected);
    EXPECT_GT(walks, 0);
    EXPECT_EQ(inside, expected);
}

TEST_F(FoldersAheadTest, ItEndsInTheMiddleOfAWalk) {
    MakeTree();
    for (int round = 0; round < 50; ++round) {
        FoldersAhead ahead;
        ahead.List(folder_.Path(), go_on_, judge_, Always);
        EXPECT_TRUE(ahead.List(folder_ / "Artist 1", go_on_, judge_, Always));
    }
}

}  // namespace
