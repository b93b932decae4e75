#include "library/Naming.h"

#include <algorithm>

#include "base/MediaKinds.h"
#include "base/Number.h"
#include "base/Text.h"
#include "store/Tables.h"

namespace library {
namespace {

constexpr std::size_t kMostWords = 51;
constexpr std::string_view kNameSeparator = " - ";

// How many characters at the front of a word become capitals.
std::size_t CapitalsOf(std::string_view word) {
    constexpr std::string_view kSharing = "([)]-!";
    return kSharing.find(word.front()) != std::string_view::npos ? 2 : 1;
}

std::string ProperCase(std::string_view word) {
    if (word.empty()) return {};
    const std::size_t capitals = CapitalsOf(word);
    return base::UCase(base::Left(word, capitals)) + base::LCase(base::Mid(word, capitals + 1));
}

// The extension is looked for in the last five characters, which ".mpeg" fills.
std::string WithoutExtension(std::string_view title) {
    const std::size_t length = base::Len(title);
    const std::size_t dot = base::InStr(title, ".", length > 4 ? length - 4 : 1);
    return std::string(dot == 0 ? title : base::Left(title, dot - 1));
}

// Most names hold nothing to clean.
std::string Cleaned(std::string text) {
    if (text.find_first_of("&.*!") == std::string::npos && text.find("  ") == std::string::npos)
        return std::string(base::Trim(text));
    text = base::Replace(text, "&", "+");
    text = base::Replace(text, ".", " ");
    text = base::Replace(text, "*", " ");
    text = base::Replace(text, "!", " ");
    text = base::Replace(text, "  ", " ");
    return std::string(base::Trim(text));
}

std::string TrimmedProperCase(std::string_view text) {
    return std::string(base::Trim(ProperCaseWords(text)));
}

}  // namespace

bool FileExists(const ports::Files& files, std::string_view path) {
    return files.FileExists(path);
}

std::string ExpandLongPath(std::string_view path, const ports::Files& files, ports::Dialogs& dialogs) {
    // With a separator behind it, every name of the path ends at one.
    const std::string ended = std::string(path) + "\\";
    std::string names;
    for (std::size_t at = base::InStr(ended, "\\", 4); at != 0; at = base::InStr(ended, "\\", at + 1)) {
        const std::string name = files.NameInFolder(base::Left(ended, at - 1));
        if (name.empty()) {
            dialogs.MsgBox(files.DisplayPath(path));
            return std::string(path);
        }
        names += "\\" + name;
    }
    return std::string(base::Left(path, 2)) + names;
}

std::string ProperCaseWords(std::string_view text) {
    std::string result;
    if (text.empty()) return result;
    result.reserve(text.size() + 1);
    std::size_t begin = 0;
    for (std::size_t words = 0; words < kMostWords && begin <= text.size(); ++words) {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        result.append(ProperCase(text.substr(begin, end - begin))).append(1, ' ');
        begin = end + 1;
    }
    return result;
}

SongName SongNameFromPath(std::string_view path) {
    const std::string name = base::WithoutStandIns(base::FileNameOf(path));
    const std::size_t separator = name.find(kNameSeparator);
    if (separator == std::string::npos) return {"Unknown", WithoutExtension(name)};
    return {name.substr(0, separator), WithoutExtension(name.substr(separator + kNameSeparator.size()))};
}

std::optional<SongName> CleanSongName(std::string_view path, const SongName& raw) {
    if (!base::IsScanFile(path)) return std::nullopt;
    SongName name = raw;
    if (base::IsScanVideoFile(path)) name.title += " [video]";
    name.artist = TrimmedProperCase(Cleaned(name.artist));
    name.title = TrimmedProperCase(Cleaned(name.title));
    return name;
}

bool FitsLibrary(std::string_view path, const SongName& name) {
    const auto fits = [](std::string_view text, int longest) {
        return base::Len(base::Trim(text)) <= static_cast<std::size_t>(longest);
    };
    return fits(name.artist, store::kLongestName) && fits(name.title, store::kLongestName) &&
           fits(path, store::kLongestFilePath);
}

}  // namespace library
