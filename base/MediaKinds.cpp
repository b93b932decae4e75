#include "base/MediaKinds.h"

#include <algorithm>

#include "base/Text.h"

namespace base {
namespace {

// Three bytes of ASCII are three letters; only other ends have to be counted from the front.
std::string Kind(std::string_view path) {
    const std::string_view end = path.substr(path.size() - std::min<std::size_t>(path.size(), 3));
    const bool is_ascii = std::all_of(end.begin(), end.end(), [](char c) { return (c & 0x80) == 0; });
    return LCase(is_ascii ? end : Right(path, 3));
}

template <std::size_t kCount>
bool IsAmong(const std::array<std::string_view, kCount>& kinds, std::string_view kind) {
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

}  // namespace

bool IsPlayListFile(std::string_view path) {
    return Kind(path) == "mpl";
}

bool IsForeignPlayListFile(std::string_view path) {
    return HasExtension(path, kForeignPlayListKinds);
}

bool IsMediaFile(std::string_view path) {
    return IsAmong(kMediaKinds, Kind(path));
}

bool IsVideoFile(std::string_view path) {
    return IsAmong(kVideoKinds, Kind(path));
}

bool IsScanAudioFile(std::string_view path) {
    return IsAmong(kScanAudioKinds, Kind(path));
}

bool IsScanVideoFile(std::string_view path) {
    return IsAmong(kScanVideoKinds, Kind(path));
}

bool IsScanFile(std::string_view path) {
    const std::string kind = Kind(path);
    return IsAmong(kScanAudioKinds, kind) || IsAmong(kScanVideoKinds, kind);
}

std::string ExtensionOf(std::string_view path) {
    const std::string_view name = path.substr(path.find_last_of("\\/") + 1);
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? std::string() : LCase(name.substr(dot + 1));
}

bool HasExtension(std::string_view path, std::span<const std::string_view> kinds) {
    static constexpr std::string_view kOpenKind = "peg";
    const std::string extension = ExtensionOf(path);
    return std::any_of(kinds.begin(), kinds.end(), [&extension](std::string_view kind) {
        return extension == kind || (kind == kOpenKind && EndsWith(extension, kOpenKind));
    });
}

std::string FileNameOf(std::string_view path) {
    const auto is_separator = [](char character) { return character == '\\' || character == '/'; };
    return {std::find_if(path.rbegin(), path.rend(), is_separator).base(), path.end()};
}

}  // namespace base
