#include "platform/webengine/DownloadName.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

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

bool IsTooLong(const QString& name) {
    return name.size() > kLongestDownloadName || name.toUtf8().size() > kLongestDownloadBytes;
}

QString Shortened(const QString& name) {
    if (!IsTooLong(name)) return name;
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const QString extension = dot > 0 && name.size() - dot <= 12 ? name.mid(dot) : QString();
    QString base = name.left(std::min<qsizetype>(name.size(), kLongestDownloadName) - extension.size());
    while (IsTooLong(base + extension))
        base.chop(1);
    if (!base.isEmpty() && base.back().isHighSurrogate()) base.chop(1);
    return WithoutEnds(base) + extension;
}

bool IsOnDisk(const QDir& dir, const QString& name) {
    return QFileInfo(dir.filePath(name)).isSymLink() || dir.exists(name);
}

bool IsFree(const QDir& dir, const QString& name, const QSet<QString>& promised) {
    for (const QString& used : {name, name + kUnderWay, name + kUnconfirmed}) {
        if (IsOnDisk(dir, used) || promised.contains(dir.filePath(used).toLower())) return false;
    }
    for (const QLatin1String& appended : {kUnderWay, kUnconfirmed}) {
        if (name.endsWith(appended) &&
            promised.contains(dir.filePath(name.chopped(appended.size())).toLower()))
            return false;
    }
    return true;
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

QString FreeDownloadName(const QString& folder, const QString& clean_name, const QSet<QString>& promised) {
    const QDir dir(folder);
    const qsizetype dot = clean_name.lastIndexOf(QLatin1Char('.'));
    const QString base = dot > 0 ? clean_name.left(dot) : clean_name;
    const QString extension = dot > 0 ? clean_name.mid(dot) : QString();
    QString name = clean_name;
    for (int number = 1; !IsFree(dir, name, promised); ++number)
        name = QStringLiteral("%1 (%2)%3").arg(base).arg(number).arg(extension);
    return name;
}

bool EndsInside(const QString& folder, const QString& name) {
    const QString wanted = QDir(folder).canonicalPath();
    return !wanted.isEmpty() && QFileInfo(QDir(folder).filePath(name)).dir().canonicalPath() == wanted;
}

}  // namespace webengine
