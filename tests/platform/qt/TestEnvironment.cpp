#include <gtest/gtest.h>
#include <unistd.h>

#include <QByteArray>
#include <QCoreApplication>

#include "platform/qt/Environment.h"

namespace {

class EnvironmentTest : public testing::Test {
protected:
    ~EnvironmentTest() override { qputenv("QT_QPA_PLATFORM", "offscreen"); }
};

TEST_F(EnvironmentTest, WhatCouldStartProgramsOrOpenAPortIsReplaced) {
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--no-sandbox --renderer-cmd-prefix=evil");
    qputenv("QTWEBENGINE_REMOTE_DEBUGGING", "9222");
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    qputenv("SSLKEYLOGFILE", "/tmp/keys.log");

    qt::PrepareEnvironment();

    EXPECT_FALSE(qgetenv("QTWEBENGINE_CHROMIUM_FLAGS").contains("sandbox"));
    EXPECT_FALSE(qgetenv("QTWEBENGINE_CHROMIUM_FLAGS").contains("evil"));
    EXPECT_FALSE(qEnvironmentVariableIsSet("QTWEBENGINE_REMOTE_DEBUGGING"));
    EXPECT_FALSE(qEnvironmentVariableIsSet("SSLKEYLOGFILE"));
    // Root has no sandbox to lose.
    EXPECT_EQ(qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX"), geteuid() == 0);
}

TEST_F(EnvironmentTest, WindowsAreX11Windows) {
    qputenv("QT_QPA_PLATFORM", "wayland");

    qt::PrepareEnvironment();

    EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "xcb");
}

// Its libraries are a third of a start's time; the pages bring it when the first one is wanted.
TEST_F(EnvironmentTest, AStartAsksForNoOpenGl) {
    qt::PrepareEnvironment();

    EXPECT_FALSE(QCoreApplication::testAttribute(Qt::AA_ShareOpenGLContexts));
}

TEST_F(EnvironmentTest, AMissingDisplayIsToldInWords) {
    qunsetenv("DISPLAY");
    EXPECT_NE(qt::MissingDisplay().find("DISPLAY is not set"), std::string::npos);

    qputenv("DISPLAY", ":7654");
    EXPECT_NE(qt::MissingDisplay().find("cannot reach the display \":7654\""), std::string::npos);
}

TEST_F(EnvironmentTest, TheApplicationIsGivenItsNameAndNoOtherArgument) {
    EXPECT_EQ(QCoreApplication::arguments().size(), 1);
}

}  // namespace
