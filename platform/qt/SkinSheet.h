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
    static constexpr std::pair<const char*, QRgb ColourSet::*> kNames[] = {
        {"@accent-deep", &ColourSet::accent_deep},
        {"@accent", &ColourSet::accent},
        {"@disabled", &ColourSet::disabled},
        {"@ground", &ColourSet::ground},
        {"@hover", &ColourSet::hover},
        {"@line", &ColourSet::line},
        {"@muted", &ColourSet::muted},
        {"@panel", &ColourSet::panel},
        {"@raised", &ColourSet::raised},
        {"@text", &ColourSet::text},
        {"@warning", &ColourSet::warning},
        {"@well", &ColourSet::well},
    };
    for (const auto& [name, colour] : kNames)
        text.replace(QLatin1String(name), QColor(Colours().*colour).name());
    return text;
}

}  // namespace qt::skin
