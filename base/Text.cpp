#include "base/Text.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace base {
namespace {

struct CaseRun {
    char32_t first;
    char32_t last;
    std::uint8_t step;
    std::int32_t delta;
};

#include "base/CaseTable.inc"

constexpr char32_t kFirstBeyondUnicode = 0x110000;
/// From here on a character is two units of UTF-16.
constexpr char32_t kFirstOfTwoUnits = 0x10000;
constexpr char16_t kReplacement = 0xFFFD;
constexpr std::size_t kNowhere = std::string_view::npos;

struct Decoded {
    char32_t code;      // a stray byte becomes a code beyond Unicode
    std::size_t bytes;  // 1 to 4
};

unsigned char ByteAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

bool IsAscii(unsigned char byte) {
    return byte < 0x80;
}

bool IsContinuation(std::string_view text, std::size_t at) {
    return at < text.size() && (ByteAt(text, at) & 0xC0U) == 0x80U;
}

Decoded Stray(unsigned char byte) {
    return {kFirstBeyondUnicode + byte, 1};
}

// Length that a lead byte promises, 0 when it is no lead byte.
std::size_t PromisedBytes(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 0;
}

// Neither longer than needed, nor half of a surrogate pair, nor beyond the last code point.
bool IsWellFormed(char32_t code, std::size_t bytes) {
    if (bytes == 3) return code >= 0x800 && (code < 0xD800 || code > 0xDFFF);
    if (bytes == 4) return code >= 0x10000 && code < kFirstBeyondUnicode;
    return true;
}

Decoded DecodeMultiByte(std::string_view text, std::size_t at) {
    const unsigned char lead = ByteAt(text, at);
    const std::size_t bytes = PromisedBytes(lead);
    if (bytes == 0) return Stray(lead);
    char32_t code = lead & (0x7FU >> bytes);
    for (std::size_t i = 1; i < bytes; ++i) {
        if (!IsContinuation(text, at + i)) return Stray(lead);
        code = (code << 6U) | (ByteAt(text, at + i) & 0x3FU);
    }
    return IsWellFormed(code, bytes) ? Decoded{code, bytes} : Stray(lead);
}

Decoded Decode(std::string_view text, std::size_t at) {
    const unsigned char byte = ByteAt(text, at);
    return IsAscii(byte) ? Decoded{byte, 1} : DecodeMultiByte(text, at);
}

// The byte position behind `count` characters from `at`.
std::size_t Skip(std::string_view text, std::size_t at, std::size_t count) {
    while (count > 0 && at < text.size()) {
        at += Decode(text, at).bytes;
        --count;
    }
    return at;
}

char32_t LowerAscii(char32_t code) {
    return code >= 'A' && code <= 'Z' ? code + ('a' - 'A') : code;
}

char32_t UpperAscii(char32_t code) {
    return code >= 'a' && code <= 'z' ? code - ('a' - 'A') : code;
}

template <std::size_t kRuns>
char32_t Mapped(const CaseRun (&runs)[kRuns], char32_t code) {
    const CaseRun* run =
        std::lower_bound(std::begin(runs), std::end(runs), code,
                         [](const CaseRun& one, char32_t wanted) { return one.last < wanted; });
    if (run == std::end(runs) || code < run->first || (code - run->first) % run->step != 0) return code;
    return static_cast<char32_t>(static_cast<std::int32_t>(code) + run->delta);
}

char32_t Lower(char32_t code) {
    return code < 0x80 ? LowerAscii(code) : Mapped(kLowerRuns, code);
}

char32_t Upper(char32_t code) {
    return code < 0x80 ? UpperAscii(code) : Mapped(kUpperRuns, code);
}

// Puts the ASCII characters that `text` has from `at` on behind `out`, mapped; returns where they end.
template <class Map>
std::size_t AppendAscii(std::string& out, std::string_view text, std::size_t at, Map map) {
    std::size_t end = at;
    while (end < text.size() && IsAscii(ByteAt(text, end)))
        ++end;
    const std::size_t place = out.size();
    out.resize(place + (end - at));
    std::transform(text.data() + at, text.data() + end, out.data() + place, [map](char character) {
        return static_cast<char>(map(static_cast<unsigned char>(character)));
    });
    return end;
}

template <class Map, class MapAscii>
std::string MapCase(std::string_view text, Map map, MapAscii map_ascii) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = AppendAscii(out, text, 0, map_ascii); at < text.size();) {
        const Decoded one = Decode(text, at);
        if (one.code < kFirstBeyondUnicode) {
            AppendCharacter(out, map(one.code));
        } else {
            out += text[at];
        }
        at = AppendAscii(out, text, at + one.bytes, map_ascii);
    }
    return out;
}

