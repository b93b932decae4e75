#include <gtest/gtest.h>

#include "window/ViewRoom.h"

namespace {

class ViewRoomTest : public testing::Test {
protected:
    controls::Form window{"frmBrowser", "Brindlepost"};
    window::ViewMenu menu;
    library::LibraryListControls lists;
    int resizes = 0;
    bool artists_at_resize = true;
    window::ViewRoom room{window, menu, lists, [this] {
                              ++resizes;
                              artists_at_resize = lists.lstArtists.Visible();
                          }};
};

TEST_F(ViewRoomTest, ANewSizeOfTheWindowLaysItOut) {
    window.Move(0, 0, 12000, 9000);

    EXPECT_EQ(resizes, 1);
}

TEST_F(ViewRoomTest, AWindowThatOnlyMovesIsNotLaidOutAgain) {
    window.Move(500, 400, window.Width(), window.Height());

    EXPECT_EQ(resizes, 0);
}

TEST_F(ViewRoomTest, JustTracksTicksItsEntryAndHidesTheOtherLists) {
    menu.mnuMusicJustTracks.Click.Raise();

    EXPECT_TRUE(menu.mnuMusicJustTracks.Checked());
    EXPECT_FALSE(lists.lstArtists.Visible());
    EXPECT_FALSE(lists.lstPlayLists.Visible());
    EXPECT_TRUE(lists.lstTracks.Visible());
}

TEST_F(ViewRoomTest, JustTracksAgainBringsTheListsBack) {
    menu.mnuMusicJustTracks.Click.Raise();

    menu.mnuMusicJustTracks.Click.Raise();

    EXPECT_FALSE(menu.mnuMusicJustTracks.Checked());
    EXPECT_TRUE(lists.lstArtists.Visible());
    EXPECT_TRUE(lists.lstPlayLists.Visible());
}

TEST_F(ViewRoomTest, TheWindowIsLaidOutOnceTheListsAreHidden) {
    menu.mnuMusicJustTracks.Click.Raise();

    EXPECT_EQ(resizes, 1);
    EXPECT_FALSE(artists_at_resize);
}

}  // namespace
