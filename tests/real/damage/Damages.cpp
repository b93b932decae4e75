#include "real/damage/Damages.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>

namespace damage {
namespace {

using Bytes = std::string;

struct Ground {
    Bytes bytes;
    const Bytes& other;
    std::mt19937 places;
};

struct Damage {
    std::string_view name;
    Bytes (*apply)(Ground ground);
};

std::size_t Below(std::mt19937& places, std::size_t end) {
    return end == 0 ? 0 : places() % end;
}

Bytes Flip(Ground ground, std::size_t count, std::size_t end) {
    for (std::size_t i = 0; i < count && !ground.bytes.empty(); ++i) {
        const std::size_t place = Below(ground.places, std::min(end, ground.bytes.size()));
        ground.bytes[place] = static_cast<char>(ground.bytes[place] ^ (1 << Below(ground.places, 8)));
    }
    return ground.bytes;
}

// A damage is given its ground by value, for many of them change it in place.
// NOLINTBEGIN(performance-unnecessary-value-param)
Bytes CutTo(Bytes bytes, std::size_t size) {
    bytes.resize(std::min(size, bytes.size()));
    return bytes;
}

Bytes CutToShare(Bytes bytes, std::size_t percent) {
    return CutTo(bytes, bytes.size() * percent / 100);
}

Bytes Fill(Bytes bytes, std::size_t begin, std::size_t count, char with = '\0') {
    const std::size_t first = std::min(begin, bytes.size());
    std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(first), std::min(count, bytes.size() - first),
                with);
    return bytes;
}

Bytes FillShare(const Bytes& bytes, std::size_t from_percent, std::size_t to_percent, char with = '\0') {
    const std::size_t begin = bytes.size() * from_percent / 100;
    return Fill(bytes, begin, bytes.size() * to_percent / 100 - begin, with);
}

Bytes WithHead(Bytes bytes, std::string_view head) {
    return bytes.replace(0, std::min(bytes.size(), head.size()), head);
}

Bytes ZeroEverySecondBlock(Bytes bytes) {
    constexpr std::size_t kBlock = 512;
    for (std::size_t begin = kBlock; begin < bytes.size(); begin += 2 * kBlock)
        bytes = Fill(std::move(bytes), begin, kBlock);
    return bytes;
}

Bytes Noise(std::mt19937& places, std::size_t size) {
    Bytes noise(size, '\0');
    for (char& byte : noise)
        byte = static_cast<char>(places());
    return noise;
}

Bytes SwapHalves(Bytes bytes) {
    std::rotate(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(bytes.size() / 2), bytes.end());
    return bytes;
}

// A tag of 256 MiB in front, by its own account.
constexpr std::string_view kHugeTag{"ID3\4\0\0\x7F\x7F\x7F\x7F", 10};
constexpr std::size_t kAnywhere = static_cast<std::size_t>(-1);

constexpr std::array<Damage, kDamages> kTable{{
    {"one bit of the first 16 bytes", [](Ground g) { return Flip(std::move(g), 1, 16); }},
    {"one bit of the first 64 bytes", [](Ground g) { return Flip(std::move(g), 1, 64); }},
    {"one bit of the first 512 bytes", [](Ground g) { return Flip(std::move(g), 1, 512); }},
    {"one bit anywhere", [](Ground g) { return Flip(std::move(g), 1, kAnywhere); }},
    {"4 bits of the first 32 bytes", [](Ground g) { return Flip(std::move(g), 4, 32); }},
    {"8 bits of the first 128 bytes", [](Ground g) { return Flip(std::move(g), 8, 128); }},
    {"32 bits of the first 1024 bytes", [](Ground g) { return Flip(std::move(g), 32, 1024); }},
    {"8 bits anywhere", [](Ground g) { return Flip(std::move(g), 8, kAnywhere); }},
    {"64 bits anywhere", [](Ground g) { return Flip(std::move(g), 64, kAnywhere); }},
    {"500 bits anywhere", [](Ground g) { return Flip(std::move(g), 500, kAnywhere); }},
    {"5000 bits anywhere", [](Ground g) { return Flip(std::move(g), 5000, kAnywhere); }},
    {"a bit in every eighth byte",
     [](Ground g) {
         const std::size_t count = g.bytes.size() / 8;
         return Flip(std::move(g), count, kAnywhere);
     }},
    {"cut to nothing", [](Ground) { return Bytes(); }},
    {"cut to 1 byte", [](Ground g) { return CutTo(g.bytes, 1); }},
    {"cut to 8 bytes", [](Ground g) { return CutTo(g.bytes, 8); }},
    {"cut to 44 bytes", [](Ground g) { return CutTo(g.bytes, 44); }},
    {"cut to 200 bytes", [](Ground g) { return CutTo(g.bytes, 200); }},
    {"cut to 1000 bytes", [](Ground g) { return CutTo(g.bytes, 1000); }},
    {"cut to 5000 bytes", [](Ground g) { return CutTo(g.bytes, 5000); }},
    {"cut to a quarter", [](Ground g) { return CutToShare(g.bytes, 25); }},
    {"cut to three quarters", [](Ground g) { return CutToShare(g.bytes, 75); }},
    {"cut by its last byte",
     [](Ground g) { return CutTo(g.bytes, g.bytes.size() - std::min<std::size_t>(1, g.bytes.size())); }},
    {"zeros in the first 16 bytes", [](Ground g) { return Fill(g.bytes, 0, 16); }},
    {"zeros from 16 to 128", [](Ground g) { return Fill(g.bytes, 16, 112); }},
    {"zeros in the first 4096 bytes", [](Ground g) { return Fill(g.bytes, 0, 4096); }},
    {"zeros in a tenth of the middle", [](Ground g) { return FillShare(g.bytes, 45, 55); }},
    {"zeros in the last half", [](Ground g) { return FillShare(g.bytes, 50, 100); }},
    {"zeros in every second block", [](Ground g) { return ZeroEverySecondBlock(g.bytes); }},
    {"nothing but zeros", [](Ground g) { return FillShare(g.bytes, 0, 100); }},
    {"ones in a tenth of the middle", [](Ground g) { return FillShare(g.bytes, 45, 55, '\xFF'); }},
    {"the head of another kind",
     [](Ground g) { return WithHead(g.bytes, std::string_view(g.other).substr(0, 64)); }},
    {"the head of a page", [](Ground g) { return WithHead(g.bytes, "<!DOCTYPE html><html><body>"); }},
    {"the head of an archive", [](Ground g) { return WithHead(g.bytes, "PK\3\4\x14"); }},
    {"the head of a huge tag", [](Ground g) { return WithHead(g.bytes, kHugeTag); }},
    {"another kind's whole content", [](Ground g) { return g.other; }},
    {"another kind's second half",
     [](Ground g) { return CutToShare(g.bytes, 50) + g.other.substr(g.other.size() / 2); }},
    {"its halves swapped", [](Ground g) { return SwapHalves(g.bytes); }},
    {"itself twice", [](Ground g) { return g.bytes + g.bytes; }},
    {"20000 bytes of noise in front", [](Ground g) { return Noise(g.places, 20000) + g.bytes; }},
    {"nothing but noise", [](Ground g) { return Noise(g.places, g.bytes.size()); }},
}};
// NOLINTEND(performance-unnecessary-value-param)

}  // namespace

std::string_view NameOf(int number) {
    return kTable.at(static_cast<std::size_t>(number % kDamages)).name;
}

std::string Damaged(std::string bytes, const std::string& other, int number) {
    const auto seed = static_cast<std::uint32_t>(number * 7919 + static_cast<int>(bytes.size() % 100'003));
    return kTable.at(static_cast<std::size_t>(number % kDamages))
        .apply({.bytes = std::move(bytes), .other = other, .places = std::mt19937(seed)});
}

}  // namespace damage
