// What was removed comes back: through the keys of the whole program, and over its runs.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;
using Texts = std::vector<std::string>;

class UndoStory : public testing::Test {
protected:
    UndoStory() {
        computer.AddUser("Ann", "rose");
        computer.AddToLibrary(1, "Sun", "Rise");
        computer.AddToLibrary(2, "Moon", "Fall");
        computer.AddToLibrary(3, "Star", "Shine");
        Begin();
    }

    void Begin() {
        program.reset();
        program = std::make_unique<Program>(computer);
        program->StartAndLogIn("Ann", "rose");
    }
    library::LibraryListControls& Lists() { return program->Browser().library.lists; }
    Texts Tracks() { return Program::RowsOf(Lists().lstTracks); }
    void RemoveTrack(int row) {
        Lists().lstTracks.SetListIndex(row);
        program->dialogs.Answers = {ports::BoxAnswer::Yes};
        program->Click(program->Browser().menus.mnuRemoveSong);
    }
    void PressUndo() {
        Lists().lstTracks.KeyDown.Raise('Z', controls::kControlMask);
        program->desktop.EndHandler();
    }

    Computer computer;
    std::unique_ptr<Program> program;
};

TEST_F(UndoStory, ASongThatWasDeletedComesBackToItsPlace) {
    const Texts before = Tracks();
    RemoveTrack(1);
    ASSERT_EQ(Tracks().size(), 2U);

    PressUndo();

    EXPECT_EQ(Tracks(), before);
}

TEST_F(UndoStory, StepsComeBackFromTheLastOnOverANewStart) {
    const Texts before = Tracks();
    RemoveTrack(0);
    const Texts after_one = Tracks();
    RemoveTrack(0);
    Begin();

    PressUndo();
    EXPECT_EQ(Tracks(), after_one);
    PressUndo();
    EXPECT_EQ(Tracks(), before);
}

TEST_F(UndoStory, ATrackOfTheBackUpIsTheSameSongAfterOneCameBackInALaterRun) {
    computer.database.Seed(scenario::kMediaPath, "tblPlayList",
                           {{"1", "Evening"}, {"2", "Evening", "2"}, {"3", "Evening", "3"}});
    RemoveTrack(0);
    Begin();
    session::BackUpControls& pane = program->windows.info.back_up;
    program->Click(program->Browser().menus.mnuEditPlaylists);
    ASSERT_TRUE(pane.lstEditPlayList.SelectText("Evening"));

    PressUndo();
    pane.lstEditPlayListTracks.SetListIndex(1);

    EXPECT_EQ(pane.lblEditTrackNumber.Caption(), "3");
    EXPECT_EQ(pane.txtEditArtist.Text(), "Star");
    EXPECT_EQ(pane.txtEditTitle.Text(), "Shine");
}

TEST_F(UndoStory, ASongThatPlaysIsNotDisturbed) {
    Lists().lstTracks.SetListIndex(0);
    program->DoubleClick(Lists().lstTracks);
    RemoveTrack(1);

    PressUndo();
    program->Wait(1000);

    EXPECT_EQ(computer.media.Mode("a"), "playing");
    EXPECT_EQ(Tracks().size(), 3U);
}

TEST_F(UndoStory, WithNothingRemovedNothingHappens) {
    const Texts before = Tracks();

    PressUndo();

    EXPECT_EQ(Tracks(), before);
    EXPECT_TRUE(program->dialogs.Boxes.empty());
}

}  // namespace