// True when the part of `text` at `at` reads, character by character, as `wanted`.
bool ReadsAs(std::string_view text, std::size_t at, std::string_view wanted) {
    if (text.compare(at, wanted.size(), wanted) != 0) return false;
    const std::size_t end = at + wanted.size();
    while (at < end)
        at += Decode(text, at).bytes;
    return at == end;
}

// Byte position of `wanted` at or behind the character that begins at `from`. Well-formed text can only be
// found at the start of a character; stray bytes need the slow way, lest they are found inside of one.
std::size_t Find(std::string_view text, std::string_view wanted, std::size_t from) {
    if (IsUtf8(wanted)) return text.find(wanted, from);
    for (std::size_t at = from; at + wanted.size() <= text.size(); at += Decode(text, at).bytes) {
        if (ReadsAs(text, at, wanted)) return at;
    }
    return kNowhere;
}

std::size_t FindLast(std::string_view text, std::string_view wanted) {
    if (IsUtf8(wanted)) return text.rfind(wanted);
    std::size_t last = kNowhere;
    for (std::size_t at = Find(text, wanted, 0); at != kNowhere;) {
        last = at;
        at = Find(text, wanted, at + Decode(text, at).bytes);
    }
    return last;
}

int Sign(char32_t left, char32_t right) {
    return left < right ? -1 : (left > right ? 1 : 0);
}

// Where the characters at the front that both texts share end. No character begins with a continuation byte
// and none goes on with another, so a place in front of one that is none is the end of a character in both.
std::size_t EndOfSameCharacters(std::string_view left, std::string_view right) {
    const std::size_t length = std::min(left.size(), right.size());
    std::size_t at = 0;
    while (at < length && left[at] == right[at])
        ++at;
    while (at > 0 && (IsContinuation(left, at) || IsContinuation(right, at)))
        --at;
    return at;
}

}  // namespace

void AppendCharacter(std::string& out, char32_t code) {
    const auto low = [code](unsigned shift) { return static_cast<char>(0x80U | ((code >> shift) & 0x3FU)); };
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0U | (code >> 6U));
        out += low(0);
    } else if (code < 0x10000) {
        out += static_cast<char>(0xE0U | (code >> 12U));
        out += {low(6), low(0)};
    } else {
        out += static_cast<char>(0xF0U | (code >> 18U));
        out += {low(12), low(6), low(0)};
    }
}

std::size_t Len(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++count)
        at += Decode(text, at).bytes;
    return count;
}

std::string_view Left(std::string_view text, std::size_t count) {
    if (count >= text.size()) return text;
    return text.substr(0, Skip(text, 0, count));
}

std::string_view Right(std::string_view text, std::size_t count) {
    if (count >= text.size()) return text;
    const std::size_t length = Len(text);
    if (count >= length) return text;
    return text.substr(Skip(text, 0, length - count));
}

std::string_view Mid(std::string_view text, std::size_t start, std::size_t count) {
    if (start == 0 || start > text.size()) return {};
    const std::string_view rest = text.substr(Skip(text, 0, start - 1));
    return Left(rest, count);
}

std::size_t InStr(std::string_view text, std::string_view wanted, std::size_t start) {
    if (start == 0) start = 1;
    if (start > text.size()) return 0;
    const std::size_t from = Skip(text, 0, start - 1);
    if (from >= text.size()) return 0;
    const std::size_t found = Find(text, wanted, from);
    return found == kNowhere ? 0 : start + Len(text.substr(from, found - from));
}

