#include "platform/gstreamer/EncoderDelay.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <optional>
#include <utility>

namespace gstreamer {
namespace {

// A decoder of layer III gives out so many samples before the first that it was given.
constexpr std::int64_t kDecoderDelay = 529;
constexpr std::int64_t kNanoseconds = 1'000'000'000;
// No encoder delays by more.
constexpr std::int64_t kLongestDelay = 10'000;
constexpr std::size_t kTagHeader = 10;
constexpr std::size_t kMostOfTag = std::size_t{1} << 18U;
constexpr std::size_t kMostOfFrame = 1024;
constexpr std::string_view kComment = "iTunSMPB";

unsigned Byte(std::string_view bytes, std::size_t at) {
    return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

std::int64_t Number(std::string_view bytes, std::size_t at, std::size_t count) {
    std::int64_t number = 0;
    for (std::size_t i = 0; i < count; ++i)
        number = number * 256 + Byte(bytes, at + i);
    return number;
}

struct Frame {
    std::int64_t rate = 0;
    std::int64_t samples = 0;
    std::size_t note = 0;  ///< where a note begins
};

/// None for what is no frame of layer III.
std::optional<Frame> ReadFrame(std::string_view bytes) {
    constexpr unsigned kLayer3 = 1;
    constexpr unsigned kMono = 3;
    constexpr std::array<std::int64_t, 3> kRates = {44100, 48000, 32000};
    if (bytes.size() < 4 || Byte(bytes, 0) != 0xFF || (Byte(bytes, 1) & 0xE0U) != 0xE0U) return std::nullopt;
    const unsigned version = Byte(bytes, 1) >> 3U & 3U;  // 3 is the first, 2 the second, 0 the half one
    const unsigned rate = Byte(bytes, 2) >> 2U & 3U;
    if ((Byte(bytes, 1) >> 1U & 3U) != kLayer3 || version == 1 || rate >= kRates.size()) return std::nullopt;
    const bool is_mono = Byte(bytes, 3) >> 6U == kMono;
    if (version == 3) return Frame{kRates.at(rate), 1152, is_mono ? 21U : 36U};
    return Frame{kRates.at(rate) / (version == 2 ? 2 : 4), 576, is_mono ? 13U : 21U};
}

/// Of `total` samples (0: not known), `delay` and `padding` were put around the recording.
Recording Around(std::int64_t delay, std::int64_t padding, std::int64_t total, std::int64_t rate) {
    if (delay < 0 || delay > kLongestDelay || padding < 0 || padding > kLongestDelay) return {};
    const std::int64_t begin = delay + kDecoderDelay;
    const std::int64_t end = total == 0 ? 0 : total - std::max<std::int64_t>(padding - kDecoderDelay, 0);
    if (end != 0 && end <= begin) return {};
    return {.begin = begin * kNanoseconds / rate, .end = end * kNanoseconds / rate};
}

Recording OfFirstFrame(const Frame& frame, std::string_view bytes) {
    const std::string_view note = bytes.substr(std::min(frame.note, bytes.size()));
    if (!note.starts_with("Info") && !note.starts_with("Xing")) return {};
    const std::int64_t fields = Number(note, 4, 4);
    std::size_t at = 8;
    std::int64_t total = 0;
    // Frames, bytes, a table, a quality: each where its bit is set.
    for (const auto& [bit, size] : {std::pair<int, std::size_t>{1, 4}, {2, 4}, {4, 100}, {8, 4}}) {
        if ((fields & bit) == 0) continue;
        if (bit == 1) total = Number(note, at, 4) * frame.samples;
        at += size;
    }
    constexpr std::size_t kDelays = 21;  // after the encoder's name and what it thinks of the sound
    if (note.size() < at + kDelays + 3 || note[at] == '\0') return {};
    const std::int64_t delays = Number(note, at + kDelays, 3);
    return Around(delays / 4096, delays % 4096, total, frame.rate);
}

/// Hexadecimal numbers with blanks between: nothing, delay, padding, samples of the recording.
Recording OfComment(const Frame& frame, std::string_view tag) {
    const std::size_t found = tag.find(kComment);
    if (found == std::string_view::npos) return {};
    std::string_view rest = tag.substr(found + kComment.size());
    std::array<std::int64_t, 4> numbers{};
    for (std::int64_t& number : numbers) {
        rest.remove_prefix(std::min(rest.find_first_of("0123456789ABCDEFabcdef"), rest.size()));
        const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number, 16);
        if (error != std::errc()) return {};
        rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
    }
    const auto [nothing, delay, padding, samples] = numbers;
    if (samples <= 0) return {};
    return Around(delay, padding, delay + samples + padding, frame.rate);
}

std::string ReadSome(std::ifstream& file, std::size_t count) {
    std::string bytes(count, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(count));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

std::size_t SizeOfTag(std::string_view header) {
    if (header.size() < kTagHeader || !header.starts_with("ID3")) return 0;
    std::size_t size = 0;
    for (std::size_t i = 6; i < kTagHeader; ++i)
        size = size * 128 + (Byte(header, i) & 0x7FU);
    return size + kTagHeader;
}

}  // namespace

Recording RecordingOf(std::string_view tag, std::string_view frame) {
    const std::optional<Frame> first = ReadFrame(frame);
    if (!first) return {};
    const Recording told = OfFirstFrame(*first, frame);
    return told.begin > 0 ? told : OfComment(*first, tag);
}

Recording RecordingOfFile(const std::string& native_path) {
    std::ifstream file(native_path, std::ios::binary);
    std::string tag = ReadSome(file, kTagHeader);
    const std::size_t size = SizeOfTag(tag);
    if (size > kTagHeader) tag += ReadSome(file, std::min(size, kMostOfTag) - kTagHeader);
    file.clear();
    file.seekg(static_cast<std::streamoff>(size));
    return RecordingOf(tag, ReadSome(file, kMostOfFrame));
}

}  // namespace gstreamer
