#include "platform/qt/Pictures.h"

#include <QFileInfo>

#include "platform/qt/Geometry.h"

namespace qt {
namespace {

// Fitted pictures of a window that is being resized would pile up.
constexpr qsizetype kFittedLimit = 200;

QString InScale(const QString& file, int scale) {
    const QFileInfo info(file);
    return info.path() +
           QStringLiteral("/%1@%2x.%3").arg(info.completeBaseName()).arg(scale).arg(info.suffix());
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

const Pictures::Twins& Pictures::Load(const QString& name) {
    const auto known = loaded_.constFind(name);
    if (known != loaded_.constEnd()) return known.value();
    const QString file = FileOf(name);
    Twins twins;
    twins.plain.load(file);
    twins.twice.load(InScale(file, 2));
    twins.plain.setDevicePixelRatio(1);
    twins.twice.setDevicePixelRatio(1);
    return loaded_.insert(name, twins).value();
}

QPixmap Pictures::Largest(const QString& name) {
    const auto known = largest_.constFind(name);
    if (known != largest_.constEnd()) return known.value();
    QPixmap largest;
    largest.load(InScale(FileOf(name), 3));
    largest.setDevicePixelRatio(1);
    return largest_.insert(name, largest).value();
}

QSize Pictures::OwnSize(std::string_view name) {
    if (name.empty()) return {};
    return Load(ToQt(name)).plain.size();
}

QPixmap Pictures::Fitted(std::string_view name, const QSize& size, double pixel_ratio) {
    if (name.empty() || size.isEmpty()) return {};
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
