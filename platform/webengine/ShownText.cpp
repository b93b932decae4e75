#include "platform/webengine/ShownText.h"

namespace webengine {

namespace {

bool IsHidden(char32_t code) {
    switch (QChar::category(code)) {
        case QChar::Other_Control:
        case QChar::Other_Format:
        case QChar::Other_Surrogate:
        case QChar::Other_PrivateUse:
        case QChar::Other_NotAssigned:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            return true;
        default:
            return false;
    }
}

bool IsBlank(char32_t code) {
    return code == U'\n' || code == U'\r' || code == U'\t' ||
           (code != U' ' && QChar::category(code) == QChar::Separator_Space);
}

}  // namespace

QString VisibleText(const QString& text) {
    QString shown;
    shown.reserve(text.size());
    for (const char32_t code : text.toUcs4()) {
        if (IsBlank(code)) {
            shown += QLatin1Char(' ');
        } else if (IsHidden(code)) {
            shown += QStringLiteral("‹%1›").arg(uint(code), 4, 16, QLatin1Char('0')).toUpper();
        } else {
            shown += QString::fromUcs4(&code, 1);
        }
    }
    return shown;
}

QString CutInTheMiddle(const QString& text, int most) {
    if (text.size() <= most) return text;
    const int front = (most - 1) * 2 / 3;
    return text.left(front) + QChar(0x2026) + text.right(most - 1 - front);
}

QString ShownAddress(const QUrl& address, int most) {
    return CutInTheMiddle(VisibleText(address.toDisplayString(QUrl::RemoveUserInfo | QUrl::PrettyDecoded)),
                          most);
}

}  // namespace webengine
