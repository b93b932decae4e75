#include "base/Windows1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "base/Text.h"

namespace base {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// The characters of the bytes 80 to 9F; every other byte is the character of its number.
constexpr char16_t kFirstMapped = 0x80;
constexpr std::array<char16_t, 32> kMapped = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                              0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr char16_t kFirstAfterMapped = kFirstMapped + kMapped.size();

char16_t CharacterOf(unsigned char byte) {
    const bool is_mapped = byte >= kFirstMapped && byte < kFirstAfterMapped;
    return is_mapped ? kMapped.at(byte - kFirstMapped) : byte;
}

std::optional<char> ByteOf(char16_t character) {
    if (character < kFirstMapped || (character >= kFirstAfterMapped && character <= 0xFF))
        return static_cast<char>(character);
    const auto* mapped = std::find(kMapped.begin(), kMapped.end(), character);
    if (mapped == kMapped.end()) return std::nullopt;
    return static_cast<char>(kFirstMapped + (mapped - kMapped.begin()));
}

std::optional<std::string> Encoded(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (const char16_t character : ToUtf16(text)) {
        const std::optional<char> byte = ByteOf(character);
        if (!byte) return std::nullopt;
        bytes += *byte;
    }
    return bytes;
}

}  // namespace

bool HasUtf8Mark(std::string_view bytes) {
    return StartsWith(bytes, kUtf8Mark);
}

std::string DecodeFileText(std::string_view bytes) {
    if (HasUtf8Mark(bytes)) return std::string(bytes.substr(kUtf8Mark.size()));
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        AppendCharacter(text, CharacterOf(static_cast<unsigned char>(byte)));
    return text;
}

std::string EncodeFileText(std::string_view text) {
    std::optional<std::string> bytes = Encoded(text);
    if (bytes && !HasUtf8Mark(*bytes)) return *std::move(bytes);
    return std::string(kUtf8Mark).append(text);
}

}  // namespace base
