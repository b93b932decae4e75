#include <gtest/gtest.h>

#include <QImage>
#include <QWidget>
#include <cmath>

#include "platform/qt/Skin.h"
#include "platform/qt/SkinSheet.h"
#include "platform/qt/SkinStyle.h"

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

/// Every text with every ground that it is drawn on, and the least contrast that it needs.
void ExpectReadable(const qt::skin::ColourSet& set, double least) {
    struct Pair {
        QRgb text;
        std::initializer_list<QRgb> grounds;
    };
    const Pair pairs[] = {
        {set.text,
         {set.ground, set.strip, set.panel, set.raised, set.raised_top, set.raised_bottom, set.hover,
          set.pressed, set.well, set.well_odd, set.row_bottom, set.tool_top, set.tool_bottom}},
        {set.muted,
         {set.ground, set.strip, set.panel, set.raised, set.raised_top, set.raised_bottom, set.well,
          set.well_odd}},
        {set.tab_text, {set.raised, set.strip}},
        {set.accent, {set.ground, set.panel, set.well, set.raised, set.raised_top, set.hover}},
        {set.knob, {set.accent_deep, set.raised, set.hover}},
        {set.ink, {set.accent, set.accent_over, set.accent_pressed, set.pale}},
        {set.ink_muted, {set.pale}},
        {set.warning, {set.ground, set.panel, set.raised, set.well}},
    };

    for (const Pair& pair : pairs) {
        for (const QRgb ground : pair.grounds)
            EXPECT_GE(Contrast(pair.text, ground), least) << std::hex << pair.text << " on " << ground;
    }
}

TEST(Skin, EveryTextCanBeReadOnEveryGroundItIsDrawnOn) {
    ExpectReadable(qt::skin::kUsual, 4.5);
}

TEST(Skin, HighContrastIsThatOfEveryText) {
    ExpectReadable(qt::skin::kHighContrast, 7);
}

TEST(Skin, EdgesAndMarkersAreSeenInHighContrast) {
    const qt::skin::ColourSet& set = qt::skin::kHighContrast;
    for (const QRgb edge : {set.line, set.panel_line, set.handle, set.knob, set.accent, set.teal}) {
        EXPECT_GE(Contrast(edge, set.ground), 7) << std::hex << edge;
        EXPECT_GE(Contrast(edge, set.well), 7) << std::hex << edge;
    }
}

TEST(Skin, AControlThatIsOffCanStillBeMadeOut) {
    for (const qt::skin::ColourSet* set : {&qt::skin::kUsual, &qt::skin::kHighContrast}) {
        EXPECT_GE(Contrast(set->disabled, set->raised), 3);
        EXPECT_GE(Contrast(set->disabled, set->well), 3);
    }
}

TEST(Skin, TheColoursThatAreAskedForAreShown) {
    qt::skin::ShowHighContrast(true);
    const QRgb high = qt::skin::Colours().ground;
    qt::skin::ShowHighContrast(false);

    EXPECT_EQ(high, qt::skin::kHighContrast.ground);
    EXPECT_EQ(qt::skin::Colours().ground, qt::skin::kUsual.ground);
}

TEST(Skin, AWidgetThatWasDressedTakesOtherColours) {
    QWidget dressed;
    qt::skin::Dress(dressed, QStringLiteral("color: @text; border: 1px solid @panel-line"));
    const QString usual = dressed.styleSheet();

    qt::skin::ShowHighContrast(true);
    qt::skin::DressAgain();
    const QString high = dressed.styleSheet();
    qt::skin::ShowHighContrast(false);

    EXPECT_EQ(usual.toStdString(), "color: #f2e9de; border: 1px solid #3b322b");
    EXPECT_EQ(high.toStdString(), "color: #ffffff; border: 2px solid #ffffff");
}

TEST(Skin, HighContrastComesAndGoesWhileTheProgramRuns) {
    const QPalette before = QApplication::palette();

    qt::ChangeContrast(true);
    const QRgb high = QApplication::palette().color(QPalette::Base).rgb();
    const QRgb ink = QApplication::palette().color(QPalette::PlaceholderText).rgb();
    qt::ChangeContrast(false);
    const QRgb usual = QApplication::palette().color(QPalette::Base).rgb();
    QApplication::setPalette(before);

    EXPECT_EQ(high, qt::skin::kHighContrast.well);
    EXPECT_EQ(ink, qt::skin::kHighContrast.muted);
    EXPECT_EQ(usual, qt::skin::kUsual.well);
}

class SurfaceView final : public QWidget {
public:
    explicit SurfaceView(std::string look) : look_(std::move(look)) { resize(60, 40); }
    QImage Drawn(const QRegion& part) {
        QImage image(size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        render(&image, part.boundingRect().topLeft(), part, {});
        return image;
    }

private:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        qt::skin::Surface(painter, rect(), look_);
    }
    std::string look_;
};

TEST(Skin, APartOfASurfaceLooksAsItDoesInTheWhole) {
    const QRect inside(20, 15, 12, 9);
    const QRect beside_the_edge(1, 18, 5, 3);
    const QRect on_the_edge(0, 0, 9, 9);
    for (const char* look : {"panel", "raised", "well", "tool"}) {
        SurfaceView view(look);
        const QImage whole = view.Drawn(view.rect());
        ASSERT_NE(whole.pixel(30, 20), qRgb(0, 0, 0)) << look;
        for (const QRect& part : {inside, beside_the_edge, on_the_edge})
            EXPECT_EQ(view.Drawn(part).copy(part), whole.copy(part)) << look << " at " << part.x();
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
    EXPECT_EQ(image.pixel(10, 10), qt::skin::Colours().panel);
}

TEST(Skin, AGrooveIsFilledAsFarAsToldAndNoFarther) {
    QImage image(100, 16, QImage::Format_RGB32);
    QPainter painter(&image);

    qt::skin::Groove(painter, image.rect(), 50, qt::skin::Colours().accent, qt::skin::Colours().accent);
    painter.end();

    EXPECT_EQ(image.pixel(25, 8), qt::skin::Colours().accent);
    EXPECT_EQ(image.pixel(75, 8), qt::skin::Colours().well);
}

TEST(Skin, LettersHaveTheSizeInPixels) {
    EXPECT_EQ(qt::skin::TextFont().pixelSize(), 13);
    EXPECT_EQ(qt::skin::HeadingFont().pixelSize(), 11);
}

}  // namespace
