// Paths as the system speaks them: a drive letter and names between backslashes, "C:\Music\song.mp3".
//
// On a system whose files live under one root, "C:" is that root and further letters are mounted volumes.
// Names there may hold what such a path cannot: a backslash, or bytes that are no UTF-8. Each byte of that
// kind is written as one private-use character, U+F000 plus the byte, its stand-in, and read back from it; so
// every file has a path, and the path leads back to the file. Both separators are understood wherever a path
// is read.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace base {

/// Folder, a backslash if there is none yet, and name.
std::string BuildPath(std::string_view folder, std::string_view name);

/// A name as the system's bytes, in text: stand-ins for a backslash, for bytes that are no UTF-8, and for
/// real characters that would be read as a stand-in.
std::string NameToText(std::string_view native_name);

/// The bytes that a text represents. Any text: what is no stand-in stays. Besides what NameToText writes,
/// stand-ins of blanks, quotes and control characters are read back, as BlankFree and QuoteFree write them.
std::string TextToBytes(std::string_view text);

/// A text fit to show to the user: a stand-in becomes the character it stands for, a byte that is no UTF-8
/// the Latin-1 letter of its number. A text without stand-ins comes back as it is.
std::string WithoutStandIns(std::string_view text);

/// Stand-ins for blanks, quotes and control characters, for where a path must be one word.
std::string BlankFree(std::string_view path);

/// Stand-ins for double quotes, for where a path is put between quotes.
std::string QuoteFree(std::string_view path);

/// A text as one name of a path, the name of a file that is called after it: stand-ins for both separators.
std::string SeparatorFree(std::string_view text);

/// The text that SeparatorFree made this name of.
std::string WithSeparators(std::string_view name);

/// A mounted volume: its letter ('D' and up), the folder it is mounted at in native bytes, and its name.
struct Volume {
    char letter = 'D';
    std::string mount_point;
    std::string label;
};

/// The native path of a drive path; a path without a drive is taken from the root "C:" when it begins with a
/// separator, else it stays relative. Nothing for a letter that no volume has, and for a path with a zero
/// byte.
std::optional<std::string> NativePath(std::string_view path, const std::vector<Volume>& volumes);

/// The drive path of a native path that begins at the root; the volume that is mounted deepest on the way
/// gives the letter. Any other text, such as a drive path, comes back as it is.
std::string DrivePath(std::string_view native_path, const std::vector<Volume>& volumes);

/// Short names of paths for where a path must be one word of at most 255 characters. A short name is
/// understood by the table that made it, for as long as that lives.
class ShortPaths {
public:
    static constexpr std::size_t kLongest = 255;

    std::string Shorten(std::string_view path);
    /// The path of a short name of this table; any other path as it is.
    std::string_view Resolve(std::string_view path) const;

private:
    std::map<std::string, std::string, std::less<>> short_of_;
    std::map<std::string, std::string, std::less<>> long_of_;
};

}  // namespace base
