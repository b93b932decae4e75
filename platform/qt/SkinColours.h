// The skin's colours.
#pragma once

#include <QColor>

namespace qt::skin {

inline constexpr QRgb kGround = 0xff1d1916;
inline constexpr QRgb kStrip = 0xff171310;
inline constexpr QRgb kPanel = 0xff27211d;
inline constexpr QRgb kRaised = 0xff342c26;
inline constexpr QRgb kHover = 0xff40362e;
inline constexpr QRgb kPressed = 0xff2b241f;
inline constexpr QRgb kLine = 0xff4b4037;
inline constexpr QRgb kWell = 0xff171310;
inline constexpr QRgb kWellOdd = 0xff1b1613;
inline constexpr QRgb kText = 0xfff2e9de;
inline constexpr QRgb kMuted = 0xffb9ab9a;
inline constexpr QRgb kAccent = 0xffe9a24b;
inline constexpr QRgb kAccentDeep = 0xff7a4d1b;
inline constexpr QRgb kWarning = 0xfff2a18c;
inline constexpr QRgb kDisabled = 0xff8d8072;
inline constexpr QRgb kTeal = 0xff57b8a8;
inline constexpr QRgb kTealDeep = 0xff1f5c53;
inline constexpr QRgb kPale = 0xfff2e6d4;
inline constexpr QRgb kInk = 0xff2a221b;
inline constexpr QRgb kInkMuted = 0xff5c4c3c;
inline constexpr QRgb kKnob = 0xfffff4e4;

}  // namespace qt::skin
