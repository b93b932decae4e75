#include "platform/webengine/DownloadName.h"

#include <QDir>
#include <QFileInfo>

namespace webengine {

namespace {

bool IsAllowed(QChar character) {
    static const QString forbidden = QStringLiteral("\"*:<>?|");
    return character.unicode() >= 0x20 && character.unicode() != 0x7F &&
           character.category() != QChar::Other_Format && !forbidden.contains(character);
}

QString WithoutEnds(QString name) {
    while (!name.isEmpty() && (name.front() == QLatin1Char('.') || name.front().isSpace()))
        name.remove(0, 1);
    while (!name.isEmpty() && (name.back() == QLatin1Char('.') || name.back().isSpace()))
        name.chop(1);
    return name;
}

QString Shortened(const QString& name) {
    if (name.size() <= kLongestDownloadName) return name;
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const QString extension = dot > 0 && name.size() - dot <= 12 ? name.mid(dot) : QString();
    return WithoutEnds(name.left(kLongestDownloadName - extension.size())) + extension;
}

}  // namespace

QString CleanDownloadName(const QString& suggested) {
    QString name = suggested;
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    name = name.mid(name.lastIndexOf(QLatin1Char('/')) + 1);
    QString clean;
    for (const QChar character : name)
        clean += IsAllowed(character) ? character : QLatin1Char('_');
    clean = Shortened(WithoutEnds(clean));
    return clean.isEmpty() ? QStringLiteral("download") : clean;
}

QString FreeDownloadName(const QString& folder, const QString& clean_name) {
    const QDir dir(folder);
    const qsizetype dot = clean_name.lastIndexOf(QLatin1Char('.'));
    const QString base = dot > 0 ? clean_name.left(dot) : clean_name;
    const QString extension = dot > 0 ? clean_name.mid(dot) : QString();
    QString name = clean_name;
    for (int number = 1; QFileInfo(dir.filePath(name)).isSymLink() || dir.exists(name); ++number) {
        name = QStringLiteral("%1 (%2)%3").arg(base).arg(number).arg(extension);
    }
    return name;
}

bool EndsInside(const QString& folder, const QString& name) {
    const QString wanted = QDir(folder).canonicalPath();
    return !wanted.isEmpty() && QFileInfo(QDir(folder).filePath(name)).dir().canonicalPath() == wanted;
}

}  // namespace webengine
