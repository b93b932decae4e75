#include "platform/webengine/SpellCheck.h"

#include <QDir>

namespace webengine {

namespace {

QStringList DictionariesIn(const QString& folder) {
    QStringList names =
        QDir(folder).entryList({QStringLiteral("*.bdic")}, QDir::Files | QDir::Readable, QDir::Name);
    for (QString& name : names)
        name.chop(static_cast<int>(QLatin1String(".bdic").size()));
    return names;
}

QString WithHyphen(const QString& name) {
    return QString(name).replace(QLatin1Char('_'), QLatin1Char('-')).toLower();
}

}  // namespace

QString DictionaryFolder() {
    return DictionaryFolder({QStringLiteral("/usr/share/hunspell-bdic"),
                             QStringLiteral("/usr/share/qt6/qtwebengine_dictionaries"),
                             QStringLiteral("/usr/share/qt6/libexec/qtwebengine_dictionaries")});
}

QString DictionaryFolder(const QStringList& folders) {
    for (const QString& folder : folders) {
        if (!DictionariesIn(folder).isEmpty()) return folder;
    }
    return {};
}

QStringList DictionariesFor(const QString& folder, const QStringList& languages) {
    const QStringList names = DictionariesIn(folder);
    QStringList chosen;
    for (const QString& wish : languages) {
        const QString whole = WithHyphen(wish);
        const QString language = whole.section(QLatin1Char('-'), 0, 0);
        QString best;
        for (const QString& name : names) {
            const QString known = WithHyphen(name);
            if (known == whole) {
                best = name;
                break;
            }
            const bool is_same_language = known.section(QLatin1Char('-'), 0, 0) == language;
            if (best.isEmpty() && is_same_language) best = name;
        }
        if (!best.isEmpty() && !chosen.contains(best)) chosen.append(best);
    }
    return chosen;
}

}  // namespace webengine
