#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "WindowWalk.h"
#include "base/Text.h"
#include "window/BrowserForm.h"
#include "window/SkinRoom.h"

namespace {

using Names = std::vector<std::string>;

// Notes which controls were hidden, in order.
struct HidingObserver final : controls::ControlObserver {
    void OnPropertyChanged(controls::Control& control, controls::Property property) override {
        if (property == controls::Property::Visible && !control.Visible()) hidden.push_back(control.Name());
    }
    Names hidden;
};

class SkinRoomTest : public testing::Test {
protected:
    SkinRoomTest() {
        for (std::size_t i = 0; i < pictures.size(); ++i) {
            pictures[i] = std::make_unique<controls::Image>("twin" + std::to_string(i));
            pictures[i]->SetObserver(&observer);
            twins[i] = pictures[i].get();
        }
        room.emplace(chrome, twins, [this] {
            ++settled;
            hidden_when_settled = observer.hidden.size();
        });
    }
    ~SkinRoomTest() override {
        for (auto& picture : pictures)
            picture->SetObserver(nullptr);
    }

    HidingObserver observer;
    window::ChromeControls chrome;
    std::array<std::unique_ptr<controls::Image>, window::kTwinCount> pictures;
    window::BrightTwins twins{};
    int settled = 0;
    std::size_t hidden_when_settled = 0;
    std::optional<window::SkinRoom> room;
};

TEST_F(SkinRoomTest, NoMouseOversHidesEveryTwinInTheirOrder) {
    Names expected;
    for (const controls::Image* twin : twins)
        expected.push_back(twin->Name());

    room->NoMouseOvers();

    EXPECT_EQ(observer.hidden, expected);
}

TEST_F(SkinRoomTest, NoMouseOversPutsTheMakersNameBackIntoItsColour) {
    const std::string calm = chrome.lblCopyright.Look();
    chrome.lblCopyright.MouseMove.Raise(0, 0, 1, 1);

    room->NoMouseOvers();

    EXPECT_EQ(chrome.lblCopyright.Look(), calm);
}

TEST_F(SkinRoomTest, ThePointerOverTheMakersNameLightsIt) {
    const std::string calm = chrome.lblCopyright.Look();

    chrome.lblCopyright.MouseMove.Raise(0, 0, 1, 1);

    EXPECT_NE(chrome.lblCopyright.Look(), calm);
    EXPECT_TRUE(observer.hidden.empty());
}

TEST_F(SkinRoomTest, PicturesThatShowAStateSettleOnceAllTwinsAreHidden) {
    room->NoMouseOvers();

    EXPECT_EQ(settled, 1);
    EXPECT_EQ(hidden_when_settled, window::kTwinCount);
}

TEST_F(SkinRoomTest, ThePointerOverAnyGroundHidesTheTwins) {
    for (controls::Control* ground :
         std::vector<controls::Control*>{&chrome.imgFormBG, &chrome.imgBG, &chrome.imgRowBG,
                                         &chrome.fraMusicTab, &chrome.imgMusicTabBG, &chrome.lblMusicBG}) {
        SCOPED_TRACE(ground->Name());
        twins[0]->SetVisible(true);

        ground->MouseMove.Raise(0, 0, 10, 10);

        EXPECT_FALSE(twins[0]->Visible());
    }
}

TEST(FreshWindow, EveryTwinIsHidden) {
    const window::BrowserForm window;
    int twins = 0;
    for (const controls::Control* control : window_tests::ControlsOf(window)) {
        if (!base::LCase(control->Name()).ends_with("over")) continue;
        ++twins;
        EXPECT_FALSE(control->Visible()) << control->Name();
    }
    EXPECT_EQ(twins, 17);
}

TEST_F(SkinRoomTest, ARoomThatEndsGivesItsGroundsBack) {
    room.reset();

    EXPECT_FALSE(chrome.imgBG.MouseMove.IsClaimed());
    EXPECT_FALSE(chrome.lblCopyright.MouseMove.IsClaimed());
}

}  // namespace
