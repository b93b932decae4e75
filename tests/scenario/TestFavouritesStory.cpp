#include <gtest/gtest.h>

#include <memory>

#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;
using Texts = std::vector<std::string>;

class FavouritesStory : public testing::Test {
protected:
    FavouritesStory() {
        computer.AddUser("Ann", "rose");
        computer.AddUser("Bob", "thorn");
        computer.AddPage("http://one.example/", "One");
        Run();
    }
    void Run() {
        program.reset();
        program = std::make_unique<Program>(computer);
        program->StartAndLogIn("Ann", "rose");
    }
    window::BrowserForm& Browser() { return program->Browser(); }

    Computer computer;
    std::unique_ptr<Program> program;
};

TEST_F(FavouritesStory, TheNextUserIsOfferedNothingOfThePageBefore) {
    program->GoTo("http://one.example/");
    program->LetPagesArrive();
    program->Click(Browser().favourites.imgAddOver);
    ASSERT_EQ(program->windows.add.txtURL.Text(), "http://one.example/");
    program->Click(program->windows.add.cmdCancel);
    program->dialogs.Answers = {ports::BoxAnswer::Yes};
    program->Click(Browser().menus.mnuLogout);
    program->LogIn("Bob", "thorn");
    program->Wait(12'000);

    program->Click(Browser().favourites.imgAddOver);

    EXPECT_EQ(program->windows.add.txtURL.Text(), "");
    EXPECT_EQ(program->windows.add.txtName.Text(), "");
}

TEST_F(FavouritesStory, EscapeAsTheDialogComesUpLeavesTheMainWindowInUse) {
    program->desktop.Post([this] { program->windows.add.txtName.KeyDown.Raise(controls::kKeyEscape, 0); });

    program->Click(Browser().favourites.imgAddOver);

    EXPECT_FALSE(program->windows.add.frmAdd.Visible());
    EXPECT_TRUE(Browser().Visible());
    EXPECT_TRUE(Browser().Enabled());
}

TEST_F(FavouritesStory, FavouritesOfAnotherBrowserAreInThePanelAndOutlastTheRun) {
    const std::string words = program->main_window.Favourites().Import(
        "<DL><DT><H3>Birds</H3><DL><DT><A HREF=\"http://one.example/\">One</A></DL></DL>");
    program->desktop.EndHandler();
    EXPECT_EQ(words, "1 favourite in 1 new group came in.");
    EXPECT_EQ(Program::RowsOf(Browser().favourites.lstFavs),
              (Texts{"  [All Favourites]", "Birds", "Home Pages"}));

    Run();

    ASSERT_TRUE(Browser().favourites.lstFavs.SelectText("Birds"));
    EXPECT_EQ(Program::RowsOf(Browser().favourites.lstFavs),
              (Texts{"  [All Favourites]", "Birds", "  - One", "Home Pages"}));
    EXPECT_NE(program->main_window.Favourites().Export().find("http://one.example/"), std::string::npos);
}

}  // namespace
