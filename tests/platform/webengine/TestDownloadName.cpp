#include "platform/webengine/DownloadName.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

using webengine::CleanDownloadName;
using webengine::EndsInside;
using webengine::FreeDownloadName;

void Touch(const QString& path) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
}

TEST(DownloadName, ServersNamesAreCleaned) {
    const std::pair<const char*, const char*> cases[] = {
        {"owl.zip", "owl.zip"},
        {"../../owl.zip", "owl.zip"},
        {"..\\..\\owl.zip", "owl.zip"},
        {"/etc/passwd", "passwd"},
        {"C:\\x\\owl.zip", "owl.zip"},
        {".bashrc", "bashrc"},
        {"...", "download"},
        {"..", "download"},
        {"", "download"},
        {"a/", "download"},
        {" owl .zip. ", "owl .zip"},
        {"a:b*c?.zip", "a_b_c_.zip"},
        {"a\nb.zip", "a_b.zip"},
        {"tawny owl (live).mp3", "tawny owl (live).mp3"},
        {"\xC3\xA9t\xC3\xA9.mp3", "\xC3\xA9t\xC3\xA9.mp3"},
        {"gpj.\xE2\x80\xAE"
         "exe",
         "gpj._exe"},
    };
    for (const auto& [suggested, wanted] : cases) {
        EXPECT_EQ(CleanDownloadName(QString::fromUtf8(suggested)).toStdString(), wanted) << suggested;
    }
}

TEST(DownloadName, ALongNameKeepsItsExtension) {
    const QString name = CleanDownloadName(QString(400, 'a') + ".mp3");

    EXPECT_EQ(name.size(), webengine::kLongestDownloadName);
    EXPECT_TRUE(name.endsWith(".mp3"));
}

TEST(DownloadName, ALongNameFitsTheDiskInEveryScript) {
    const QString name = CleanDownloadName(QString(400, QChar(0x96D5)) + ".mp3");

    EXPECT_LE(name.toUtf8().size(), webengine::kLongestDownloadBytes);
    EXPECT_GT(name.size(), 60);
    EXPECT_TRUE(name.endsWith(".mp3"));
}

TEST(DownloadName, ACharacterOfTwoHalvesIsNotCut) {
    for (const char* begin : {"", "a", "ab", "abc"}) {
        const QString name =
            CleanDownloadName(begin + QString::fromUtf8("\xF0\x9F\xA6\x89").repeated(100) + ".mp3");

        EXPECT_EQ(QString::fromUtf8(name.toUtf8()), name) << begin;
        EXPECT_TRUE(name.endsWith(".mp3")) << begin;
    }
}

TEST(DownloadName, APromisedNameIsTaken) {
    const QTemporaryDir folder;
    const QSet<QString> promised{folder.filePath("owl.zip").toLower()};

    EXPECT_EQ(FreeDownloadName(folder.path(), "owl.zip", promised), "owl (1).zip");
    EXPECT_EQ(FreeDownloadName(folder.path(), "OWL.zip", promised), "OWL (1).zip");
}

TEST(DownloadName, WhatIsAppendedOnTheWayIsTakenToo) {
    const QTemporaryDir folder;
    const QSet<QString> promised{folder.filePath("owl.zip").toLower()};
    Touch(folder.filePath("lark.zip.download"));
    Touch(folder.filePath("lark.sh.unconfirmed"));

    EXPECT_EQ(FreeDownloadName(folder.path(), "owl.zip.download", promised), "owl.zip (1).download");
    EXPECT_EQ(FreeDownloadName(folder.path(), "owl.zip.unconfirmed", promised), "owl.zip (1).unconfirmed");
    EXPECT_EQ(FreeDownloadName(folder.path(), "lark.zip"), "lark (1).zip");
    EXPECT_EQ(FreeDownloadName(folder.path(), "lark.sh"), "lark (1).sh");
}

TEST(DownloadName, ATakenNameGetsANumber) {
    const QTemporaryDir folder;
    Touch(folder.filePath("owl.zip"));
    Touch(folder.filePath("owl (1).zip"));

    EXPECT_EQ(FreeDownloadName(folder.path(), "owl.zip"), "owl (2).zip");
    EXPECT_EQ(FreeDownloadName(folder.path(), "lark.zip"), "lark.zip");
}

TEST(DownloadName, ALinkThatLeadsElsewhereIsTaken) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::link("/nowhere/at/all", folder.filePath("owl.zip")));

    EXPECT_EQ(FreeDownloadName(folder.path(), "owl.zip"), "owl (1).zip");
}

TEST(DownloadName, OnlyNamesDirectlyInTheFolderEndInside) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir("sub"));

    EXPECT_TRUE(EndsInside(folder.path(), "owl.zip"));
    EXPECT_FALSE(EndsInside(folder.path(), "../owl.zip"));
    EXPECT_FALSE(EndsInside(folder.path(), "sub/owl.zip"));
    EXPECT_FALSE(EndsInside("/nowhere/at/all", "owl.zip"));
}

}  // namespace
