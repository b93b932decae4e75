#include "session/SessionHarness.h"

namespace {

using MediaKeys = session_tests::CoreTest;
using session_tests::Texts;

TEST_F(MediaKeys, EachKeyHasItsAction) {
    const struct {
        int key;
        const char* action;
    } cases[] = {{173, "ToggleMute"},
                 {174, "DecreaseVolume"},
                 {175, "IncreaseVolume"},
                 {176, "Next"},
                 {177, "Previous"},
                 {178, "Stop"},
                 {179, "Play"},
                 {166, "GoBack"},
                 {167, "GoForward"},
                 {168, "Refresh"},
                 {172, "OpenTab brindlepost://start"}};
    for (const auto& one : cases) {
        near.Log.clear();

        keys.KeyDown(one.key, 0);

        EXPECT_EQ(near.Log, Texts{one.action}) << one.key;
    }
}

TEST_F(MediaKeys, PlayOrPausePausesWhileThePauseButtonShows) {
    near.PlayShown = false;

    keys.KeyDown(179, 0);

    EXPECT_EQ(near.Log, Texts{"Pause"});
}

TEST_F(MediaKeys, ShiftControlAndAltDoNothing) {
    for (const int shift : {1, 2, 4}) {
        for (int key = 160; key < 190; ++key)
            keys.KeyDown(key, shift);
    }

    EXPECT_TRUE(near.Log.empty());
}

TEST_F(MediaKeys, OtherKeysDoNothing) {
    for (const int key : {13, 65, 165, 169, 170, 171, 180})
        keys.KeyDown(key, 0);

    EXPECT_TRUE(near.Log.empty());
}

TEST_F(MediaKeys, KeysOfTheMainWindowReachThem) {
    w.frmBrowser.KeyDown.Raise(178, 0);

    EXPECT_EQ(near.Log, Texts{"Stop"});
}

}  // namespace
