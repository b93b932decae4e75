#include "base/Markup.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "base/Text.h"

namespace base {
namespace {

struct Entity {
    std::string_view name;
    char character;
};

constexpr std::array kEntities = {Entity{"amp", '&'}, Entity{"lt", '<'}, Entity{"gt", '>'},
                                  Entity{"quot", '"'}, Entity{"apos", '\''}};
constexpr std::size_t kLongestEntity = 10;

// "#233" or "#xE9"; nothing for a number that is no character.
std::optional<char32_t> NumberedCharacter(std::string_view name) {
    const bool is_hexadecimal = StartsWith(name, "#x") || StartsWith(name, "#X");
    name.remove_prefix(is_hexadecimal ? 2 : 1);
    unsigned code = 0;
    const auto end = std::from_chars(name.data(), name.data() + name.size(), code, is_hexadecimal ? 16 : 10);
    const bool is_read = end.ec == std::errc() && end.ptr == name.data() + name.size();
    const bool is_character = code != 0 && code < 0x110000 && (code < 0xD800 || code > 0xDFFF);
    return is_read && is_character ? std::optional<char32_t>(code) : std::nullopt;
}

bool AppendEntity(std::string& out, std::string_view name) {
    if (StartsWith(name, "#")) {
        const std::optional<char32_t> code = NumberedCharacter(name);
        if (code) AppendCharacter(out, *code);
        return code.has_value();
    }
    const auto* const entity = std::find_if(kEntities.begin(), kEntities.end(),
                                            [name](const Entity& one) { return one.name == name; });
    if (entity == kEntities.end()) return false;
    out += entity->character;
    return true;
}

}  // namespace

std::string DecodeEntities(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::size_t length = text[at] == '&' ? text.substr(at, kLongestEntity).find(';') : 0;
        if (length == 0 || length == std::string_view::npos ||
            !AppendEntity(out, text.substr(at + 1, length - 1))) {
            out += text[at];
        } else {
            at += length;
        }
    }
    return out;
}

std::string EncodeEntities(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (const char character : text) {
        const auto* const entity = std::find_if(kEntities.begin(), kEntities.end(), [=](const Entity& one) {
            return one.character == character;
        });
        if (entity == kEntities.end()) {
            out += character;
        } else if (character == '\'') {
            out.append("&#39;");
        } else {
            out.append("&").append(entity->name).append(";");
        }
    }
    return out;
}

std::size_t EndOfTag(std::string_view tag) {
    char quote = 0;
    for (std::size_t at = 0; at < tag.size(); ++at) {
        if (quote != 0) {
            if (tag[at] == quote) quote = 0;
        } else if (tag[at] == '"' || tag[at] == '\'') {
            quote = tag[at];
        } else if (tag[at] == '>') {
            return at;
        }
    }
    return tag.size();
}

}  // namespace base
