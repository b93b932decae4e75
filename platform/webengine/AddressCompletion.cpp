#include "platform/webengine/AddressCompletion.h"

#include <QRegularExpression>
#include <QString>

namespace webengine {

namespace {

QUrl FileAddress(const QString& native) {
    return native.isEmpty() ? QUrl() : QUrl::fromLocalFile(native);
}

bool IsDrivePath(const QString& text) {
    return text.size() >= 2 && text[0].isLetter() && text[0].unicode() < 128 && text[1] == QLatin1Char(':') &&
           (text.size() == 2 || text[2] == QLatin1Char('\\') || text[2] == QLatin1Char('/'));
}

/// "host:8080", with or without a path behind it: no scheme, whatever stands before the colon.
bool IsHostWithPort(const QString& text) {
    static const QRegularExpression pattern(QStringLiteral("^[^\\s/:@?#]+:[0-9]{1,5}(?:[/?#].*)?$"));
    return pattern.match(text).hasMatch();
}

bool HasScheme(const QString& text) {
    static const QRegularExpression pattern(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*:"));
    return pattern.match(text).hasMatch();
}

QUrl WebAddress(const QString& text) {
    QUrl url(text, QUrl::TolerantMode);
    const bool needs_host = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    if (!url.isValid() || (needs_host && url.host().isEmpty())) return {};
    return url;
}

}  // namespace

QUrl CompleteAddress(std::string_view typed, const ToNativePath& to_native_path) {
    const QString text = QString::fromUtf8(typed.data(), static_cast<qsizetype>(typed.size())).trimmed();
    if (text.isEmpty()) return {};
    if (IsDrivePath(text)) {
        return FileAddress(to_native_path ? QString::fromStdString(to_native_path(text.toStdString()))
                                          : QString());
    }
    if (text.startsWith(QLatin1Char('/'))) return FileAddress(text);
    if (text.startsWith(QLatin1String("javascript:"), Qt::CaseInsensitive)) return {};
    if (IsHostWithPort(text) || !HasScheme(text)) return WebAddress(QStringLiteral("http://") + text);
    return WebAddress(text);
}

}  // namespace webengine
