// What every media path passes through: the kind of file it names, its file name, and how that becomes the
// artist and the title of a song.
//
// A kind is decided by the last three letters of the path only, so that ".mpeg" counts by "peg", and so does
// ".jpeg". The lists differ on purpose: more kinds can be played than are taken into the library.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ports/Clock.h"
#include "ports/Dialogs.h"
#include "ports/Files.h"
#include "store/DataSource.h"

namespace library {

inline constexpr std::array<std::string_view, 12> kMediaKinds{"mp3", "wma", "mpg", "wav", "wmv", "mid",
                                                              "mp4", "m4a", "mov", "avi", "vob", "peg"};
inline constexpr std::array<std::string_view, 7> kVideoKinds{"mpg", "peg", "mov", "wmv", "avi", "vob", "mp4"};
inline constexpr std::array<std::string_view, 4> kScanAudioKinds{"mp3", "wma", "wav", "mid"};
inline constexpr std::array<std::string_view, 4> kScanVideoKinds{"mpg", "peg", "wmv", "avi"};

bool IsPlayListFile(std::string_view path);
bool IsMediaFile(std::string_view path);
bool IsVideoFile(std::string_view path);
/// Kinds that a scan takes into the library.
bool IsScanAudioFile(std::string_view path);
bool IsScanVideoFile(std::string_view path);
bool IsScanFile(std::string_view path);

/// The path's attributes can be read and it is no folder.
bool FileExists(const ports::Files& files, std::string_view path);

/// All behind the last separator; the whole text when there is none.
std::string FileNameOf(std::string_view path);

/// The long form of a path, name by name from the third character on. When a name is not found, a box shows
/// the path and the path comes back as it was.
std::string ExpandLongPath(std::string_view path, const ports::Files& files, ports::Dialogs& dialogs);

/// The first 51 words between single blanks, each with a capital at its front, the rest in lower case, and
/// one blank behind it. A bracket, hyphen or exclamation mark in front of a word shares the capital with its
/// neighbour.
std::string ProperCaseWords(std::string_view text);

struct SongName {
    std::string artist;
    std::string title;
};

/// Artist and title as a file name tells them: split at the first " - ", the artist "Unknown" without one,
/// the title without its extension. Stand-ins in the name become what a person reads.
SongName SongNameFromPath(std::string_view path);

/// Artist and title as the library keeps them: cleaned, capitalised, trimmed, a video marked "[Video]".
/// Nothing for a file that a scan does not take.
std::optional<SongName> CleanSongName(std::string_view path, const SongName& raw);

/// The row can hold them: 80 characters of artist and of title, 255 of the path, blanks around them not
/// counted.
bool FitsLibrary(std::string_view path, const SongName& name);

/// A random whole number from 0 to `count`, with `count` itself among them.
std::int64_t RandomIndex(std::int64_t count, ports::Chance& chance);

/// The file of the first song with this key; empty when there is none. Leaves `datSong` on that song.
std::string SongPathFromId(store::DataSource& datSong, std::string_view song_id);

}  // namespace library