std::size_t InStrRev(std::string_view text, std::string_view wanted) {
    if (wanted.empty()) return Len(text);
    const std::size_t found = FindLast(text, wanted);
    return found == kNowhere ? 0 : Len(text.substr(0, found)) + 1;
}

std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == kNowhere) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string LCase(std::string_view text) {
    return MapCase(text, Lower, LowerAscii);
}

std::string UCase(std::string_view text) {
    return MapCase(text, Upper, UpperAscii);
}

std::string Replace(std::string_view text, std::string_view from, std::string_view to) {
    std::string out;
    if (from.empty()) return out.append(text);
    std::size_t copied = 0;
    for (std::size_t at = Find(text, from, 0); at != kNowhere; at = Find(text, from, copied)) {
        out.append(text.substr(copied, at - copied)).append(to);
        copied = at + from.size();
    }
    return out.append(text.substr(copied));
}

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string> parts;
    if (text.empty()) return parts;
    std::size_t begin = 0;
    if (!separator.empty()) {
        for (std::size_t at = Find(text, separator, 0); at != kNowhere; at = Find(text, separator, begin)) {
            parts.emplace_back(text.substr(begin, at - begin));
            begin = at + separator.size();
        }
    }
    parts.emplace_back(text.substr(begin));
    return parts;
}

int CompareForSort(std::string_view left, std::string_view right) {
    int tie = 0;
    std::size_t left_at = EndOfSameCharacters(left, right);
    std::size_t right_at = left_at;
    while (left_at < left.size() && right_at < right.size()) {
        const Decoded one = Decode(left, left_at);
        const Decoded other = Decode(right, right_at);
        if (one.code != other.code) {
            if (const int order = Sign(Lower(one.code), Lower(other.code)); order != 0) return order;
            if (tie == 0) tie = Sign(one.code, other.code);
        }
        left_at += one.bytes;
        right_at += other.bytes;
    }
    if (left_at < left.size()) return 1;
    if (right_at < right.size()) return -1;
    return tie;
}

// UTF-8 compares as its code points do; a stray byte stands behind every code point.
void AppendSortKey(std::string& out, std::string_view text) {
    for (std::size_t at = AppendAscii(out, text, 0, LowerAscii); at < text.size();) {
        const Decoded one = Decode(text, at);
        if (one.code < kFirstBeyondUnicode) {
            AppendCharacter(out, Lower(one.code));
        } else {
            out += {'\xff', text[at]};
        }
        at = AppendAscii(out, text, at + one.bytes, LowerAscii);
    }
}

bool EqualIgnoringCase(std::string_view left, std::string_view right) {
    std::size_t left_at = 0;
    std::size_t right_at = 0;
    while (left_at < left.size() && right_at < right.size()) {
        const Decoded one = Decode(left, left_at);
        const Decoded other = Decode(right, right_at);
        if (one.code != other.code && Lower(one.code) != Lower(other.code)) return false;
        left_at += one.bytes;
        right_at += other.bytes;
    }
    return left_at == left.size() && right_at == right.size();
}

bool StartsWith(std::string_view text, std::string_view prefix) {
    return text.starts_with(prefix);
}

bool EndsWith(std::string_view text, std::string_view suffix) {
    return text.ends_with(suffix);
}

bool Contains(std::string_view text, std::string_view part) {
    return Find(text, part, 0) != kNowhere;
}

bool IsUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const Decoded one = Decode(text, at);
        if (one.code >= kFirstBeyondUnicode) return false;
        at += one.bytes;
    }
    return true;
}

std::u16string ToUtf16(std::string_view text) {
    std::u16string wide;
    wide.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Decoded one = Decode(text, at);
        at += one.bytes;
        if (one.code >= kFirstBeyondUnicode) {
            wide += kReplacement;
        } else if (one.code < kFirstOfTwoUnits) {
            wide += static_cast<char16_t>(one.code);
        } else {
            const char32_t offset = one.code - kFirstOfTwoUnits;
            wide += static_cast<char16_t>(0xD800U + (offset >> 10U));
            wide += static_cast<char16_t>(0xDC00U + (offset & 0x3FFU));
        }
    }
    return wide;
}

}  // namespace base
