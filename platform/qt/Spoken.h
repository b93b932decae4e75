// What a screen reader is told of a widget beyond what the toolkit tells of its kind.
#pragma once

#include <QAccessible>
#include <QString>
#include <QWidget>
#include <functional>

namespace qt {

/// Every function is called when a screen reader asks; what is empty is left to the toolkit.
struct SpokenPart {
    std::function<QAccessible::Role()> role = {};
    std::function<void(QAccessible::State&)> add_state = {};
    /// Where it is between 0 and 100, and how it is taken there; together or not at all.
    std::function<double()> percent = {};
    std::function<void(double)> set_percent = {};
    std::function<void()> press = {};
    /// A list of its own that shows in a window of its own.
    std::function<QWidget*()> list = {};
    /// What is in it now, where its name says what it is for.
    std::function<QString()> content = {};
};

void Speak(QWidget& widget, SpokenPart part);
/// A widget that is only looked at, and says nothing.
void KeepSilent(QWidget& widget);
/// The space bar on the widget, as a person would press it.
void PressSpace(QWidget& widget);
/// Tells screen readers, if there are any, that the content of the widget is another one now.
void TellNewContent(QWidget& widget);
/// The same of its value.
void TellNewPercent(QWidget& widget, double percent);

}  // namespace qt
