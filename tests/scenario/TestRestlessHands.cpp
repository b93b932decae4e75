#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>
#include <random>

#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;

// Somebody who clicks, types, drags and waits without any plan, wherever something can be reached.
class RestlessHands : public testing::TestWithParam<unsigned> {
protected:
    RestlessHands() {
        computer.AddUser("Ann", "rose");
        for (int id = 1; id <= 6; ++id)
            computer.AddToLibrary(id, "Artist" + std::to_string(id % 3), "Song" + std::to_string(id),
                                  {9'000, 1000});
        computer.AddToLibrary(7, "Moon", "Film", {12'000, 25}, "avi");
        computer.AddPage("http://one.example/", "One");
        computer.AddPage("http://two.example/", "Two");
        program->StartAndLogIn("Ann", "rose");
    }

    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(chance_); }
    double Anywhere() { return std::uniform_real_distribution<double>(-50, 3000)(chance_); }

    static void Collect(controls::Container& container, std::vector<controls::Control*>& into) {
        for (controls::Control* child : container.Children()) {
            if (child->ControlKind() == controls::Kind::Timer || !child->Visible() || !child->Enabled()) {
                continue;
            }
            into.push_back(child);
            if (auto* inner = dynamic_cast<controls::Container*>(child)) Collect(*inner, into);
        }
    }
    static void Collect(controls::Menu& menu, std::vector<controls::Control*>& into) {
        for (controls::Menu* entry : menu.Entries()) {
            if (!entry->Enabled() || !entry->Visible()) continue;
            // An end would leave nothing to click on.
            if (entry->Name() != "mnuExit" && entry->Name() != "mnuLogout") into.push_back(entry);
            Collect(*entry, into);
        }
    }
    std::vector<controls::Control*> WithinReach() {
        std::vector<controls::Control*> found;
        for (controls::Form* window : program->windows.All()) {
            if (!window->Visible() || !window->Enabled()) continue;
            Collect(*window, found);
            for (controls::Menu* menu : window->MenuBar())
                Collect(*menu, found);
        }
        return found;
    }

    void Choose(controls::Control& control) {
        static constexpr std::array kTexts = {
            "one.example",           "two.example",           "",    "song", "12", "C:\\Music",
            "(http://one.example/)", "\xC3\xA4 \xE2\x82\xAC", "http"};
        const std::string text = kTexts[static_cast<std::size_t>(Below(kTexts.size()))];
        if (auto* box = dynamic_cast<controls::TextBox*>(&control)) box->SetText(text);
        if (auto* list = dynamic_cast<controls::ListBox*>(&control)) list->SetListIndex(Below(8) - 1);
        if (auto* combo = dynamic_cast<controls::ComboBox*>(&control)) combo->SetListIndex(Below(6));
    }

    void Touch(controls::Control& control) {
        switch (Below(8)) {
            case 0:
                control.MouseMove.Raise(0, 0, Anywhere(), Anywhere());
                break;
            case 1:
                control.MouseDown.Raise(controls::kLeftButton, 0, Anywhere(), Anywhere());
                control.MouseMove.Raise(controls::kLeftButton, 0, Anywhere(), Anywhere());
                control.MouseUp.Raise(controls::kLeftButton, 0, Anywhere(), Anywhere());
                break;
            case 2:
                control.KeyDown.Raise(controls::kKeyEnter, 0);
                break;
            case 3:
                control.DblClick.Raise();
                break;
            case 4:
                Choose(control);
                break;
            default:
                control.Click.Raise();
        }
        program->desktop.EndHandler();
    }

    void Answer() {
        program->dialogs.Answers = {Below(2) == 0 ? ports::BoxAnswer::Yes : ports::BoxAnswer::No};
        program->dialogs.Typed = {Below(2) == 0 ? "Evening" : ""};
    }

    /// What most hands do most of the time.
    void UseIt() {
        auto& tracks = Browser().library.lists.lstTracks;
        if (Below(3) == 0) {
            program->GoTo(Below(2) == 0 ? "one.example" : "two.example");
        } else if (tracks.SetListIndex(Below(std::max(tracks.ListCount(), 1)))) {
            program->DoubleClick(tracks);
        }
    }

    /// The cross of a window that is not the main one.
    void CloseAWindow() {
        for (controls::Form* window : program->windows.All()) {
            if (window == &Browser() || !window->Visible()) continue;
            window->UnloadWindow();
            program->desktop.EndHandler();
            return;
        }
    }

    void OneStep() {
        const auto reach = WithinReach();
        ASSERT_FALSE(reach.empty());
        Answer();
        Touch(*reach[static_cast<std::size_t>(Below(static_cast<int>(reach.size())))]);
        if (Below(4) == 0) program->Wait(Below(20) * 50);
        if (Below(4) == 0) program->LetPagesArrive();
        if (Below(8) == 0) CloseAWindow();
        if (Below(6) == 0 && Browser().Enabled()) UseIt();
        if (Below(40) == 0) {
            Browser().Move(0, 0, 8000 + Below(20'000), 7000 + Below(15'000));
        }
    }

    void ExpectSound() {
        const auto& lists = Browser().library.lists;
        const auto& queue = Browser().player.queue;
        const auto& tabs = Browser().web.tabs;
        EXPECT_EQ(lists.lstMaybe.ListCount(), lists.lstTracks.ListCount());
        EXPECT_EQ(queue.lstCuedSongsPath.ListCount(), queue.lstCuedSongs.ListCount());
        EXPECT_EQ(tabs.Browser.Count(), tabs.tabtab.Count());
        EXPECT_EQ(tabs.tabLabel.Count(), tabs.tabtab.Count());
        EXPECT_EQ(tabs.tabClose.Count(), tabs.tabtab.Count());
        EXPECT_EQ(tabs.mnuTabTab.Count(), tabs.tabtab.Count());
        for (int i = 0; i < tabs.tabtab.Count(); ++i)
            EXPECT_EQ(tabs.tabtab(i).Visible(), tabs.Browser(i).Visible()) << "tab " << i;
        EXPECT_GE(lists.lstTracks.Height(), 36 * controls::kTwipsPerPixel);
        EXPECT_GE(Browser().Width(), 9225);
        EXPECT_GE(Browser().Height(), 7590);
        EXPECT_TRUE(Browser().IsLoaded());
        EXPECT_FALSE(program->ended);
    }

    window::BrowserForm& Browser() { return program->Browser(); }

    Computer computer;
    std::optional<Program> program{std::in_place, computer};
    std::mt19937 chance_{GetParam()};
};

TEST_P(RestlessHands, LeaveTheProgramSound) {
    for (int step = 0; step < 400 && !HasFailure(); ++step) {
        OneStep();
        ExpectSound();
    }

    program->dialogs.Answers = {ports::BoxAnswer::Yes};
    program->Click(Browser().menus.mnuExit);
    ASSERT_TRUE(program->ended);

    // What is in the stores by now is what the next run begins with.
    program.emplace(computer);
    program->StartAndLogIn("Ann", "rose");
    const auto songs = computer.database.Rows(scenario::kMediaPath, "tblSong");
    EXPECT_EQ(Browser().library.lists.lstTracks.ListCount(), static_cast<int>(songs.size()));
    EXPECT_TRUE(Browser().Enabled());
}

INSTANTIATE_TEST_SUITE_P(OfManyKinds, RestlessHands, testing::Range(1U, 25U));

}  // namespace
