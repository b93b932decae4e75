#include "platform/webengine/DownloadList.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/webengine/DownloadKinds.h"
#include "platform/webengine/DownloadWords.h"

namespace {

using webengine::Download;
using webengine::DownloadState;
using webengine::DownloadWords;
using webengine::SpeedMeter;

Download Of(const QString& name, DownloadState state) {
    Download download;
    download.address = QUrl(QStringLiteral("https://example.org/files/") + name);
    download.path = QStringLiteral("/home/owl/Downloads/") + name;
    download.state = state;
    download.received = 1'500'000;
    download.total = 3'000'000;
    download.begun = QDateTime::fromString(QStringLiteral("2026-03-01T10:00:00Z"), Qt::ISODate);
    return download;
}

class DownloadList : public testing::Test {
protected:
    DownloadList() { list.Open(file); }

    QTemporaryDir folder;
    QString file = folder.filePath("downloads.json");
    webengine::DownloadList list;
};

TEST_F(DownloadList, TheNewestIsFirst) {
    list.Add(Of("a.zip", DownloadState::Done));
    const int id = list.Add(Of("b.zip", DownloadState::Done));

    ASSERT_EQ(list.All().size(), 2U);
    EXPECT_EQ(list.All()[0].Name(), "b.zip");
    EXPECT_EQ(list.All()[0].id, id);
}

TEST_F(DownloadList, AnotherRunFindsWhatWasWritten) {
    Download failed = Of("b.zip", DownloadState::Failed);
    failed.why = "The disk is full.";
    list.Add(Of("a.zip", DownloadState::Done));
    list.Add(failed);
    ASSERT_TRUE(list.Save());

    webengine::DownloadList next;
    next.Open(file);

    ASSERT_EQ(next.All().size(), 2U);
    EXPECT_EQ(next.All()[0].why, "The disk is full.");
    EXPECT_EQ(next.All()[0].address, QUrl("https://example.org/files/b.zip"));
    EXPECT_EQ(next.All()[1].state, DownloadState::Done);
    EXPECT_EQ(next.All()[1].path, "/home/owl/Downloads/a.zip");
    EXPECT_EQ(next.All()[1].received, 1'500'000);
    EXPECT_EQ(next.All()[1].begun, failed.begun);
}

TEST_F(DownloadList, OneThatRanWhenTheProgramEndedCanBeRetried) {
    list.Add(Of("a.zip", DownloadState::Running));
    ASSERT_TRUE(list.Save());

    webengine::DownloadList next;
    next.Open(file);

    ASSERT_EQ(next.All().size(), 1U);
    EXPECT_EQ(next.All()[0].state, DownloadState::Failed);
    EXPECT_FALSE(next.All()[0].why.isEmpty());
    EXPECT_FALSE(next.All()[0].address.isEmpty());
}

TEST_F(DownloadList, AQuestionThatIsOpenIsAskedByTheNextRun) {
    Download asks = Of("a.sh", DownloadState::Done);
    asks.unconfirmed = asks.path + ".unconfirmed";
    list.Add(asks);
    ASSERT_TRUE(list.Save());

    webengine::DownloadList next;
    next.Open(file);

    ASSERT_EQ(next.All().size(), 1U);
    EXPECT_TRUE(next.All()[0].Asks());
    EXPECT_EQ(next.All()[0].unconfirmed, asks.unconfirmed);
}

TEST_F(DownloadList, OnlyTheOwnerMayReadTheFile) {
    list.Add(Of("a.zip", DownloadState::Done));
    ASSERT_TRUE(list.Save());

    EXPECT_EQ(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

TEST_F(DownloadList, ADamagedFileIsSetAside) {
    const QByteArray damages[] = {"", "{", "{}", "[3]", "[{\"path\":7}]", QByteArray(200, '\0')};
    for (const QByteArray& damage : damages) {
        QFile broken(file);
        ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
        broken.write(damage);
        broken.close();

        list.Open(file);

        EXPECT_TRUE(list.All().empty()) << damage.toStdString();
        EXPECT_TRUE(QFile::exists(file + ".damaged")) << damage.toStdString();
        QFile::remove(file + ".damaged");
    }
}

TEST_F(DownloadList, AFileThatCannotBeWrittenCostsTheListOnly) {
    list.Open("/nowhere/at/all/downloads.json");
    list.Add(Of("a.zip", DownloadState::Done));

    EXPECT_FALSE(list.Save());
    EXPECT_EQ(list.All().size(), 1U);
}

TEST_F(DownloadList, TheOldestThatAreOverGoFirst) {
    const int running = list.Add(Of("running.zip", DownloadState::Running));
    for (std::size_t i = 0; i < webengine::kMostListed + 20; ++i)
        list.Add(Of(QString::number(i) + ".zip", DownloadState::Done));

    EXPECT_EQ(list.All().size(), webengine::kMostListed);
    EXPECT_NE(list.Find(running), nullptr);
    EXPECT_EQ(list.All()[0].Name(), QString::number(webengine::kMostListed + 19) + ".zip");
}

TEST_F(DownloadList, ClearingLeavesWhatRunsAndWhatAsks) {
    Download asks = Of("a.sh", DownloadState::Done);
    asks.unconfirmed = asks.path + ".unconfirmed";
    list.Add(asks);
    list.Add(Of("b.zip", DownloadState::Running));
    list.Add(Of("c.zip", DownloadState::Done));
    list.Add(Of("d.zip", DownloadState::Cancelled));

    list.RemoveThoseOver();

    ASSERT_EQ(list.All().size(), 2U);
    EXPECT_EQ(list.All()[0].Name(), "b.zip");
    EXPECT_EQ(list.All()[1].Name(), "a.sh");
}

TEST(DownloadKinds, WhatADesktopMayRunIsDangerous) {
    for (const char* name :
         {"a.desktop", "a.SH", "song.mp3.exe", "a.AppImage", "a.docm", "a.jar", "a.deb", "a.py"})
        EXPECT_TRUE(webengine::IsDangerousKind(name)) << name;
    for (const char* name : {"a.zip", "a.mp3", "a.pdf", "a.docx", "a.bin", "a", "exe", "a.sh.txt"})
        EXPECT_FALSE(webengine::IsDangerousKind(name)) << name;
}

TEST(DownloadKinds, WhatThePlayerPlaysIsMedia) {
    for (const char* name : {"a.mp3", "a.MP4", "a.mpeg"})
        EXPECT_TRUE(webengine::IsMediaKind(name)) << name;
    for (const char* name : {"a.jpeg", "a.zip", "a.flac"})
        EXPECT_FALSE(webengine::IsMediaKind(name)) << name;
}

TEST(DownloadWords, SayHowFarItIs) {
    const Download running = Of("a.zip", DownloadState::Running);
    Download of_unknown_size = running;
    of_unknown_size.total = -1;

    EXPECT_EQ(DownloadWords(running, 0), "1.5 MB of 3.0 MB");
    EXPECT_EQ(DownloadWords(running, 500'000), "1.5 MB of 3.0 MB, 500.0 kB a second, 4 s left");
    EXPECT_EQ(DownloadWords(running, 5'000), "1.5 MB of 3.0 MB, 5.0 kB a second, 6 min left");
    EXPECT_EQ(DownloadWords(of_unknown_size, 500'000), "1.5 MB, 500.0 kB a second");
    EXPECT_EQ(DownloadWords(Of("a.zip", DownloadState::Paused), 0), "Paused, 1.5 MB of 3.0 MB");
    EXPECT_EQ(DownloadWords(Of("a.zip", DownloadState::Done), 0), "1.5 MB, from example.org");
}

TEST(SpeedMeter, IsWhatCameInLately) {
    SpeedMeter meter;
    meter.Take(0, 0);
    meter.Take(1000, 2000);
    EXPECT_EQ(meter.PerSecond(1000), 2000);

    for (int second = 2; second < 20; ++second)
        meter.Take(qint64{1000} * second, 2000 + qint64{500} * (second - 1));

    EXPECT_NEAR(static_cast<double>(meter.PerSecond(20'000)), 500, 10);
    EXPECT_EQ(meter.PerSecond(30'000), 0);
}

}  // namespace
