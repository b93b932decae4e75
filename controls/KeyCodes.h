// Virtual key codes of the keys that work the browser. Letters and digits are their own codes; Enter, Escape
// and Delete are in Control.h.
#pragma once

namespace controls {

inline constexpr int kKeyTab = 9;
inline constexpr int kKeyLeft = 37;
inline constexpr int kKeyUp = 38;
inline constexpr int kKeyRight = 39;
inline constexpr int kKeyDown = 40;
inline constexpr int kKeyPadZero = 96;
inline constexpr int kKeyPadPlus = 107;
inline constexpr int kKeyPadMinus = 109;
inline constexpr int kKeyF1 = 112;
inline constexpr int kKeyF3 = 114;
inline constexpr int kKeyF5 = 116;
inline constexpr int kKeyF11 = 122;
inline constexpr int kKeyF12 = 123;
inline constexpr int kKeyF24 = 135;
inline constexpr int kKeyPlus = 187;
inline constexpr int kKeyMinus = 189;

}  // namespace controls
