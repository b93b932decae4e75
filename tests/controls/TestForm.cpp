#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/RecordingObserver.h"

namespace controls {
namespace {

using Heard = std::vector<std::string>;

class FormTest : public testing::Test {
protected:
    FormTest() {
        claims_.Claim(form_.Load, [this] { heard_.emplace_back("Load"); });
        claims_.Claim(form_.Activate, [this] { heard_.emplace_back("Activate"); });
        claims_.Claim(form_.Resize, [this] { heard_.emplace_back("Resize"); });
        claims_.Claim(form_.QueryUnload, [this](bool& cancel) {
            heard_.emplace_back("QueryUnload");
            cancel = cancel_query_;
        });
        claims_.Claim(form_.Unload, [this](bool& cancel) {
            heard_.emplace_back("Unload");
            cancel = cancel_unload_;
        });
    }

    Form form_{"frmInfo", "Preferences"};
    EventClaims claims_;
    Heard heard_;
    bool cancel_query_ = false;
    bool cancel_unload_ = false;
};

TEST_F(FormTest, BeginsHiddenAndUnloaded) {
    EXPECT_FALSE(form_.Visible());
    EXPECT_FALSE(form_.IsLoaded());
}

TEST_F(FormTest, ShowingLoadsFirstAndActivatesOnce) {
    form_.Show();
    form_.Show();

    EXPECT_EQ(heard_, (Heard{"Load", "Activate"}));
    EXPECT_TRUE(form_.Visible());
}

TEST_F(FormTest, LoadingDoesNotShow) {
    form_.LoadWindow();
    form_.LoadWindow();

    EXPECT_EQ(heard_, Heard{"Load"});
    EXPECT_FALSE(form_.Visible());
}

TEST_F(FormTest, HidingKeepsTheWindowLoaded) {
    form_.Show();
    form_.Hide();
    form_.Show();

    EXPECT_EQ(heard_, (Heard{"Load", "Activate", "Activate"}));
}

TEST_F(FormTest, UnloadingAsksThenTellsThenHides) {
    form_.Show();
    heard_.clear();

    EXPECT_TRUE(form_.UnloadWindow());

    EXPECT_EQ(heard_, (Heard{"QueryUnload", "Unload"}));
    EXPECT_FALSE(form_.IsLoaded());
    EXPECT_FALSE(form_.Visible());
}

TEST_F(FormTest, AnUnloadingCanBeRefusedWhenAsked) {
    form_.Show();
    heard_.clear();
    cancel_query_ = true;

    EXPECT_FALSE(form_.UnloadWindow());

    EXPECT_EQ(heard_, Heard{"QueryUnload"});
    EXPECT_TRUE(form_.IsLoaded());
    EXPECT_TRUE(form_.Visible());
}

TEST_F(FormTest, AnUnloadingCanBeRefusedWhenTold) {
    form_.Show();
    heard_.clear();
    cancel_unload_ = true;

    EXPECT_FALSE(form_.UnloadWindow());

    EXPECT_EQ(heard_, (Heard{"QueryUnload", "Unload"}));
    EXPECT_TRUE(form_.IsLoaded());
    EXPECT_TRUE(form_.Visible());
}

TEST_F(FormTest, UnloadingAWindowThatIsNotLoadedRaisesNothing) {
    EXPECT_TRUE(form_.UnloadWindow());

    EXPECT_EQ(heard_, Heard{});
}

TEST_F(FormTest, AnUnloadedWindowLoadsAgain) {
    form_.Show();
    form_.UnloadWindow();
    heard_.clear();

    form_.Show();

    EXPECT_EQ(heard_, (Heard{"Load", "Activate"}));
}

TEST_F(FormTest, AWindowUnloadedWhileItLoadsIsNotShown) {
    claims_.Release();
    claims_.Claim(form_.Load, [this] { form_.UnloadWindow(); });

    form_.Show();

    EXPECT_FALSE(form_.Visible());
    EXPECT_FALSE(form_.IsLoaded());
}

TEST_F(FormTest, AWindowShownByItsOwnLoadIsActivatedOnce) {
    claims_.Release();
    claims_.Claim(form_.Load, [this] { form_.Show(); });
    claims_.Claim(form_.Activate, [this] { heard_.emplace_back("Activate"); });

    form_.Show();

    EXPECT_EQ(heard_, Heard{"Activate"});
}

TEST_F(FormTest, AWindowUnloadedWhileItAsksIsUnloadedOnce) {
    claims_.Release();
    claims_.Claim(form_.QueryUnload, [this](bool&) {
        heard_.emplace_back("QueryUnload");
        if (heard_.size() == 1) form_.UnloadWindow();
    });
    claims_.Claim(form_.Unload, [this](bool&) { heard_.emplace_back("Unload"); });
    form_.LoadWindow();

    EXPECT_TRUE(form_.UnloadWindow());

    EXPECT_EQ(heard_, (Heard{"QueryUnload", "QueryUnload", "Unload"}));
}

TEST_F(FormTest, ANewSizeRaisesResizeAndANewPlaceDoesNot) {
    form_.Move(0, 0, 3000, 1500);
    form_.Move(30, 45, 3000, 1500);
    form_.SetHeight(1800);
    form_.SetHeight(1800);

    EXPECT_EQ(heard_, (Heard{"Resize", "Resize"}));
}

TEST_F(FormTest, TheContentIsWhatTheFrameLeaves) {
    form_.SetContentSize(3000, 1500);

    EXPECT_EQ(form_.ContentWidth(), 3000);
    EXPECT_EQ(form_.ContentHeight(), 1500);
    EXPECT_EQ(form_.Width(), 3000 + 2 * kFrameBorder);
    EXPECT_EQ(form_.Height(), 1500 + kFrameTitle + kFrameBorder);
}

TEST_F(FormTest, AMenuBarTakesItsHeightFromTheContent) {
    Menu file("mnuFile", "File");
    form_.SetMenuBar({&file});

    form_.SetContentSize(3000, 1500);

    EXPECT_EQ(form_.Height(), 1500 + kFrameTitle + kFrameMenu + kFrameBorder);
}

TEST_F(FormTest, AWindowWithoutABorderIsAllContent) {
    Form bare("frmSplash", "", BorderStyle::None);

    bare.SetContentSize(3000, 1500);

    EXPECT_EQ(bare.Width(), 3000);
    EXPECT_EQ(bare.Height(), 1500);
}

TEST_F(FormTest, AFrameLargerThanTheWindowLeavesNoContent) {
    form_.Move(0, 0, 15, 15);

    EXPECT_EQ(form_.ContentWidth(), 0);
    EXPECT_EQ(form_.ContentHeight(), 0);
}

TEST_F(FormTest, AMinimisedWindowIsRestoredToWhatItWas) {
    for (const WindowState before : {WindowState::Normal, WindowState::Maximised}) {
        form_.SetState(before);
        form_.SetState(WindowState::Minimised);
        form_.SetState(WindowState::Minimised);

        form_.Restore();

        EXPECT_EQ(form_.State(), before);
    }
}

TEST_F(FormTest, RestoringLeavesAWindowThatIsNotMinimised) {
    form_.SetState(WindowState::Minimised);
    form_.SetState(WindowState::Maximised);

    form_.Restore();

    EXPECT_EQ(form_.State(), WindowState::Maximised);
}

TEST_F(FormTest, TheScreenIsToldOfStateCaptionAndPopup) {
    Menu menu("mnuTrack");
    RecordingObserver screen;
    form_.SetObserver(&screen);

    form_.SetState(WindowState::Normal);
    form_.SetCaption("Preferences");
    form_.SetState(WindowState::Maximised);
    form_.SetCaption("Options");
    form_.PopupMenu(menu);
    form_.PopupMenu(menu);

    EXPECT_EQ(screen.Told,
              (std::vector<Property>{Property::Window, Property::Caption, Property::Popup, Property::Popup}));
    EXPECT_EQ(form_.WantedPopup(), &menu);
}

}  // namespace
}  // namespace controls
