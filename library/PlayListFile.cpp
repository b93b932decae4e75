#include "library/PlayListFile.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include "base/DrivePath.h"
#include "base/FileAddress.h"
#include "base/MediaKinds.h"
#include "base/Number.h"
#include "base/Text.h"
#include "base/Windows1252.h"
#include "library/XmlReader.h"

namespace library {
namespace {

using Songs = std::vector<ListedSong>;

constexpr std::string_view kSeparator = " - ";
constexpr std::size_t kDriveLength = 3;

// Calls `take` with each line, whatever its end is, until that returns false.
template <class Take>
void ForEachLine(std::string_view text, Take take) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        if (!take(text.substr(0, end))) return;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

std::string AsLine(std::string_view text) {
    return std::string(base::Trim(base::Left(base::Trim(text), kLongestLine)));
}

/// The bytes of a list of another player: UTF-8 if they can be that, else Windows-1252. Most players write
/// UTF-8 without a mark.
class ForeignText {
public:
    explicit ForeignText(std::string_view bytes)
        : is_utf8_(base::IsUtf8(bytes)), bytes_(base::HasUtf8Mark(bytes) ? bytes.substr(3) : bytes) {}

    std::string_view Bytes() const { return bytes_; }
    /// A part of the bytes as text.
    std::string Decoded(std::string_view part) const {
        return is_utf8_ ? std::string(part) : base::DecodeFileText(part);
    }

private:
    bool is_utf8_;
    std::string_view bytes_;
};

/// Turns the places that a list names into drive paths.
class Places {
public:
    Places(std::string_view list, const ports::Files& files)
        : files_(files), folder_(list.substr(0, list.size() - base::FileNameOf(list).size())) {}

    /// The drive path of a place; nothing for one on another computer.
    std::optional<std::string> PathOf(std::string_view place) const {
        if (place.empty()) return std::nullopt;
        if (!base::HasScheme(place)) return OnThisComputer(place);
        const std::optional<std::string> path = base::PathOfFileAddress(place);
        return path ? std::optional(OnThisComputer(*path)) : std::nullopt;
    }

private:
    std::string OnThisComputer(std::string_view place) const {
        if (place.front() == '/') return Plain(files_.FromNative(place));
        if (place.front() == '\\') return Plain("C:" + Names(place));
        const bool has_drive =
            place.size() >= kDriveLength && place[1] == ':' && (place[2] == '\\' || place[2] == '/');
        return Plain(has_drive ? Names(place) : folder_ + Names(place));
    }

    // A file's name may be of bytes that are no text.
    static std::string Names(std::string_view place) {
        std::string names;
        for (std::size_t at = 0; at <= place.size();) {
            const std::size_t end = std::min(place.find_first_of("\\/", at), place.size());
            names += base::NameToText(place.substr(at, end - at));
            if (end < place.size()) names += '\\';
            at = end + 1;
        }
        return names;
    }

    // Without empty names, "." and "..", which no song of the library has in its path.
    static std::string Plain(std::string_view path) {
        std::vector<std::string_view> names;
        for (std::size_t at = std::min(path.find_first_of("\\/"), path.size()); at < path.size();) {
            const std::size_t end = std::min(path.find_first_of("\\/", at + 1), path.size());
            const std::string_view name = path.substr(at + 1, end - at - 1);
            at = end;
            if (name.empty() || name == ".") continue;
            if (name != "..") {
                names.push_back(name);
            } else if (!names.empty()) {
                names.pop_back();
            }
        }
        std::string plain = base::UCase(path.substr(0, path.find_first_of("\\/")));
        for (const std::string_view name : names)
            plain.append("\\").append(name);
        return plain;
    }

    const ports::Files& files_;
    std::string folder_;
};

// What a list shows of a song that it names by its place alone.
std::string NameFromPlace(std::string_view place) {
    const std::string name = base::FileNameOf(base::HasScheme(place) ? base::PercentDecoded(place) : place);
    const std::size_t dot = name.rfind('.');
    return AsLine(base::WithoutStandIns(dot == 0 ? name : name.substr(0, dot)));
}

/// Collects songs up to the limit.
class Collector {
public:
    Collector(const ForeignText& text, const Places& places) : text_(text), places_(places) {}

    /// A song by its place and its name, either of which may be empty, in the list's bytes.
    void Add(std::string_view place, std::string_view name) {
        ListedSong song;
        song.line = AsLine(text_.Decoded(name));
        if (song.line.empty()) song.line = NameFromPlace(text_.Decoded(place));
        AddPath(song, place);
        if (const std::string decoded = text_.Decoded(place); decoded != place) AddPath(song, decoded);
        if (!song.line.empty()) songs_.push_back(std::move(song));
    }
    bool IsFull() const { return songs_.size() >= kMostForeignLines; }
    Songs Take() { return std::move(songs_); }

private:
    void AddPath(ListedSong& song, std::string_view place) const {
        if (std::optional<std::string> path = places_.PathOf(place)) song.paths.push_back(*std::move(path));
    }

