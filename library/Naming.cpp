#include "library/Naming.h"

#include <algorithm>
#include <iterator>
#include <utility>

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

bool IsAscii(char character) {
    return static_cast<unsigned char>(character) < 0x80;
}

char UpperAscii(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

char LowerAscii(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// A library is added word by word, and most words are ASCII: a byte of theirs is a character.
void AppendProperCase(std::string& out, std::string_view word) {
    if (word.empty()) return;
    const std::size_t capitals = CapitalsOf(word);
    if (!std::all_of(word.begin(), word.end(), IsAscii)) {
        out += base::UCase(base::Left(word, capitals)) + base::LCase(base::Mid(word, capitals + 1));
        return;
    }
    const std::string_view front = word.substr(0, capitals);
    const std::string_view rest = word.substr(front.size());
    std::transform(front.begin(), front.end(), std::back_inserter(out), UpperAscii);
    std::transform(rest.begin(), rest.end(), std::back_inserter(out), LowerAscii);
}

// The extension is looked for in the last five characters, which ".mpeg" fills.
std::string WithoutExtension(std::string_view title) {
    const std::size_t length = base::Len(title);
    const std::size_t dot = base::InStr(title, ".", length > 4 ? length - 4 : 1);
    return std::string(dot == 0 ? title : base::Left(title, dot - 1));
}

std::string Trimmed(std::string text) {
    const std::string_view rest = base::Trim(text);
    if (rest.data() != text.data()) return std::string(rest);
    text.resize(rest.size());
    return text;
}

bool HasSomethingToClean(std::string_view text) {
    char last = '\0';
    for (const char character : text) {
        const bool is_sign = character == '&' || character == '.' || character == '*' || character == '!';
        if (is_sign || (character == ' ' && last == ' ')) return true;
        last = character;
    }
    return false;
}

// Most names hold nothing to clean.
std::string Cleaned(std::string text) {
    if (!HasSomethingToClean(text)) return Trimmed(std::move(text));
    text = base::Replace(text, "&", "+");
    text = base::Replace(text, ".", " ");
    text = base::Replace(text, "*", " ");
    text = base::Replace(text, "!", " ");
    return Trimmed(base::Replace(text, "  ", " "));
}

std::string TrimmedProperCase(std::string_view text) {
    return Trimmed(ProperCaseWords(text));
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
        AppendProperCase(result, text.substr(begin, end - begin));
        result += ' ';
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

std::optional<SongName> CleanSongName(std::string_view path, SongName name) {
    if (!base::IsScanFile(path)) return std::nullopt;
    if (base::IsScanVideoFile(path)) name.title += " [video]";
    name.artist = TrimmedProperCase(Cleaned(std::move(name.artist)));
    name.title = TrimmedProperCase(Cleaned(std::move(name.title)));
    return name;
}

bool FitsLibrary(std::string_view path, const SongName& name) {
    // A text has no more characters than bytes.
    const auto fits = [](std::string_view text, std::size_t longest) {
        return text.size() <= longest || base::Len(base::Trim(text)) <= longest;
    };
    return fits(name.artist, store::kLongestName) && fits(name.title, store::kLongestName) &&
           fits(path, store::kLongestFilePath);
}

}  // namespace library
