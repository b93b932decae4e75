// Style sheets in the skin's colours, for widgets that the toolkit's own style sheets draw.
#pragma once

#include <QString>
#include <utility>

#include "platform/qt/SkinColours.h"

namespace qt::skin {

/// What every button of a sheet has; size and colour of its words are its window's.
inline const QString kButtonSheet = QStringLiteral(
    "QPushButton { background: @raised; border: 1px solid @line; border-radius: 5px; }"
    "QPushButton:hover { background: @hover; }"
    "QPushButton:focus, QPushButton:checked { border-color: @accent; }"
    "QPushButton:disabled { color: @disabled; }");

/// The sheet with the colours in the places of their names: "@text", "@accent" and so on.
inline QString Sheet(QString text) {
    // A name that begins with another one comes before it.
    static constexpr std::pair<const char*, QRgb> kNames[] = {
        {"@accent-deep", kAccentDeep},
        {"@accent", kAccent},
        {"@disabled", kDisabled},
        {"@ground", kGround},
        {"@hover", kHover},
        {"@line", kLine},
        {"@muted", kMuted},
        {"@panel", kPanel},
        {"@raised", kRaised},
        {"@text", kText},
        {"@warning", kWarning},
        {"@well", kWell},
    };
    for (const auto& [name, colour] : kNames)
        text.replace(QLatin1String(name), QColor(colour).name());
    return text;
}

}  // namespace qt::skin
