#include "platform/linux/CommandText.h"

#include <limits.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cstdlib>
#include <memory>
#include <optional>

#include "base/Text.h"

namespace linux {
namespace {

constexpr std::string_view kFileScheme = "file://";
constexpr std::array<std::string_view, 4> kCommonDomains{".com", ".uk", ".net", ".org"};

bool IsSchemeCharacter(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '+' || character == '-' ||
           character == '.';
}

// "http://...", "mailto:...": letters and a colon, but no drive letter.
bool HasScheme(std::string_view argument) {
    const std::size_t colon = argument.find(':');
    if (colon == std::string_view::npos || colon < 2) return false;
    const std::string_view scheme = argument.substr(0, colon);
    if (std::isalpha(static_cast<unsigned char>(scheme.front())) == 0) return false;
    return std::all_of(scheme.begin(), scheme.end(), IsSchemeCharacter);
}

bool HasDrive(std::string_view argument) {
    return argument.size() >= 2 && argument[1] == ':' &&
           std::isalpha(static_cast<unsigned char>(argument[0])) != 0;
}

bool LooksLikeAHost(std::string_view argument) {
    const std::string lower = base::LCase(argument);
    if (lower.starts_with("www.")) return true;
    const std::string host = lower.substr(0, lower.find('/'));
    return std::any_of(kCommonDomains.begin(), kCommonDomains.end(),
                       [&host](std::string_view domain) { return base::Contains(host, domain); });
}

std::optional<char> HexByte(std::string_view digits) {
    unsigned value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (digits.size() != 2 || result.ec != std::errc() || result.ptr != digits.data() + 2)
        return std::nullopt;
    return static_cast<char>(value);
}

std::string PercentDecoded(std::string_view text) {
    std::string out;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto byte = text[at] == '%' ? HexByte(text.substr(at + 1, 2)) : std::nullopt;
        out += byte.value_or(text[at]);
        if (byte) at += 2;
    }
    return out;
}

// The path behind "file://" and an optional host, which can only be this computer.
std::string PathOfFileAddress(std::string_view address) {
    const std::string_view rest = address.substr(kFileScheme.size());
    const std::size_t slash = rest.find('/');
    return slash == std::string_view::npos ? std::string() : PercentDecoded(rest.substr(slash));
}

bool HasDots(std::string_view native) {
    const std::string ended = std::string(native) + "/";
    return base::Contains(ended, "/./") || base::Contains(ended, "/../");
}

struct Free {
    void operator()(char* text) const { std::free(text); }
};

// One path for one file: "." and ".." are resolved by the system, the file's own name stays.
std::string WithoutDots(const std::string& native) {
    if (!HasDots(native)) return native;
    const std::size_t slash = native.rfind('/');
    const std::string name = native.substr(slash + 1);
    const bool ends_in_dots = name == "." || name == "..";
    const std::string folder = ends_in_dots ? native : native.substr(0, slash + 1);
    const std::unique_ptr<char, Free> resolved(::realpath(folder.c_str(), nullptr));
    if (resolved == nullptr) return native;
    std::string whole = resolved.get();
    if (ends_in_dots) return whole;
    return whole == "/" ? whole + name : whole + "/" + name;
}

std::string Absolute(const std::string& argument, std::string_view working_folder) {
    if (argument.starts_with('/')) return argument;
    return std::string(working_folder) + (working_folder.ends_with('/') ? "" : "/") + argument;
}

std::string DriveForm(const std::string& native, const ports::Files& files) {
    return base::QuoteFree(files.FromNative(WithoutDots(native)));
}

std::string Understood(const std::string& argument, std::string_view working_folder,
                       const ports::Files& files) {
    if (base::LCase(base::Left(argument, kFileScheme.size())) == kFileScheme) {
        return DriveForm(PathOfFileAddress(argument), files);
    }
    if (HasDrive(argument)) return base::QuoteFree(argument);
    const std::string path = DriveForm(Absolute(argument, working_folder), files);
    const bool is_there = files.GetAttributes(path).has_value();
    const bool is_address = HasScheme(argument) || (!argument.starts_with('/') && LooksLikeAHost(argument));
    // A quote has its own way to be written in an address.
    return is_address && !is_there ? base::Replace(argument, "\"", "%22") : path;
}

}  // namespace

std::string CommandText(const std::vector<std::string>& arguments, std::string_view working_folder,
                        const ports::Files& files) {
    std::string text;
    for (const std::string& argument : arguments) {
        if (argument.empty()) continue;
        if (!text.empty()) text += ' ';
        text += '"' + Understood(argument, working_folder, files) + '"';
    }
    return text;
}

std::string WorkingFolder() {
    std::array<char, PATH_MAX> buffer{};
    return ::getcwd(buffer.data(), buffer.size()) == nullptr ? "/" : buffer.data();
}

}  // namespace linux
