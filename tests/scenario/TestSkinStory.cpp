#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;
using Names = std::vector<std::string>;

struct Pair {
    controls::Control* plain;
    controls::Control* bright;
};

class SkinStory : public testing::Test {
protected:
    SkinStory() {
        computer.AddUser("Ann", "rose");
        computer.AddToLibrary(1, "Sun", "Rise");
        program.StartAndLogIn("Ann", "rose");
        FindPairs(program.Browser());
    }

    void FindPairs(controls::Container& container) {
        for (controls::Control* child : container.Children()) {
            for (controls::Control* other : container.Children()) {
                if (base::LCase(other->Name()) == base::LCase(child->Name()) + "over") {
                    pairs.push_back({child, other});
                }
            }
        }
        for (controls::Control* child : container.Children()) {
            if (auto* inner = dynamic_cast<controls::Container*>(child)) FindPairs(*inner);
        }
    }
    static void MoveOver(controls::Control& control) { control.MouseMove.Raise(0, 0, 1, 1); }
    Names Bright() const {
        Names names;
        for (const Pair& pair : pairs)
            if (pair.bright->Visible()) names.push_back(pair.bright->Name());
        return names;
    }

    Computer computer;
    Program program{computer};
    std::vector<Pair> pairs;
};

TEST_F(SkinStory, EveryPictureLightsUpUnderThePointer) {
    EXPECT_EQ(pairs.size(), 17U);
    for (const Pair& pair : pairs) {
        SCOPED_TRACE(pair.plain->Name());
        pair.bright->SetVisible(false);

        MoveOver(*pair.plain);

        EXPECT_TRUE(pair.bright->Visible());
        EXPECT_EQ(pair.bright->Left(), pair.plain->Left());
        EXPECT_EQ(pair.bright->Top(), pair.plain->Top());
        EXPECT_EQ(pair.bright->Width(), pair.plain->Width());
        EXPECT_EQ(pair.bright->Height(), pair.plain->Height());
    }
}

TEST_F(SkinStory, EveryGroundAndListPutsTheLightsOut) {
    auto& browser = program.Browser();
    for (controls::Control* ground :
         std::vector<controls::Control*>{&browser,
                                         &browser.chrome.imgFormBG,
                                         &browser.chrome.imgBG,
                                         &browser.chrome.imgRowBG,
                                         &browser.chrome.fraMusicTab,
                                         &browser.chrome.imgMusicTabBG,
                                         &browser.chrome.lblMusicBG,
                                         &browser.player.transport.fraControls,
                                         &browser.player.transport.imgControlsBG,
                                         &browser.player.transport.picTrackTitle,
                                         &browser.player.queue.lstCuedSongs,
                                         &browser.library.lists.lstPlayLists,
                                         &browser.library.lists.lstArtists,
                                         &browser.library.lists.lstTracks,
                                         &browser.library.search.fraSearch,
                                         &browser.library.playlists.imgBG2,
                                         &browser.library.playlists.fraPlayListCenter,
                                         &browser.library.playlists.lstAddToPlaylist,
                                         &browser.library.task.fraTask,
                                         &browser.library.task.imgTaskBG,
                                         &browser.library.task.fraTaskCenter,
                                         &browser.favourites.fraFavs,
                                         &browser.favourites.lstFavs,
                                         &browser.favourites.lstFavsAlt,
                                         &browser.favourites.cmdFavs}) {
        SCOPED_TRACE(ground->Name());
        for (const Pair& pair : pairs)
            MoveOver(*pair.plain);

        MoveOver(*ground);

        // The bright play button is no light: it shows that nothing plays.
        Names still = Bright();
        std::erase(still, "imgPlayOver");
        EXPECT_EQ(still, Names{});
    }
}

// Notes which controls were hidden, in order.
struct HidingObserver final : controls::ControlObserver {
    void OnPropertyChanged(controls::Control& control, controls::Property property) override {
        if (property == controls::Property::Visible && !control.Visible()) hidden.push_back(control.Name());
    }
    Names hidden;
};

TEST_F(SkinStory, TheLightsGoOutInTheirOrder) {
    HidingObserver observer;
    for (const Pair& pair : pairs) {
        pair.bright->SetVisible(true);
        pair.bright->SetObserver(&observer);
    }

    MoveOver(program.Browser().chrome.imgBG);

    for (const Pair& pair : pairs)
        pair.bright->SetObserver(nullptr);
    EXPECT_EQ(observer.hidden, (Names{"imgStopOver", "imgPauseOver", "imgCueSongOver", "imgAddSongOver",
                                      "imgRemoveSongOver", "imgUnCueOver", "imgNoRepeatOver", "imgRepeatOver",
                                      "imgCancelOver", "imgOkOver", "imgDeletePlayListOver", "imgForwardOver",
                                      "imgBackOver", "imgdeleteover", "imgAddOver", "imgViewOver"}));
}

TEST_F(SkinStory, RepeatShowsItsStateOnceThePointerHasGone) {
    auto& mode = program.Browser().player.transport;
    MoveOver(mode.imgNoRepeat);
    program.Click(mode.imgNoRepeatOver);

    MoveOver(program.Browser().chrome.lblMusicBG);

    EXPECT_TRUE(program.Browser().menus.mnuRepeat.Checked());
    EXPECT_TRUE(mode.imgRepeat.Visible());
    EXPECT_FALSE(mode.imgNoRepeat.Visible());
    EXPECT_FALSE(mode.imgRepeatOver.Visible());
}

}  // namespace
