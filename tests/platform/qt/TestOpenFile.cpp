#include "platform/qt/OpenFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/qt/QtBench.h"

namespace {

class OpenFile : public testing::Test {
protected:
    OpenFile() { qputenv("PATH", folder.path().toUtf8()); }
    ~OpenFile() override { qputenv("PATH", old_path); }

    void Install(const char* script, bool may_run = true) {
        QFile file(folder.filePath("xdg-open"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(script);
        file.close();
        const QFile::Permissions rights = QFile::ReadOwner | QFile::WriteOwner;
        ASSERT_TRUE(file.setPermissions(may_run ? rights | QFile::ExeOwner : rights));
    }
    QByteArray Opened() const {
        QFile file(folder.filePath("xdg-open.opened"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void Open(const char* file) {
        qt::OpenFileWithDesktop(file, [this] { ++otherwise; });
    }

    QTemporaryDir folder;
    const QByteArray old_path = qgetenv("PATH");
    int otherwise = 0;
};

TEST_F(OpenFile, TheDesktopOpensTheFile) {
    Install("#!/bin/sh\necho \"$#:$1\" > \"$0.opened\"\n");

    Open("/home/owl/a b #1.log");

    EXPECT_TRUE(qt_tests::WaitFor([this] { return Opened() == "1:/home/owl/a b #1.log\n"; }));
    EXPECT_EQ(otherwise, 0);
}

TEST_F(OpenFile, WithoutTheToolItIsSaidAtOnce) {
    Open("/home/owl/a.log");

    EXPECT_EQ(otherwise, 1);
}

TEST_F(OpenFile, AToolThatFindsNoProgramIsNoticed) {
    Install("#!/bin/sh\nexit 3\n");

    Open("/home/owl/a.log");

    EXPECT_TRUE(qt_tests::WaitFor([this] { return otherwise == 1; }));
}

TEST_F(OpenFile, AToolThatCannotRunIsNoticedOnce) {
    Install("#!/nowhere/sh\n");

    Open("/home/owl/a.log");

    EXPECT_TRUE(qt_tests::WaitFor([this] { return otherwise == 1; }));
    qt_tests::WaitFor([] { return true; });
    EXPECT_EQ(otherwise, 1);
}

}  // namespace
