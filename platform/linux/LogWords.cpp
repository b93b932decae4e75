#include "platform/linux/LogWords.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>

#include "base/Text.h"

namespace linux {
namespace {

constexpr std::size_t kLongestLine = 300;
constexpr std::string_view kCut = "[...]";
/// What a name with a dot may end in and still be a part of a program.
constexpr std::array<std::string_view, 7> kPartsOfPrograms{"cc", "cpp", "c", "h", "so", "qml", "mm"};
constexpr std::array<std::string_view, 6> kBareSchemes{
    "data:", "blob:", "mailto:", "javascript:", "about:", "file:"};

bool IsDigit(char letter) {
    return std::isdigit(static_cast<unsigned char>(letter)) != 0;
}

bool IsLetter(char letter) {
    return std::isalpha(static_cast<unsigned char>(letter)) != 0 ||
           static_cast<unsigned char>(letter) >= 0x80U;
}

bool EndsToken(char letter) {
    return letter == ' ' || base::Contains("\t\"'()[]<>=,;", std::string_view(&letter, 1));
}

/// "example.org", "song.mp3", "192.168.0.1"; but neither "file.cc" nor "libfoo.so.6" nor "1.22.0".
bool IsName(std::string_view token) {
    while (!token.empty() && (token.back() == '.' || token.back() == ':'))
        token.remove_suffix(1);
    token = token.substr(0, token.find_first_of(":/"));
    const std::size_t dot = token.rfind('.');
    if (dot == std::string_view::npos || dot == 0) return false;
    if (std::count(token.begin(), token.end(), '.') == 3 &&
        std::all_of(token.begin(), token.end(), [](char letter) { return letter == '.' || IsDigit(letter); }))
        return true;
    const std::string last = base::LCase(token.substr(dot + 1));
    const bool is_word = last.size() >= 2 && IsLetter(last.front());
    const bool is_part =
        std::find(kPartsOfPrograms.begin(), kPartsOfPrograms.end(), last) != kPartsOfPrograms.end();
    return is_word && !is_part && !token.starts_with("qt.");
}

bool BeginsPath(std::string_view token) {
    if (token.starts_with("~/")) return true;
    if (token.size() >= 3 && IsLetter(token[0]) && token[1] == ':' && token[2] == '\\') return true;
    return token.size() >= 2 && token[0] == '/' && token[1] != '/' && !IsDigit(token[1]);
}

bool TellsTooMuch(std::string_view token) {
    const std::string lower = base::LCase(token);
    const bool has_scheme =
        base::Contains(lower, "://") || lower.starts_with("www.") ||
        std::any_of(kBareSchemes.begin(), kBareSchemes.end(), [&lower](std::string_view scheme) {
            return lower.starts_with(scheme) && lower.size() > scheme.size();
        });
    const bool is_mail = token.find('@') != std::string_view::npos && token.size() > 1;
    const bool is_address_of_six =
        std::count(token.begin(), token.end(), ':') >= 4 &&
        token.find_first_not_of("0123456789abcdefABCDEF:.%") == std::string_view::npos;
    return has_scheme || is_mail || is_address_of_six || BeginsPath(token) || IsName(token);
}

/// Where the first word begins that tells too much; a name may have blanks, so quotes go with it.
std::optional<std::size_t> FirstName(std::string_view line) {
    std::size_t quote = std::string_view::npos;
    std::size_t begin = 0;
    for (std::size_t at = 0; at <= line.size(); ++at) {
        if (at < line.size() && !EndsToken(line[at])) continue;
        if (at > begin && TellsTooMuch(line.substr(begin, at - begin)))
            return quote == std::string_view::npos ? begin : quote;
        if (at < line.size() && (line[at] == '"' || line[at] == '\''))
            quote = quote == std::string_view::npos ? at : std::string_view::npos;
        begin = at + 1;
    }
    return std::nullopt;
}

/// "/usr/lib/libfoo.so.1(+0x12)[0x7f12]", as the C library writes a place.
bool IsPlaceInCode(std::string_view line) {
    const std::size_t bracket = line.rfind("[0x");
    return line.starts_with('/') && line.ends_with(']') && bracket != std::string_view::npos &&
           line.find('(') < bracket;
}

std::string OnOneLine(std::string_view line) {
    std::string plain(line.substr(0, kLongestLine));
    std::replace_if(
        plain.begin(), plain.end(), [](char letter) { return static_cast<unsigned char>(letter) < 0x20U; },
        ' ');
    return plain;
}

}  // namespace

std::string WithoutNames(std::string_view line) {
    const std::string plain = OnOneLine(line);
    if (IsPlaceInCode(plain)) return plain.substr(plain.rfind('/', plain.find('(')) + 1);
    const std::optional<std::size_t> name = FirstName(plain);
    return name ? plain.substr(0, *name).append(kCut) : plain;
}

}  // namespace linux
