#include "platform/qt/DesktopPrograms.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "base/Text.h"
#include "platform/qt/QtBench.h"

namespace {

class DesktopPrograms : public testing::Test {
protected:
    /// A program that leaves a file beside it.
    void Install(const char* name) {
        QFile file(folder.filePath(QString::fromUtf8(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\ntouch \"$0.ran\"\n");
        file.close();
        ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    std::string Native(const char* name) const {
        return folder.filePath(QString::fromUtf8(name)).toStdString();
    }
    static std::string Drive(const std::string& native) { return "C:" + base::Replace(native, "/", "\\"); }

    QTemporaryDir folder;
    const QByteArray old_path = qgetenv("PATH");
    qt::DesktopPrograms programs{
        {.to_native = [](std::string_view path) { return base::Replace(path.substr(2), "\\", "/"); },
         .to_drive = &Drive},
        {"better_tool", "good_tool"}};
};

TEST_F(DesktopPrograms, TheFirstToolThatIsInstalledDescribesTheComputer) {
    qputenv("PATH", folder.path().toUtf8());
    EXPECT_EQ(programs.SystemInformationTool(), "");
    Install("good_tool");
    EXPECT_EQ(programs.SystemInformationTool(), Drive(Native("good_tool")));
    Install("better_tool");
    EXPECT_EQ(programs.SystemInformationTool(), Drive(Native("better_tool")));
    qputenv("PATH", old_path);
}

TEST_F(DesktopPrograms, AProgramThatIsThereIsStarted) {
    Install("good_tool");

    EXPECT_TRUE(programs.Start(Drive(Native("good_tool"))));

    EXPECT_TRUE(qt_tests::WaitFor([this] { return QFile::exists(folder.filePath("good_tool.ran")); }));
}

TEST_F(DesktopPrograms, WhatIsNoProgramIsNotStarted) {
    EXPECT_FALSE(programs.Start(Drive(Native("nowhere"))));
    EXPECT_FALSE(programs.Start(Drive(folder.path().toStdString())));
    Install("good_tool");
    QFile::setPermissions(folder.filePath("good_tool"), QFile::ReadOwner);

    EXPECT_FALSE(programs.Start(Drive(Native("good_tool"))));
}

}  // namespace
