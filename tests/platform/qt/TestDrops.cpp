#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QUrl>
#include <filesystem>
#include <string>
#include <system_error>

#include "platform/qt/Drops.h"

namespace {

bool IsFolder(const std::string& native) {
    std::error_code unknown;
    return std::filesystem::is_directory(native, unknown);
}

std::string Drive(const std::string& native) {
    return "C:" + native;
}

TEST(Drops, FilesComeInTheControlsForm) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/music/One.mp3"), QUrl::fromLocalFile("/music/T w o.mp3")});

    const controls::DropData drop = qt::DropDataOf(data, Drive, IsFolder);

    EXPECT_EQ(drop.Files, (std::vector<std::string>{"C:/music/One.mp3", "C:/music/T w o.mp3"}));
    EXPECT_FALSE(drop.HasText);
}

TEST(Drops, ANameThatIsNoTextKeepsItsBytes) {
    QMimeData data;
    data.setData("text/uri-list", "file:///music/%FFodd.mp3\r\n");

    const controls::DropData drop = qt::DropDataOf(data, Drive, IsFolder);

    ASSERT_EQ(drop.Files.size(), 1U);
    EXPECT_EQ(drop.Files[0], "C:/music/\xffodd.mp3");
}

TEST(Drops, AFileFromElsewhereIsLeftOut) {
    QMimeData data;
    data.setUrls({QUrl("http://example.org/One.mp3"), QUrl::fromLocalFile("/music/Two.mp3")});

    EXPECT_EQ(qt::DropDataOf(data, Drive, IsFolder).Files, std::vector<std::string>{"C:/music/Two.mp3"});
}

TEST(Drops, ARowsTextGoesOutAndComesIn) {
    const auto data = qt::DragOf("17");

    const controls::DropData drop = qt::DropDataOf(*data, Drive, IsFolder);

    EXPECT_TRUE(qt::IsDroppable(*data, IsFolder));
    EXPECT_TRUE(drop.HasText);
    EXPECT_EQ(drop.Text, "17");
    EXPECT_TRUE(drop.Files.empty());
}

TEST(Drops, ADragWithFilesCarriesNoText) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/music/One.mp3")});
    data.setText("/music/One.mp3");

    EXPECT_FALSE(qt::DropDataOf(data, Drive, IsFolder).HasText);
}

TEST(Drops, AFolderIsRefused) {
    const QTemporaryDir folder;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(folder.path())});

    EXPECT_FALSE(qt::IsDroppable(data, IsFolder));
    EXPECT_TRUE(qt::DropDataOf(data, Drive, IsFolder).Files.empty());
    EXPECT_FALSE(qt::DropDataOf(data, Drive, IsFolder).HasText);
}

TEST(Drops, AFolderAmongFilesIsLeftOut) {
    const QTemporaryDir folder;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(folder.path()), QUrl::fromLocalFile("/music/Two.mp3")});

    EXPECT_TRUE(qt::IsDroppable(data, IsFolder));
    EXPECT_EQ(qt::DropDataOf(data, Drive, IsFolder).Files, std::vector<std::string>{"C:/music/Two.mp3"});
}

TEST(Drops, AnAddressFromElsewhereIsAText) {
    QMimeData data;
    data.setUrls({QUrl("http://example.org/page")});

    EXPECT_TRUE(qt::IsDroppable(data, IsFolder));
    EXPECT_EQ(qt::DropDataOf(data, Drive, IsFolder).Text, "http://example.org/page");
}

TEST(Drops, APictureAloneIsNothingToDrop) {
    QMimeData data;
    data.setData("image/png", "x");

    EXPECT_FALSE(qt::IsDroppable(data, IsFolder));
}

}  // namespace