    const ForeignText& text_;
    const Places& places_;
    Songs songs_;
};

Songs ReadOwn(std::string_view bytes) {
    Songs songs;
    ForEachLine(base::DecodeFileText(bytes), [&songs](std::string_view text) {
        std::string line = AsLine(text);
        if (line.empty()) return true;
        if (songs.size() == kMostLines) return false;
        songs.push_back({std::move(line), {}});
        return true;
    });
    return songs;
}

// "#EXTINF:213 key="a, b",Artist - Title": the name is after the first comma that is in no quotes.
std::string_view NameInHeader(std::string_view line) {
    bool quoted = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] == '"') quoted = !quoted;
        if (line[at] == ',' && !quoted) return line.substr(at + 1);
    }
    return {};
}

void ReadM3u(const ForeignText& text, Collector& into) {
    constexpr std::string_view kHeader = "#EXTINF:";
    std::string_view name;
    ForEachLine(text.Bytes(), [&](std::string_view line) {
        line = base::Trim(line);
        if (base::EqualIgnoringCase(line.substr(0, kHeader.size()), kHeader)) {
            name = NameInHeader(line);
        } else if (!line.empty() && line.front() != '#') {
            into.Add(line, std::exchange(name, {}));
        }
        return !into.IsFull();
    });
}

// The number at the end of a key such as "File12"; nothing for another key.
std::optional<std::int64_t> NumberedKey(std::string_view key, std::string_view word) {
    if (!base::EqualIgnoringCase(key.substr(0, word.size()), word)) return std::nullopt;
    const std::string_view digits = key.substr(word.size());
    const bool is_number = !digits.empty() && digits.size() < 10 &&
                           digits.find_first_not_of("0123456789") == std::string_view::npos;
    return is_number ? std::optional(base::WholeVal(digits)) : std::nullopt;
}

void ReadPls(const ForeignText& text, Collector& into) {
    struct Entry {
        std::string_view place;
        std::string_view name;
    };
    std::map<std::int64_t, Entry> entries;
    ForEachLine(text.Bytes(), [&entries](std::string_view line) {
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) return true;
        const std::string_view key = base::Trim(line.substr(0, equals));
        const std::string_view value = base::Trim(line.substr(equals + 1));
        if (const auto number = NumberedKey(key, "File")) entries[*number].place = value;
        if (const auto number = NumberedKey(key, "Title")) entries[*number].name = value;
        return true;
    });
    for (const auto& [number, entry] : entries) {
        if (into.IsFull()) return;
        into.Add(entry.place, entry.name);
    }
}

/// The tracks of an XSPF document.
class XspfReader {
public:
    explicit XspfReader(Collector& into) : into_(into) {}

    void Read(std::string_view document) {
        XmlReader reader(document);
        for (XmlPart part = reader.Next(); part.kind != XmlKind::End && !into_.IsFull(); part = reader.Next())
            Take(part);
    }

private:
    void Take(const XmlPart& part) {
        if (part.kind == XmlKind::Open) {
            ++depth_;
            if (track_depth_ == 0 && part.text == "track") track_depth_ = depth_;
            text_.clear();
        } else if (part.kind == XmlKind::Close) {
            if (track_depth_ != 0 && depth_ == track_depth_ + 1) Keep(part.text);
            if (depth_ == track_depth_) EndTrack();
            depth_ = std::max(0, depth_ - 1);
            text_.clear();
        } else if (track_depth_ != 0) {
            text_ += part.text;
        }
    }

    // The first of several is the preferred one.
    void Keep(std::string_view name) {
        std::string* const field = name == "location"  ? &place_
                                   : name == "title"   ? &title_
                                   : name == "creator" ? &artist_
                                                       : nullptr;
        if (field != nullptr && field->empty()) *field = OneLine(text_);
    }

    void EndTrack() {
        const bool has_artist = !artist_.empty() && !title_.empty();
        const bool is_address = base::HasScheme(place_);
        into_.Add(is_address ? place_ : base::PercentDecoded(place_),
                  has_artist ? artist_ + std::string(kSeparator) + title_ : title_);
        place_.clear();
        title_.clear();
        artist_.clear();
        track_depth_ = 0;
    }

    static std::string OneLine(std::string text) {
        std::replace_if(
            text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
        return std::string(base::Trim(text));
    }

    Collector& into_;
    int depth_ = 0;
    int track_depth_ = 0;  // 0 outside of a track
    std::string text_;
    std::string place_;
    std::string title_;
    std::string artist_;
};

}  // namespace

std::vector<ListedSong> ReadPlayListFile(std::string_view path, std::string_view bytes,
                                         const ports::Files& files) {
    if (!base::IsForeignPlayListFile(path)) return ReadOwn(bytes);
    const std::string kind = base::ExtensionOf(path);
    const ForeignText text(bytes);
    const Places places(path, files);
    Collector into(text, places);
    if (kind == "xspf") {
        const std::string decoded = text.Decoded(text.Bytes());
        const ForeignText document(decoded);
        Collector tracks(document, places);
        XspfReader(tracks).Read(document.Bytes());
        return tracks.Take();
    }
    if (kind == "pls") {
        ReadPls(text, into);
    } else {
        ReadM3u(text, into);
    }
    return into.Take();
}

LineNames NamesInLine(std::string_view line) {
    const std::size_t separator = line.find(kSeparator);
    if (separator == std::string_view::npos) return {"Unknown", std::string(line)};
    return {std::string(base::Trim(line.substr(0, separator))),
            std::string(base::Trim(line.substr(separator + kSeparator.size())))};
}

}  // namespace library
