// The kind of file that a path names, and its file name. No file is looked at.
//
// A kind is decided by the last three letters of the path only, so that ".mpeg" counts by "peg", and so does
// ".jpeg". The lists differ on purpose: more kinds can be played than are taken into the library.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace base {

inline constexpr std::array<std::string_view, 12> kMediaKinds{"mp3", "wma", "mpg", "wav", "wmv", "mid",
                                                              "mp4", "m4a", "mov", "avi", "vob", "peg"};
inline constexpr std::array<std::string_view, 7> kVideoKinds{"mpg", "peg", "mov", "wmv", "avi", "vob", "mp4"};
inline constexpr std::array<std::string_view, 4> kScanAudioKinds{"mp3", "wma", "wav", "mid"};
inline constexpr std::array<std::string_view, 4> kScanVideoKinds{"mpg", "peg", "wmv", "avi"};

/// Playlist files of other players, by the whole extension.
inline constexpr std::array<std::string_view, 4> kForeignPlayListKinds{"m3u", "m3u8", "pls", "xspf"};

/// The program's own kind, "mpl".
bool IsPlayListFile(std::string_view path);
bool IsForeignPlayListFile(std::string_view path);
bool IsMediaFile(std::string_view path);
bool IsVideoFile(std::string_view path);
/// Kinds that a scan takes into the library.
bool IsScanAudioFile(std::string_view path);
bool IsScanVideoFile(std::string_view path);
bool IsScanFile(std::string_view path);

/// The text after the last ".", in lower case; empty when the file's name has none.
std::string ExtensionOf(std::string_view path);
/// The whole extension is among `kinds`. "peg" among them stands for every extension that ends in it.
bool HasExtension(std::string_view path, std::span<const std::string_view> kinds);

/// All after the last "\\" or "/"; the whole text when there is none.
std::string FileNameOf(std::string_view path);

}  // namespace base
