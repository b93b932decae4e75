#include "platform/gstreamer/MidiFile.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <optional>

namespace gstreamer {
namespace {

constexpr std::size_t kLargestFile = std::size_t{16} * 1024 * 1024;
constexpr std::string_view kHeader = "MThd";
constexpr std::size_t kChunkHead = 8;
constexpr std::size_t kHeaderSize = 6;
constexpr std::size_t kDivisionPlace = 4;
constexpr std::size_t kTracksPlace = 2;
// Of a status byte: the first one, and the ones that stand for no channel.
constexpr unsigned kStatus = 0x80;
constexpr unsigned kProgramChange = 0xC0;
constexpr unsigned kChannelPressure = 0xD0;
constexpr unsigned kSystemExclusive = 0xF0;
constexpr unsigned kEscape = 0xF7;
constexpr unsigned kMeta = 0xFF;

unsigned ByteAt(std::string_view bytes, std::size_t place) {
    return static_cast<unsigned char>(bytes[place]);
}

std::size_t Number(std::string_view bytes, std::size_t place, std::size_t count) {
    std::size_t number = 0;
    for (std::size_t i = 0; i < count; ++i)
        number = number << 8U | ByteAt(bytes, place + i);
    return number;
}

/// A number of one to four bytes of seven bits, taken off the front.
std::optional<std::size_t> TakeNumber(std::string_view& rest) {
    constexpr std::size_t kLongest = 4;
    std::size_t number = 0;
    for (std::size_t i = 0; i < kLongest && i < rest.size(); ++i) {
        number = number << 7U | (ByteAt(rest, i) & ~kStatus);
        if (ByteAt(rest, i) >= kStatus) continue;
        rest.remove_prefix(i + 1);
        return number;
    }
    return std::nullopt;
}

bool Skip(std::string_view& rest, std::size_t count) {
    if (rest.size() < count) return false;
    rest.remove_prefix(count);
    return true;
}

bool SkipCounted(std::string_view& rest) {
    const auto length = TakeNumber(rest);
    return length && Skip(rest, *length);
}

bool SkipEvent(std::string_view& rest, unsigned& running) {
    if (rest.empty()) return false;
    unsigned status = ByteAt(rest, 0);
    if (status >= kStatus) {
        rest.remove_prefix(1);
    } else {
        status = running;
    }
    if (status == kMeta) return Skip(rest, 1) && SkipCounted(rest);
    if (status == kSystemExclusive || status == kEscape) return SkipCounted(rest);
    if (status < kStatus || status > kSystemExclusive) return false;
    running = status;
    const unsigned kind = status & kSystemExclusive;
    return Skip(rest, kind == kProgramChange || kind == kChannelPressure ? 1 : 2);
}

bool IsWholeTrack(std::string_view rest) {
    unsigned running = 0;
    while (!rest.empty()) {
        if (!TakeNumber(rest) || !SkipEvent(rest, running)) return false;
    }
    return true;
}

/// The content of the next chunk; the file behind it is left in `rest`.
std::optional<std::string_view> TakeChunk(std::string_view& rest, std::string_view& name) {
    if (rest.size() < kChunkHead) return std::nullopt;
    name = rest.substr(0, 4);
    const std::size_t length = Number(rest, 4, 4);
    rest.remove_prefix(kChunkHead);
    if (rest.size() < length) return std::nullopt;
    const std::string_view content = rest.substr(0, length);
    rest.remove_prefix(length);
    return content;
}

std::string_view WithoutShell(std::string_view bytes) {
    constexpr std::size_t kShell = 20;
    const bool has_shell = bytes.size() > kShell && bytes.starts_with("RIFF") &&
                           bytes.substr(8, 4) == "RMID" && bytes.substr(12, 4) == "data";
    return has_shell ? bytes.substr(kShell) : bytes;
}

}  // namespace

bool IsWholeMidi(std::string_view bytes) {
    std::string_view rest = WithoutShell(bytes);
    std::string_view name;
    const auto header = TakeChunk(rest, name);
    if (!header || name != kHeader || header->size() < kHeaderSize) return false;
    if (Number(*header, kDivisionPlace, 2) == 0) return false;
    for (std::size_t tracks = Number(*header, kTracksPlace, 2); tracks > 0;) {
        const auto chunk = TakeChunk(rest, name);
        if (!chunk) return false;
        if (name != "MTrk") continue;
        if (!IsWholeTrack(*chunk)) return false;
        --tracks;
    }
    return true;
}

bool IsWholeMidiFile(const std::string& native_path) {
    std::ifstream file(native_path, std::ios::binary);
    std::string bytes;
    std::array<char, 65536> piece{};
    while (bytes.size() <= kLargestFile) {
        file.read(piece.data(), piece.size());
        if (file.gcount() <= 0) return IsWholeMidi(bytes);
        bytes.append(piece.data(), static_cast<std::size_t>(file.gcount()));
        if (!WithoutShell(bytes).starts_with(kHeader)) return false;
    }
    return false;
}

}  // namespace gstreamer
