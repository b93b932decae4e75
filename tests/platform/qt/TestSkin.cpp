#include <gtest/gtest.h>

#include <QImage>
#include <cmath>

#include "platform/qt/Skin.h"

namespace {

double Linear(double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(QRgb colour) {
    return 0.2126 * Linear(qRed(colour) / 255.0) + 0.7152 * Linear(qGreen(colour) / 255.0) +
           0.0722 * Linear(qBlue(colour) / 255.0);
}

double Contrast(QRgb first, QRgb second) {
    const double lighter = std::max(Luminance(first), Luminance(second));
    const double darker = std::min(Luminance(first), Luminance(second));
    return (lighter + 0.05) / (darker + 0.05);
}

TEST(Skin, EveryTextCanBeReadOnEveryGroundItIsDrawnOn) {
    struct Pair {
        QRgb text;
        QRgb ground;
    };
    using namespace qt::skin;
    const Pair pairs[] = {
        {kText, kGround},   {kText, kPanel},     {kText, kRaised},     {kText, kHover}, {kText, kWell},
        {kMuted, kGround},  {kMuted, kPanel},    {kMuted, kRaised},    {kMuted, kWell}, {kMuted, kStrip},
        {kAccent, kWell},   {kAccent, kRaised},  {kKnob, kAccentDeep}, {kInk, kAccent}, {kInk, kPale},
        {kInkMuted, kPale}, {kWarning, kRaised}, {kWarning, kWell},
    };

    for (const Pair& pair : pairs) {
        EXPECT_GE(Contrast(pair.text, pair.ground), 4.5) << std::hex << pair.text << " on " << pair.ground;
    }
}

TEST(Skin, ASurfaceIsDrawnAndAnyOtherLookIsLeftAlone) {
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);

    const bool drawn = qt::skin::Surface(painter, image.rect(), "panel");
    const bool other = qt::skin::Surface(painter, image.rect(), "heading");
    painter.end();

    EXPECT_TRUE(drawn);
    EXPECT_FALSE(other);
    EXPECT_EQ(image.pixel(10, 10), qt::skin::kPanel);
}

TEST(Skin, AGrooveIsFilledAsFarAsToldAndNoFarther) {
    QImage image(100, 16, QImage::Format_RGB32);
    QPainter painter(&image);

    qt::skin::Groove(painter, image.rect(), 50, qt::skin::kAccent, qt::skin::kAccent);
    painter.end();

    EXPECT_EQ(image.pixel(25, 8), qt::skin::kAccent);
    EXPECT_EQ(image.pixel(75, 8), qt::skin::kWell);
}

TEST(Skin, LettersHaveTheSizeInPixels) {
    EXPECT_EQ(qt::skin::TextFont().pixelSize(), 13);
    EXPECT_EQ(qt::skin::HeadingFont().pixelSize(), 11);
}

}  // namespace
