#include "platform/webengine/AddressCompletion.h"

#include <QRegularExpression>
#include <QString>
#include <algorithm>
#include <array>

namespace webengine {

namespace {

QUrl FileAddress(const QString& native) {
    return native.isEmpty() ? QUrl() : QUrl::fromLocalFile(native);
}

bool IsDrivePath(const QString& text) {
    return text.size() >= 2 && text[0].isLetter() && text[0].unicode() < 128 && text[1] == QLatin1Char(':') &&
           (text.size() == 2 || text[2] == QLatin1Char('\\') || text[2] == QLatin1Char('/'));
}

bool Matches(const QString& text, const QString& pattern) {
    return QRegularExpression(pattern).match(text).hasMatch();
}

/// "host:8080", with or without a path after it: no scheme, whatever is before the colon.
bool IsHostWithPort(const QString& text) {
    return Matches(text, QStringLiteral("^(?:[^\\s/:@?#]+|\\[[0-9A-Fa-f:.]+\\]):[0-9]{1,5}(?:[/?#].*)?$"));
}

/// "mailto:owl@example.org" has one, "note: buy milk" is a sentence.
bool HasScheme(const QString& text) {
    return Matches(text, QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*:(?://|\\S|$)"));
}

QString HostPart(const QString& text) {
    const qsizetype end = text.indexOf(QRegularExpression(QStringLiteral("[/?#]")));
    return end < 0 ? text : text.left(end);
}

bool IsNumber(const QString& host) {
    return Matches(host, QStringLiteral("^(?:[0-9]{1,3}(?:\\.[0-9]{1,3}){3}|\\[[0-9A-Fa-f:.]+\\])$"));
}

/// A name of this computer or of its own net.
bool IsNear(const QString& text, const QString& host) {
    const bool has_slash = text.size() > host.size() && text[host.size()] == QLatin1Char('/');
    const QString lower = host.toLower();
    return lower == QLatin1String("localhost") || lower.endsWith(QLatin1String(".localhost")) ||
           IsNumber(host) || (has_slash && Matches(host, QStringLiteral("^[A-Za-z0-9-]+$")));
}

/// "example.org": labels with a dot between them, of which the last is no number.
bool IsHostName(const QString& host) {
    const bool has_signs = Matches(host, QStringLiteral("[\\s@:,;!*'\"()<>\\[\\]{}|\\\\^`~$&=+%]"));
    if (has_signs || host.contains(QLatin1String("..")) || host.startsWith(QLatin1Char('.'))) return false;
    return Matches(host, QStringLiteral("\\.[^.0-9][^.]*\\.?$"));
}

QUrl WebAddress(const QString& text) {
    QUrl url(text, QUrl::TolerantMode);
    const bool needs_host = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    if (!url.isValid() || (needs_host && url.host().isEmpty())) return {};
    return url;
}

QUrl OnScheme(const char* scheme, const QString& text) {
    return WebAddress(QLatin1String(scheme) + text);
}

QUrl SearchFor(const QString& text, const AddressRules& rules) {
    if (!rules.search_address) return OnScheme("http://", text);
    const QByteArray words = QUrl::toPercentEncoding(text.simplified()).replace("%20", "+");
    return WebAddress(
        QString::fromStdString(rules.search_address({words.constData(), std::size_t(words.size())})));
}

/// A text without a scheme.
Completed CompleteBare(const QString& text, const AddressRules& rules) {
    const QString host = HostPart(text);
    if (IsHostWithPort(text) || IsNear(text, host)) return {OnScheme("http://", text), {}};
    if (IsHostName(host)) {
        const QUrl plain = OnScheme("http://", text);
        if (plain.isValid())
            return rules.https_first ? Completed{OnScheme("https://", text), plain} : Completed{plain, {}};
    }
    return {SearchFor(text, rules), {}};
}

}  // namespace

Completed CompleteAddress(std::string_view typed, const AddressRules& rules) {
    const QString text = QString::fromUtf8(typed.data(), static_cast<qsizetype>(typed.size())).trimmed();
    if (text.isEmpty()) return {};
    if (IsDrivePath(text)) {
        return {FileAddress(rules.to_native_path
                                ? QString::fromStdString(rules.to_native_path(text.toStdString()))
                                : QString()),
                {}};
    }
    if (text.startsWith(QLatin1Char('/'))) return {FileAddress(text), {}};
    if (text.startsWith(QLatin1String("javascript:"), Qt::CaseInsensitive)) return {};
    if (HasScheme(text) && !IsHostWithPort(text)) return {WebAddress(text), {}};
    return CompleteBare(text, rules);
}

bool IsRefusal(int error_code) {
    // Timed out; closed, reset, refused, aborted, failed, no way there; no TLS there, or none that is spoken.
    static constexpr std::array kRefusals{-7, -100, -101, -102, -103, -104, -107, -109, -113, -118, -324};
    return std::find(kRefusals.begin(), kRefusals.end(), error_code) != kRefusals.end();
}

}  // namespace webengine
