#include "base/DrivePath.h"

#include <algorithm>

#include "base/Number.h"
#include "base/Text.h"

namespace base {
namespace {

bool IsSeparator(char character) {
    return character == '\\' || character == '/';
}

unsigned char Byte(char character) {
    return static_cast<unsigned char>(character);
}

bool IsControl(unsigned char byte) {
    return byte < 0x20 || byte == 0x7F;
}

// Bytes that a stand-in may stand for: never a separator of the system's, never the end mark of a text.
bool MayStandIn(unsigned char byte) {
    return byte != 0 && (IsControl(byte) || byte == ' ' || byte == '"' || byte == '\\' || byte >= 0x80);
}

// U+F000 plus the byte.
void AppendStandIn(std::string& out, unsigned char byte) {
    out += {'\xEF', static_cast<char>(0x80U | (byte >> 6U)), static_cast<char>(0x80U | (byte & 0x3FU))};
}

// The byte that the character at `at` stands for; 0 when it is no stand-in.
unsigned char StandInAt(std::string_view text, std::size_t at) {
    if (at + 2 >= text.size() || Byte(text[at]) != 0xEF) return 0;
    const unsigned char high = Byte(text[at + 1]);
    const unsigned char low = Byte(text[at + 2]);
    if (high < 0x80 || high > 0x83 || (low & 0xC0U) != 0x80U) return 0;
    const auto byte = static_cast<unsigned char>(((high & 0x03U) << 6U) | (low & 0x3FU));
    return MayStandIn(byte) ? byte : static_cast<unsigned char>(0);
}

template <class Wanted>
std::string WithStandIns(std::string_view text, Wanted wanted) {
    std::string out;
    out.reserve(text.size());
    for (const char character : text) {
        if (wanted(Byte(character))) {
            AppendStandIn(out, Byte(character));
        } else {
            out += character;
        }
    }
    return out;
}

bool HasStandIn(std::string_view text) {
    for (std::size_t at = text.find('\xEF'); at != std::string_view::npos; at = text.find('\xEF', at + 1)) {
        if (StandInAt(text, at) != 0) return true;
    }
    return false;
}

// A control character would break the line it is shown in; a byte above ASCII is most likely an old Latin-1
// name.
void AppendReadable(std::string& out, unsigned char byte) {
    if (byte >= 0xA0) {
        out += {static_cast<char>(0xC0U | (byte >> 6U)), static_cast<char>(0x80U | (byte & 0x3FU))};
    } else if (byte >= 0x80) {
        out += "\xEF\xBF\xBD";
    } else {
        out += IsControl(byte) ? ' ' : static_cast<char>(byte);
    }
}

bool HasDrive(std::string_view path) {
    if (path.size() < 2 || path[1] != ':') return false;
    return (path[0] >= 'A' && path[0] <= 'Z') || (path[0] >= 'a' && path[0] <= 'z');
}

const Volume* VolumeOf(char letter, const std::vector<Volume>& volumes) {
    const char upper = letter >= 'a' ? static_cast<char>(letter - ('a' - 'A')) : letter;
    for (const Volume& volume : volumes) {
        if (volume.letter == upper) return &volume;
    }
    return nullptr;
}

bool IsBelow(std::string_view path, std::string_view folder) {
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

void AppendSeparator(std::string& out, char separator) {
    if (out.empty() || out.back() != separator) out += separator;
}

// The names of a drive path behind `out`, with the system's separators, runs of them as one.
std::string AppendNative(std::string out, std::string_view names) {
    std::size_t begin = 0;
    for (std::size_t at = 0; at <= names.size(); ++at) {
        if (at < names.size() && !IsSeparator(names[at])) continue;
        out += TextToBytes(names.substr(begin, at - begin));
        if (at < names.size()) AppendSeparator(out, '/');
        begin = at + 1;
    }
    return out;
}

// ".mp3" of a path: what a device may tell the kind of file by.
std::string_view ShortExtension(std::string_view path) {
    const std::string_view tail = path.substr(path.size() - std::min<std::size_t>(path.size(), 5));
    const std::size_t dot = tail.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : tail.substr(dot);
}

}  // namespace

std::string BuildPath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.empty() && !IsSeparator(path.back())) path += '\\';
    return path.append(name);
}

