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
