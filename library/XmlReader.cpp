#include "library/XmlReader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

#include "base/Text.h"

namespace library {
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
    const bool is_hexadecimal = base::StartsWith(name, "#x") || base::StartsWith(name, "#X");
    name.remove_prefix(is_hexadecimal ? 2 : 1);
    unsigned code = 0;
    const auto end = std::from_chars(name.data(), name.data() + name.size(), code, is_hexadecimal ? 16 : 10);
    const bool is_read = end.ec == std::errc() && end.ptr == name.data() + name.size();
    const bool is_character = code != 0 && code < 0x110000 && (code < 0xD800 || code > 0xDFFF);
    return is_read && is_character ? std::optional<char32_t>(code) : std::nullopt;
}

bool AppendEntity(std::string& out, std::string_view name) {
    if (base::StartsWith(name, "#")) {
        const std::optional<char32_t> code = NumberedCharacter(name);
        if (code) base::AppendCharacter(out, *code);
        return code.has_value();
    }
    const auto* const entity = std::find_if(kEntities.begin(), kEntities.end(),
                                            [name](const Entity& one) { return one.name == name; });
    if (entity == kEntities.end()) return false;
    out += entity->character;
    return true;
}

// An "&" that begins no known entity stays.
std::string Decoded(std::string_view text) {
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

// Where a tag ends; a ">" between quotes is part of a value.
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

std::string LocalName(std::string_view tag) {
    const std::string_view name = tag.substr(0, tag.find_first_of(" \t\r\n/"));
    const std::size_t prefix = name.find(':');
    return std::string(prefix == std::string_view::npos ? name : name.substr(prefix + 1));
}

}  // namespace

XmlPart XmlReader::Next() {
    constexpr std::string_view kCharacterData = "<![CDATA[";
    constexpr std::string_view kComment = "<!--";
    if (!to_close_.empty()) return {XmlKind::Close, std::exchange(to_close_, {})};
    while (!left_.empty()) {
        if (left_.front() != '<') return {XmlKind::Text, Decoded(TakeUntil("<"))};
        if (base::StartsWith(left_, kCharacterData)) {
            left_.remove_prefix(kCharacterData.size());
            std::string text(TakeUntil("]]>"));
            SkipPast("]]>");
            return {XmlKind::Text, std::move(text)};
        }
        if (base::StartsWith(left_, kComment)) {
            SkipPast("-->");
        } else if (base::StartsWith(left_, "<?")) {
            SkipPast("?>");
        } else if (base::StartsWith(left_, "<!")) {
            SkipPast(">");
        } else {
            return Tag();
        }
    }
    return {};
}

XmlPart XmlReader::Tag() {
    left_.remove_prefix(1);
    const std::size_t end = EndOfTag(left_);
    std::string_view tag = left_.substr(0, end);
    left_.remove_prefix(std::min(end + 1, left_.size()));
    if (base::StartsWith(tag, "/")) return {XmlKind::Close, LocalName(tag.substr(1))};
    if (base::EndsWith(tag, "/")) to_close_ = LocalName(tag);
    return {XmlKind::Open, LocalName(tag)};
}

void XmlReader::SkipPast(std::string_view end) {
    TakeUntil(end);
    left_.remove_prefix(std::min(end.size(), left_.size()));
}

std::string_view XmlReader::TakeUntil(std::string_view end) {
    const std::string_view taken = left_.substr(0, left_.find(end));
    left_.remove_prefix(taken.size());
    return taken;
}

}  // namespace library
