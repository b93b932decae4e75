// Style sheets in the skin's colours, for widgets that the toolkit's own style sheets draw.
#pragma once

#include <QApplication>
#include <QString>
#include <QVariant>
#include <QWidget>
#include <utility>

#include "platform/qt/SkinColours.h"

namespace qt::skin {

/// What every button of a sheet has; size and colour of its words are its window's.
inline const QString kButtonSheet = QStringLiteral(
    "QPushButton { background: @raised; border: 1px solid @line; border-radius: 5px; }"
    "QPushButton:hover { background: @hover; }"
    "QPushButton:focus, QPushButton:checked { border-color: @accent; }"
    "QPushButton:disabled { color: @disabled; }");

/// The sheet with the colours in the places of their names: "@text", "@accent" and so on. In high contrast
/// the edges of what can have the keyboard, "1px solid", are twice as wide.
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
        {"@panel-line", &ColourSet::panel_line},
        {"@panel", &ColourSet::panel},
        {"@raised", &ColourSet::raised},
        {"@teal", &ColourSet::teal},
        {"@text", &ColourSet::text},
        {"@warning", &ColourSet::warning},
        {"@well", &ColourSet::well},
    };
    for (const auto& [name, colour] : kNames)
        text.replace(QLatin1String(name), QColor(Colours().*colour).name());
    if (Colours().high_contrast) text.replace(QLatin1String("1px solid"), QLatin1String("2px solid"));
    return text;
}

inline constexpr const char* kSheetMark = "skinSheet";

/// Gives a widget that sheet, which is remembered for a change of the colours.
inline void Dress(QWidget& widget, const QString& sheet) {
    widget.setProperty(kSheetMark, sheet);
    widget.setStyleSheet(Sheet(sheet));
}

/// Gives every widget that was dressed its sheet again, in the colours that are shown now.
inline void DressAgain() {
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        const QVariant sheet = widget->property(kSheetMark);
        if (sheet.isValid()) widget->setStyleSheet(Sheet(sheet.toString()));
    }
}

}  // namespace qt::skin
