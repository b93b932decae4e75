#include "base/FileAddress.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

#include "base/Text.h"

namespace base {
namespace {

constexpr std::string_view kFileScheme = "file:";
constexpr std::string_view kHostMark = "//";

bool IsLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool IsFileAddress(std::string_view text) {
    return EqualIgnoringCase(text.substr(0, kFileScheme.size()), kFileScheme);
}

// "/C:/Music" names a drive; "/home" does not.
std::string_view WithoutSlashBeforeDrive(std::string_view path) {
    const bool names_drive = path.size() >= 3 && path[0] == '/' && IsLetter(path[1]) && path[2] == ':';
    return names_drive ? path.substr(1) : path;
}

}  // namespace

std::string PercentDecoded(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        unsigned char byte = 0;
        const char* const digits = text.data() + at + 1;
        if (text[at] == '%' && at + 2 < text.size() &&
            std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
            bytes += static_cast<char>(byte);
            at += 2;
        } else {
            bytes += text[at];
        }
    }
    return bytes;
}

bool HasScheme(std::string_view text) {
    const std::size_t end = text.find("://");
    if (end == std::string_view::npos || end == 0) return IsFileAddress(text);
    return std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end), IsLetter);
}

std::optional<std::string> PathOfFileAddress(std::string_view address) {
    if (!IsFileAddress(address)) return std::nullopt;
    std::string_view path = address.substr(kFileScheme.size());
    path = path.substr(0, path.find_first_of("?#"));
    if (StartsWith(path, kHostMark)) {
        path.remove_prefix(kHostMark.size());
        const std::size_t end = std::min(path.find('/'), path.size());
        const std::string_view host = path.substr(0, end);
        if (!host.empty() && !EqualIgnoringCase(host, "localhost")) return std::nullopt;
        path.remove_prefix(end);
    }
    if (path.empty()) return std::nullopt;
    return PercentDecoded(WithoutSlashBeforeDrive(path));
}

}  // namespace base
