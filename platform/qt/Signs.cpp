#include "platform/qt/Signs.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include "platform/qt/Skin.h"

namespace qt {
namespace {

constexpr int kSide = 16;
constexpr int kSharp = 3;  // drawn that much bigger, for screens of any scale

enum class Kind { Locked, Open, Broken };

struct Sign {
    std::string_view name;
    Kind kind;
    QRgb skin::ColourSet::* colour;
    const char* words;
};

constexpr Sign kSigns[] = {
    {"lock", Kind::Locked, &skin::ColourSet::teal, "The connection is encrypted"},
    {"open lock", Kind::Open, &skin::ColourSet::muted, "The connection is not secure"},
    {"broken lock", Kind::Broken, &skin::ColourSet::warning, "The certificate of this site is not valid"},
};

const Sign* FindSign(std::string_view name) {
    for (const Sign& sign : kSigns) {
        if (sign.name == name) return &sign;
    }
    return nullptr;
}

void DrawLock(QPainter& painter, const Sign& sign) {
    QPainterPath bow;
    const double left = sign.kind == Kind::Open ? 7.5 : 5.25;
    const double width = 5.5;
    bow.moveTo(left, 7.5);
    bow.lineTo(left, 5.5);
    bow.arcTo(QRectF(left, 2.5, width, 6), 180, -180);
    if (sign.kind != Kind::Open) bow.lineTo(left + width, 7.5);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(skin::Colours().*sign.colour), 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(bow);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(skin::Colours().*sign.colour));
    painter.drawRoundedRect(QRectF(3.5, 7.25, 9, 6.5), 1.5, 1.5);
    if (sign.kind != Kind::Broken) return;
    painter.setPen(QPen(QColor(skin::Colours().well), 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(3, 13.5), QPointF(13, 3.5));
    painter.setPen(QPen(QColor(skin::Colours().*sign.colour), 1.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(3, 13.5), QPointF(13, 3.5));
}

}  // namespace

QIcon PictureOfSign(std::string_view name) {
    const Sign* sign = FindSign(name);
    if (sign == nullptr) return {};
    QPixmap picture(kSide * kSharp, kSide * kSharp);
    picture.setDevicePixelRatio(kSharp);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawLock(painter, *sign);
    painter.end();
    return QIcon(picture);
}

QString WordsOfSign(std::string_view name) {
    const Sign* sign = FindSign(name);
    return sign == nullptr ? QString() : QCoreApplication::translate("Signs", sign->words);
}

}  // namespace qt
