// Error numbers of the media control interface and their texts.
#pragma once

#include <string_view>

namespace gstreamer {

inline constexpr int kNoError = 0;
inline constexpr int kUnrecognizedKeyword = 259;
inline constexpr int kUnrecognizedCommand = 261;
inline constexpr int kHardware = 262;
inline constexpr int kNotOpen = 263;
inline constexpr int kNoCommand = 267;
inline constexpr int kBadInteger = 270;
inline constexpr int kMissingParameter = 273;
inline constexpr int kFileNotFound = 275;
inline constexpr int kNotReady = 276;
inline constexpr int kCannotUseAll = 279;
inline constexpr int kMultipleErrors = 280;
inline constexpr int kOutOfRange = 282;
inline constexpr int kAliasInUse = 289;
inline constexpr int kNameRequired = 292;
inline constexpr int kBadTimeFormat = 293;
inline constexpr int kNoClosingQuote = 294;
inline constexpr int kInvalidFile = 296;
inline constexpr int kTypeNotInstalled = 306;
inline constexpr int kFileRead = 348;

/// Empty for a number that is no error's. No text is longer than 127 characters.
std::string_view ErrorText(int error);

}  // namespace gstreamer
