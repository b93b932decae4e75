// How the path of a media file becomes the artist and the title of a song.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ports/Dialogs.h"
#include "ports/Files.h"

namespace library {

/// The path's attributes can be read and it is no folder.
bool FileExists(const ports::Files& files, std::string_view path);

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
std::optional<SongName> CleanSongName(std::string_view path, SongName name);

/// The row can hold them: 80 characters of artist and of title, 255 of the path, blanks around them not
/// counted.
bool FitsLibrary(std::string_view path, const SongName& name);

}  // namespace library
