#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include "controls/Image.h"
#include "controls/Label.h"
#include "platform/qt/QtBench.h"
#include "platform/qt/Skin.h"

namespace {

class ImageMirrorTest : public testing::Test {
protected:
    ImageMirrorTest() {
        QDir(folder_.path()).mkdir("images");
        QImage red(10, 10, QImage::Format_RGB32);
        red.fill(Qt::red);
        red.save(folder_.filePath("images/pale.bmp"));
        options_.ProgramFolder = folder_.path().toStdString();
        qt_tests::PlaceAt(image_, 0, 0, 40, 40);
        qt_tests::PlaceAt(over_, 0, 0, 40, 40);
        over_.SetVisible(false);
    }

    QTemporaryDir folder_;
    qt::ScreenOptions options_;
    controls::Image image_{"imgStop"};
    controls::Image over_{"imgStopOver"};
    controls::EventClaims claims_;
};

TEST_F(ImageMirrorTest, APictureFillsItsControl) {
    qt_tests::Desk desk(options_, image_);

    image_.SetPicture("\\images\\pale.bmp");
    desk.screen.CatchUp();

    const QImage shown = desk.Find(image_)->grab().toImage();
    EXPECT_EQ(shown.pixelColor(1, 1), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(38, 38), QColor(Qt::red));
}

TEST_F(ImageMirrorTest, APictureOnASurfaceKeepsItsSizeInTheMiddle) {
    image_.SetLook("tool");
    image_.SetPicture("\\images\\pale.bmp");
    const qt_tests::Desk desk(options_, image_);

    const QImage shown = desk.Find(image_)->grab().toImage();

    EXPECT_EQ(shown.pixelColor(20, 20), QColor(Qt::red));
    EXPECT_NE(shown.pixelColor(10, 20), QColor(Qt::red));
}

TEST_F(ImageMirrorTest, APictureThatDoesSomethingIsAButtonToTheKeyboard) {
    int clicks = 0;
    claims_.Claim(image_.Click, [&clicks] { ++clicks; });
    const qt_tests::Desk desk(image_);
    ASSERT_NE(desk.Find<QToolButton>(image_), nullptr);
    desk.Find(image_)->setFocus();

    QTest::keyClick(desk.Find(image_), Qt::Key_Space);
    QTest::keyClick(desk.Find(image_), Qt::Key_Return);

    EXPECT_EQ(clicks, 2);
}

TEST_F(ImageMirrorTest, TheKeyboardPressesTheBrightTwin) {
    int clicks = 0;
    claims_.Claim(image_.MouseMove, [this](int, int, double, double) { over_.SetVisible(true); });
    claims_.Claim(over_.Click, [&clicks] { ++clicks; });
    qt_tests::Desk desk(image_, over_);

    desk.Find(image_)->setFocus();
    QTest::keyClick(desk.Find(image_), Qt::Key_Return);

    EXPECT_TRUE(desk.Find(over_)->isVisible());
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(desk.Find(over_)->focusPolicy(), Qt::NoFocus);
}

TEST_F(ImageMirrorTest, ABackgroundIsNoButton) {
    const qt_tests::Desk desk(image_);

    EXPECT_EQ(desk.Find<QToolButton>(image_), nullptr);
    EXPECT_EQ(desk.Find(image_)->focusPolicy(), Qt::NoFocus);
}

TEST_F(ImageMirrorTest, TextOnAPaleFaceIsDark) {
    controls::Label label("tabLabel", "MMMM");
    label.SetLook("tab");
    qt_tests::PlaceAt(label, 2, 2, 36, 36);
    image_.SetPicture("/images/pale.bmp");
    qt_tests::Desk desk(options_, image_, label);
    const auto has_ink = [&desk] {
        const QImage shown = desk.screen.WindowOf(desk.form)->grab(QRect(0, 0, 40, 40)).toImage();
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < 40; ++x) {
                if (shown.pixel(x, y) == qt::skin::Colours().ink) return true;
            }
        }
        return false;
    };

    const bool dark_on_pale = has_ink();
    image_.SetPicture("/images/dark.bmp");
    desk.screen.CatchUp();

    EXPECT_TRUE(dark_on_pale);
    EXPECT_FALSE(has_ink());
}

}  // namespace
