// The window of the add dialog: its way back, its pictures, its places and sizes.
#include <gtest/gtest.h>

#include <array>
#include <utility>
#include <vector>

#include "library/AddMediaDialog.h"
#include "library/AddMediaLayout.h"

namespace {

using library_tests::AddMediaDialog;
using library_tests::Rows;

class AddMediaWindowTest : public testing::Test, protected AddMediaDialog {};

TEST_F(AddMediaWindowTest, BackShowsTheMainWindowAndKeepsTheDialogLoaded) {
    Form.frmAddMedia.Show();

    Form.imgBackOver.Click.Raise();

    EXPECT_EQ(Main.Calls, (Rows{"show"}));
    EXPECT_FALSE(Form.frmAddMedia.Visible());
    EXPECT_TRUE(Form.frmAddMedia.IsLoaded());
}

TEST_F(AddMediaWindowTest, BackEndsARunningWalk) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    Files.AddFile("C:\\Music\\B\\b.mp3");
    Desktop.Post([this] { Form.imgBackOver.Click.Raise(); });

    Search("C:\\Music");

    EXPECT_EQ(Form.lstFiles.ListCount(), 1);
    EXPECT_FALSE(Form.frmAddMedia.Visible());
}

TEST_F(AddMediaWindowTest, EscapeGoesBack) {
    Form.frmAddMedia.Show();

    Form.frmAddMedia.KeyDown.Raise(controls::kKeyEscape, 0);

    EXPECT_FALSE(Form.frmAddMedia.Visible());
    EXPECT_EQ(Main.Calls, (Rows{"show"}));
}

TEST_F(AddMediaWindowTest, APictureUnderThePointerIsBrightAndNoOther) {
    const std::array<std::pair<controls::Image*, controls::Image*>, 3> twins{
        {{&Form.imgAdd, &Form.imgAddOver},
         {&Form.imgAddAll, &Form.imgAddAllOver},
         {&Form.imgBack, &Form.imgBackOver}}};

    for (const auto& [plain, over] : twins) {
        plain->MouseMove.Raise(0, 0, 0, 0);

        for (const auto& [other_plain, other_over] : twins)
            EXPECT_EQ(other_over->Visible(), other_over == over);
    }
}

TEST_F(AddMediaWindowTest, EveryBackgroundDimsThePictures) {
    for (controls::Control* background : std::vector<controls::Control*>{
             &Form.frmAddMedia, &Form.imgBG, &Form.Drive1, &Form.Dir1, &Form.lstPattern, &Form.lstFiles,
             &Form.fraControls, &Form.fraSearch}) {
        Form.imgAddOver.SetVisible(true);
        Form.imgAddAllOver.SetVisible(true);
        Form.imgBackOver.SetVisible(true);

        background->MouseMove.Raise(0, 0, 0, 0);

        EXPECT_FALSE(Form.imgAddOver.Visible() || Form.imgAddAllOver.Visible() || Form.imgBackOver.Visible())
            << background->Name();
    }
}

TEST_F(AddMediaWindowTest, ALargerWindowGivesItsRoomToTheLists) {
    const double list_width = Form.lstFiles.Width();
    const double list_height = Form.lstFiles.Height();
    const double folder_height = Form.Dir1.Height();

    Form.frmAddMedia.SetContentSize(Form.frmAddMedia.ContentWidth() + 1500,
                                    Form.frmAddMedia.ContentHeight() + 750);

    EXPECT_EQ(Form.lstFiles.Width(), list_width + 1500);
    EXPECT_EQ(Form.lstFiles.Height(), list_height + 750);
    EXPECT_EQ(Form.Dir1.Height(), folder_height + 750);
    EXPECT_EQ(Form.imgBG.Width(), Form.frmAddMedia.ContentWidth());
    EXPECT_EQ(Form.imgBG.Height(), Form.frmAddMedia.ContentHeight());
    EXPECT_EQ(Form.fraControls.Right(), Form.lstFiles.Right());
    EXPECT_EQ(Form.lblFiles.Left(), Form.lstFiles.Left());
    EXPECT_EQ(Form.fraSearch.Left() + Form.fraSearch.Width() / 2,
              Form.lstFiles.Left() + Form.lstFiles.Width() / 2);
}

TEST_F(AddMediaWindowTest, TheWindowSpringsBackToItsLeastSize) {
    Form.frmAddMedia.Move(0, 0, 1500, 1500);

    EXPECT_EQ(Form.frmAddMedia.ContentWidth(), library::kLeastAddMediaWidth * controls::kTwipsPerPixel);
    EXPECT_EQ(Form.frmAddMedia.ContentHeight(), library::kLeastAddMediaHeight * controls::kTwipsPerPixel);
    EXPECT_EQ(Form.imgBG.Width(), Form.frmAddMedia.ContentWidth());
}

TEST_F(AddMediaWindowTest, AMinimisedWindowIsLeftAlone) {
    Form.frmAddMedia.SetState(controls::WindowState::Minimised);

    Form.frmAddMedia.Move(0, 0, 1500, 1500);

    EXPECT_EQ(Form.frmAddMedia.Width(), 1500);
}

TEST_F(AddMediaWindowTest, NothingOverlapsAtTheLeastSize) {
    Form.frmAddMedia.Move(0, 0, 0, 0);

    const std::vector<controls::Control*> column{&Form.lblDrive,   &Form.Drive1,     &Form.lblFolder,
                                                 &Form.Dir1,       &Form.lblPattern, &Form.lstPattern,
                                                 &Form.cmdGetFiles};
    for (std::size_t i = 1; i < column.size(); ++i)
        EXPECT_GE(column[i]->Top(), column[i - 1]->Bottom()) << column[i]->Name();
    EXPECT_GT(Form.Dir1.Height(), 3 * 24 * controls::kTwipsPerPixel);
    EXPECT_LE(Form.imgAddAll.Right(), Form.imgBack.Left());
    EXPECT_LE(Form.cmdGetFiles.Bottom(), Form.frmAddMedia.ContentHeight());
}

}  // namespace
