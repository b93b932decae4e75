// Where the music stopped: kept through a kill, offered to the same user, forgotten with the history.
#include <gtest/gtest.h>

#include <optional>

#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;

class ResumeStory : public testing::Test {
protected:
    ResumeStory() {
        computer.AddUser("Ann", "rose");
        computer.AddUser("Bob", "oak");
        computer.AddToLibrary(1, "Moon", "Fall", {200'000, 1000});
        rise = computer.AddToLibrary(2, "Sun", "Rise", {200'000, 1000});
        computer.AddToLibrary(3, "Tide", "Turn", {200'000, 1000});
        program.emplace(computer);
    }

    void LogIn(const char* name, const char* password) { program->StartAndLogIn(name, password); }
    void PlayTrack(int row) {
        auto& tracks = program->Browser().library.lists.lstTracks;
        tracks.SetListIndex(row);
        program->DoubleClick(tracks);
    }
    void CueTrack(int row) {
        program->Browser().library.lists.lstTracks.SetListIndex(row);
        program->Click(program->Browser().player.queue.imgCueSongOver);
    }
    /// Nothing of the old run happens any more.
    void KillAndStartAgain() {
        const fakes::FakeKeptTexts kept = computer.kept;
        program.reset();
        computer.kept = kept;
        computer.media.SendString("close all");
        program.emplace(computer);
    }
    controls::Label& Offer() { return program->Browser().player.resume.lblResume; }
    std::string NowPlaying() { return program->Browser().player.transport.lblFileNowPlaying.Caption(); }

    Computer computer;
    std::string rise;
    std::optional<Program> program;
};

TEST_F(ResumeStory, AfterAKillTheSameUserGoesOnWithAClick) {
    LogIn("Ann", "rose");
    EXPECT_FALSE(Offer().Visible());
    PlayTrack(1);
    CueTrack(0);
    program->Wait(61'000);

    KillAndStartAgain();
    LogIn("Ann", "rose");
    ASSERT_TRUE(Offer().Visible());
    EXPECT_TRUE(Offer().Caption().starts_with("Go on with Sun - Rise at 1:0")) << Offer().Caption();
    EXPECT_TRUE(program->BoxTexts().empty());
    program->Click(Offer());
    program->Wait(1'000);

    EXPECT_FALSE(Offer().Visible());
    EXPECT_EQ(NowPlaying(), rise);
    EXPECT_NEAR(static_cast<double>(program->board.Listener->Position()), 62'000'000, 6'000'000);
    EXPECT_EQ(Program::RowsOf(program->Browser().player.queue.lstCuedSongs),
              std::vector<std::string>{"Moon - Fall"});
    EXPECT_EQ(program->board.Shown.tracks.size(), 3U);
}

TEST_F(ResumeStory, AnExitKeepsItAsWell) {
    LogIn("Ann", "rose");
    PlayTrack(1);
    program->Wait(61'000);
    program->Click(program->Browser().menus.mnuExit);
    EXPECT_TRUE(program->ended);

    KillAndStartAgain();
    LogIn("Ann", "rose");

    EXPECT_TRUE(Offer().Caption().starts_with("Go on with Sun - Rise at 1:0")) << Offer().Caption();
}

TEST_F(ResumeStory, AnotherUserIsOfferedNothing) {
    LogIn("Ann", "rose");
    PlayTrack(1);
    program->Wait(61'000);

    KillAndStartAgain();
    LogIn("Bob", "oak");

    EXPECT_FALSE(Offer().Visible());
}

TEST_F(ResumeStory, DeletedHistoryTakesItAlong) {
    LogIn("Ann", "rose");
    PlayTrack(1);
    program->Wait(61'000);
    program->dialogs.Answers = {ports::BoxAnswer::Yes};
    program->Click(program->Browser().menus.mnuHistory);
    program->Wait(10'000);
    EXPECT_TRUE(computer.kept.Texts.empty());

    KillAndStartAgain();
    LogIn("Ann", "rose");

    EXPECT_FALSE(Offer().Visible());
}

TEST_F(ResumeStory, AnOfferThatIsNotTakenCostsNothing) {
    LogIn("Ann", "rose");
    PlayTrack(1);
    program->Wait(61'000);
    KillAndStartAgain();
    LogIn("Ann", "rose");

    PlayTrack(2);
    program->Wait(2'000);

    EXPECT_FALSE(Offer().Visible());
    EXPECT_TRUE(Program::RowsOf(program->Browser().player.queue.lstCuedSongs).empty());
}

}  // namespace
