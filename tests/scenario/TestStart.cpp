#include <gtest/gtest.h>

#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;

class StartScenario : public testing::Test {
protected:
    Computer computer;
};

TEST_F(StartScenario, TheFirstStartShowsTheSplashWithTheLoginInFront) {
    Program program(computer);

    program.Start();

    EXPECT_TRUE(program.windows.activate.frmActivate.Visible());
    EXPECT_TRUE(program.windows.login.frmLogin.Visible());
    EXPECT_FALSE(program.Browser().Enabled());
    EXPECT_TRUE(program.BoxTexts().empty());
}

}  // namespace
