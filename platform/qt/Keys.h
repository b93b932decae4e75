// Keys and buttons as the controls' events carry them.
#pragma once

#include <QtCore/qnamespace.h>

namespace qt {

/// The virtual key code of a key; 0 for a key that has none.
int KeyCode(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// A multimedia key of the keyboard, or one for going through pages; they mean the program wherever the focus
/// is.
bool IsMediaKey(int key_code);
/// A key that the window looks at before what has the keyboard: with Ctrl or Alt, F1 to F24, Escape.
bool MayMeanWindow(int key_code, int shift);
/// Of those, one that means something again when it is held down: Tab, plus and minus.
bool MayRepeat(int key_code);
int ShiftState(Qt::KeyboardModifiers modifiers);
int ButtonNumber(Qt::MouseButton button);
/// The sum of the buttons held down.
int ButtonNumbers(Qt::MouseButtons buttons);

}  // namespace qt
