#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

#include "platform/qt/Pictures.h"
#include "platform/qt/SkinColours.h"

namespace {

class PicturesTest : public testing::Test {
protected:
    PicturesTest() {
        QDir(folder_.path()).mkdir("images");
        Save("play.png", 16, Qt::red);
        Save("play@2x.png", 32, Qt::green);
        Save("play@3x.png", 48, Qt::yellow);
        Save("pale.bmp", 20, Qt::blue);
    }

    void Save(const char* name, int side, const QColor& colour) const {
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(colour);
        ASSERT_TRUE(image.save(folder_.filePath(QStringLiteral("images/") + QLatin1String(name))));
    }

    QTemporaryDir folder_;
    qt::Pictures pictures_{folder_.path()};
};

QColor ColourOf(const QPixmap& picture) {
    return picture.toImage().pixelColor(1, 1);
}

TEST_F(PicturesTest, ABareNameIsAPictureOfTheSkin) {
    EXPECT_EQ(pictures_.OwnSize("play"), QSize(16, 16));
    EXPECT_EQ(pictures_.OwnSize("Play"), QSize(16, 16));
}

TEST_F(PicturesTest, APathBelowTheProgramsFolderIsReadWithEitherSeparator) {
    for (const char* name : {"\\images\\pale.bmp", "/images/pale.bmp", "images/pale.bmp"}) {
        EXPECT_EQ(pictures_.OwnSize(name), QSize(20, 20)) << name;
    }
}

TEST_F(PicturesTest, TheTwinIsUsedWhereItIsTheSharperOne) {
    EXPECT_EQ(ColourOf(pictures_.Fitted("play", {16, 16}, 1)), QColor(Qt::red));
    EXPECT_EQ(ColourOf(pictures_.Fitted("play", {16, 16}, 2)), QColor(Qt::green));
    EXPECT_EQ(ColourOf(pictures_.Fitted("play", {24, 24}, 1)), QColor(Qt::green));
    EXPECT_EQ(ColourOf(pictures_.Fitted("play", {16, 16}, 2.5)), QColor(Qt::yellow));
    EXPECT_EQ(ColourOf(pictures_.Fitted("play", {16, 16}, 3)), QColor(Qt::yellow));
}

TEST_F(PicturesTest, AFittedPictureHasTheSizeAndThePixelsOfTheScreen) {
    const QPixmap picture = pictures_.Fitted("pale.bmp", {40, 30}, 1.5);

    EXPECT_EQ(picture.size(), QSize(60, 45));
    EXPECT_EQ(picture.devicePixelRatio(), 1.5);
}

TEST_F(PicturesTest, InHighContrastAPictureHasItsColours) {
    const struct {
        QColor skin;
        QColor shown;
    } cases[] = {{QColor(0x34, 0x2c, 0x26), Qt::black},
                 {QColor(0x4b, 0x40, 0x37), Qt::black},
                 {QColor(0xf2, 0xe9, 0xde), Qt::white},
                 {QColor(0xe9, 0xa2, 0x4b), QColor(qt::skin::kHighContrast.accent)}};
    int number = 0;
    for (const auto& one : cases) {
        const std::string name = "colour" + std::to_string(++number);
        Save((name + ".png").c_str(), 8, one.skin);
        const QColor usual = ColourOf(pictures_.Fitted(name, {8, 8}, 1));

        qt::skin::ShowHighContrast(true);
        const QColor shown = ColourOf(pictures_.Fitted(name, {8, 8}, 1));
        qt::skin::ShowHighContrast(false);

        EXPECT_EQ(usual, one.skin);
        EXPECT_EQ(shown, one.shown) << one.skin.name().toStdString();
        EXPECT_EQ(ColourOf(pictures_.Fitted(name, {8, 8}, 1)), one.skin);
    }
}

TEST_F(PicturesTest, AMissingPictureIsNothing) {
    EXPECT_TRUE(pictures_.Fitted("nothing", {10, 10}, 1).isNull());
    EXPECT_TRUE(pictures_.Fitted("", {10, 10}, 1).isNull());
    EXPECT_TRUE(pictures_.OwnSize("nothing").isEmpty());
}

}  // namespace
