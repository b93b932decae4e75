#include "platform/qt/Pictures.h"

#include <QFileInfo>
#include <QImage>
#include <algorithm>

#include "platform/qt/Geometry.h"
#include "platform/qt/SkinColours.h"

namespace qt {
namespace {

// Fitted pictures of a window that is being resized would pile up.
constexpr qsizetype kFittedLimit = 200;

QString InScale(const QString& file, int scale) {
    const QFileInfo info(file);
    return info.path() +
           QStringLiteral("/%1@%2x.%3").arg(info.completeBaseName()).arg(scale).arg(info.suffix());
}

/// How far `value` is on the way from `from` to `to`, 0 to 1.
double Share(double value, double from, double to) {
    return std::clamp((value - from) / (to - from), 0.0, 1.0);
}

// The skin's grounds and shades have a value of less than 0.3, its words and lines one of more than 0.7;
// cream has a saturation of less than 0.2, amber and teal one of more than 0.5.
QRgb InContrast(QRgb pixel) {
    const int most = std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)});
    const int least = std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)});
    const double light = Share(most, 0.35 * 255, 0.7 * 255);
    const double coloured = most > 0 ? Share(double(most - least) / most, 0.25, 0.45) : 0;
    const QRgb accent = skin::kHighContrast.accent;
    const auto mixed = [&](int full) {
        return static_cast<int>(light * (coloured * full + (1 - coloured) * 255));
    };
    return qRgba(mixed(qRed(accent)), mixed(qGreen(accent)), mixed(qBlue(accent)), qAlpha(pixel));
}

QPixmap InContrast(const QPixmap& picture) {
    QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(line, line + image.width(), line, [](QRgb pixel) { return InContrast(pixel); });
    }
    return QPixmap::fromImage(image);
}

}  // namespace

QString Pictures::FileOf(const QString& name) const {
    QString path = name;
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    while (path.startsWith(QLatin1Char('/')))
        path.remove(0, 1);
    const bool bare = !path.contains(QLatin1Char('/'));
    if (bare) path = QLatin1String("images/") + path.toLower();
    if (QFileInfo(path).suffix().isEmpty()) path += QLatin1String(".png");
    return folder_ + QLatin1Char('/') + path;
}

QPixmap Pictures::Read(const QString& file) const {
    QPixmap picture;
    picture.load(file);
    if (in_contrast_ && !picture.isNull()) picture = InContrast(picture);
    picture.setDevicePixelRatio(1);
    return picture;
}

// The desktop may ask for other colours while the program runs.
void Pictures::TakeColours() {
    if (in_contrast_ == skin::Colours().high_contrast) return;
    in_contrast_ = skin::Colours().high_contrast;
    loaded_.clear();
    largest_.clear();
    fitted_.clear();
}

const Pictures::Twins& Pictures::Load(const QString& name) {
    const auto known = loaded_.constFind(name);
    if (known != loaded_.constEnd()) return known.value();
    const QString file = FileOf(name);
    return loaded_.insert(name, {.plain = Read(file), .twice = Read(InScale(file, 2))}).value();
}

QPixmap Pictures::Largest(const QString& name) {
    const auto known = largest_.constFind(name);
    if (known != largest_.constEnd()) return known.value();
    return largest_.insert(name, Read(InScale(FileOf(name), 3))).value();
}

QSize Pictures::OwnSize(std::string_view name) {
    if (name.empty()) return {};
    return Load(ToQt(name)).plain.size();
}

QPixmap Pictures::Fitted(std::string_view name, const QSize& size, double pixel_ratio) {
    if (name.empty() || size.isEmpty()) return {};
    TakeColours();
    const QString wanted = ToQt(name);
    const QSize device = (QSizeF(size) * pixel_ratio).toSize();
    const QString key = wanted + QStringLiteral("|%1x%2").arg(device.width()).arg(device.height());
    const auto known = fitted_.constFind(key);
    if (known != fitted_.constEnd()) return known.value();
    const Twins& twins = Load(wanted);
    const bool small = device.width() > twins.plain.width() || device.height() > twins.plain.height();
    QPixmap picture = small && !twins.twice.isNull() ? twins.twice : twins.plain;
    if (!picture.isNull() && (device.width() > picture.width() || device.height() > picture.height())) {
        const QPixmap largest = Largest(wanted);
        if (!largest.isNull()) picture = largest;
    }
    if (picture.isNull()) return {};
    if (picture.size() != device)
        picture = picture.scaled(device, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(pixel_ratio);
    if (fitted_.size() > kFittedLimit) fitted_.clear();
    return fitted_.insert(key, picture).value();
}

}  // namespace qt