std::string NameToText(std::string_view native_name) {
    const auto is_odd = [](char character) { return Byte(character) >= 0x80 || character == '\\'; };
    const auto odd = std::find_if(native_name.begin(), native_name.end(), is_odd);
    std::string out(native_name.begin(), odd);
    for (std::size_t at = out.size(); at < native_name.size();) {
        const std::string_view character = Left(native_name.substr(at, 4), 1);
        const bool plain = character.size() == 1 ? Byte(character[0]) < 0x80 && character[0] != '\\'
                                                 : StandInAt(native_name, at) == 0;
        if (plain) {
            out.append(character);
        } else {
            for (const char byte : character)
                AppendStandIn(out, Byte(byte));
        }
        at += character.size();
    }
    return out;
}

std::string TextToBytes(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const unsigned char byte = StandInAt(text, at);
        out += byte != 0 ? static_cast<char>(byte) : text[at];
        at += byte != 0 ? 3 : 1;
    }
    return out;
}

std::string WithoutStandIns(std::string_view text) {
    if (!HasStandIn(text)) return std::string(text);
    const std::string bytes = TextToBytes(text);
    std::string out;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::string_view character = Left(std::string_view(bytes).substr(at, 4), 1);
        if (character.size() == 1) {
            AppendReadable(out, Byte(character[0]));
        } else {
            out.append(character);
        }
        at += character.size();
    }
    return out;
}

std::string BlankFree(std::string_view path) {
    return WithStandIns(path,
                        [](unsigned char byte) { return byte == ' ' || byte == '"' || IsControl(byte); });
}

std::string QuoteFree(std::string_view path) {
    return WithStandIns(path, [](unsigned char byte) { return byte == '"'; });
}

std::string SeparatorFree(std::string_view text) {
    return WithStandIns(text, [](unsigned char byte) { return IsSeparator(static_cast<char>(byte)); });
}

// The stand-in of "/" is none to TextToBytes, for no file's name holds one: on the disk it stays as it is.
std::string WithSeparators(std::string_view name) {
    std::string text(name);
    for (const char separator : {'\\', '/'}) {
        std::string stand_in;
        AppendStandIn(stand_in, Byte(separator));
        text = Replace(text, stand_in, std::string_view(&separator, 1));
    }
    return text;
}

std::optional<std::string> NativePath(std::string_view path, const std::vector<Volume>& volumes) {
    if (path.find('\0') != std::string_view::npos) return std::nullopt;
    if (!HasDrive(path)) return AppendNative({}, path);
    const std::string_view names = path.substr(2);
    if (path[0] == 'C' || path[0] == 'c') return AppendNative("/", names);
    const Volume* const volume = VolumeOf(path[0], volumes);
    if (volume == nullptr) return std::nullopt;
    if (names.empty()) return volume->mount_point;
    return AppendNative(volume->mount_point + "/", names);
}

std::string DrivePath(std::string_view native_path, const std::vector<Volume>& volumes) {
    if (native_path.empty() || native_path.front() != '/') return std::string(native_path);
    std::string out = "C:";
    std::size_t behind = 0;
    for (const Volume& volume : volumes) {
        if (volume.mount_point.size() <= behind || !IsBelow(native_path, volume.mount_point)) continue;
        behind = volume.mount_point.size();
        out = {volume.letter, ':'};
    }
    out += '\\';
    for (std::size_t at = behind; at < native_path.size(); ++at) {
        const std::size_t end = std::min(native_path.find('/', at), native_path.size());
        out += NameToText(native_path.substr(at, end - at));
        if (end < native_path.size()) AppendSeparator(out, '\\');
        at = end;
    }
    return out;
}

std::string ShortPaths::Shorten(std::string_view path) {
    std::string blank_free = BlankFree(path);
    if (Len(blank_free) <= kLongest) return blank_free;
    if (const auto known = short_of_.find(path); known != short_of_.end()) return known->second;
    // No drive has this letter, so that the name can be no other file's.
    std::string short_path =
        "?:\\~" + ToText(static_cast<std::int64_t>(short_of_.size()) + 1) + BlankFree(ShortExtension(path));
    short_of_.emplace(path, short_path);
    long_of_.emplace(short_path, path);
    return short_path;
}

std::string_view ShortPaths::Resolve(std::string_view path) const {
    const auto known = long_of_.find(path);
    return known == long_of_.end() ? path : std::string_view(known->second);
}

}  // namespace base
