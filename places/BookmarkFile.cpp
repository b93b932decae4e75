#include "places/BookmarkFile.h"

#include <algorithm>
#include <array>
#include <unordered_map>
#include <unordered_set>

#include "base/Markup.h"
#include "base/Text.h"
#include "base/Windows1252.h"

namespace places {
namespace {

constexpr std::size_t kDeepestFolder = 100;
constexpr std::string_view kBetweenFolders = " / ";
constexpr std::array<std::string_view, 3> kSchemes = {"http://", "https://", "file:///"};
/// A "*" in a name would hide it from the panel, which uses that character to sort.
constexpr std::string_view kStar = "*";
constexpr std::string_view kStandInForStar = "\xE2\x88\x97";

std::string FromUtf16(std::string_view bytes, bool is_big) {
    std::string text;
    char32_t high = 0;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        const char32_t unit = is_big ? first * 256u + second : second * 256u + first;
        if (unit >= 0xD800 && unit < 0xDC00) {
            high = unit;
        } else if (unit < 0xDC00 || unit > 0xDFFF) {
            base::AppendCharacter(text, unit);
            high = 0;
        } else if (high != 0) {
            base::AppendCharacter(text, 0x10000 + (high - 0xD800) * 0x400 + (unit - 0xDC00));
            high = 0;
        }
    }
    return text;
}

std::string TextOf(std::string_view bytes) {
    if (base::StartsWith(bytes, "\xFF\xFE")) return FromUtf16(bytes.substr(2), false);
    if (base::StartsWith(bytes, "\xFE\xFF")) return FromUtf16(bytes.substr(2), true);
    if (base::HasUtf8Mark(bytes)) bytes.remove_prefix(3);
    return base::IsUtf8(bytes) ? std::string(bytes) : base::DecodeFileText(bytes);
}

/// On one line and without what is not seen; empty when nothing is left.
std::string OneLine(std::string_view text) {
    std::string line;
    for (const char character : text) {
        const bool is_blank = static_cast<unsigned char>(character) <= ' ' || character == '\x7F';
        if (!is_blank) {
            line += character;
        } else if (!line.empty() && line.back() != ' ') {
            line += ' ';
        }
    }
    return base::Replace(base::Trim(base::Left(base::Trim(line), kLongestBookmarkName)), kStar,
                         kStandInForStar);
}

bool IsWanted(std::string_view address) {
    const std::string begin = base::LCase(address.substr(0, 8));
    return address.size() <= kLongestBookmarkAddress &&
           std::any_of(kSchemes.begin(), kSchemes.end(),
                       [&begin](std::string_view scheme) { return base::StartsWith(begin, scheme); });
}

bool IsBlank(char character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

/// The value of an attribute of a tag, decoded; empty without it.
std::string ValueOf(std::string_view tag, std::string_view wanted) {
    std::size_t at = std::min(tag.find_first_of(" \t\r\n"), tag.size());
    while (at < tag.size()) {
        while (at < tag.size() && (IsBlank(tag[at]) || tag[at] == '/'))
            ++at;
        const std::size_t name_end = std::min(tag.find_first_of("= \t\r\n", at), tag.size());
        const std::string name = base::LCase(tag.substr(at, name_end - at));
        at = name_end;
        if (at >= tag.size() || tag[at] != '=') continue;
        ++at;
        const char quote = at < tag.size() && (tag[at] == '"' || tag[at] == '\'') ? tag[at] : '\0';
        if (quote != '\0') ++at;
        const std::size_t value_end =
            std::min(quote != '\0' ? tag.find(quote, at) : tag.find_first_of(" \t\r\n", at), tag.size());
        if (name == wanted) return base::DecodeEntities(tag.substr(at, value_end - at));
        at = std::min(value_end + (quote != '\0' ? 1 : 0), tag.size());
    }
    return {};
}

class Reader {
public:
    explicit Reader(std::string_view document) : left_(document) {}

    Bookmarks Read() {
        while (!left_.empty()) {
            if (left_.front() != '<') {
                const std::string_view text = Take(left_.find('<'));
                if (collects_ && text_.size() < kMostText) text_ += text;
            } else if (base::StartsWith(left_, "<!--")) {
                Take(left_.find("-->"));
                Take(3);
            } else {
                left_.remove_prefix(1);
                const std::string_view tag = Take(EndOfTag());
                Take(1);
                OnTag(tag);
            }
        }
        FinishLink();
        return std::move(found_);
    }

private:
    // Bytes of a name before it is decoded.
    static constexpr std::size_t kMostText = 16 * kLongestBookmarkName;

    std::string_view Take(std::size_t count) {
        const std::string_view taken = left_.substr(0, count);
        left_.remove_prefix(taken.size());
        return taken;
    }

    // A quote that is never closed is no reason to lose the rest of the file.
    std::size_t EndOfTag() const {
        const std::size_t end = base::EndOfTag(left_);
        return end < left_.size() ? end : left_.find('>');
    }

    void OnTag(std::string_view tag) {
        const std::string name = base::LCase(tag.substr(0, tag.find_first_of(" \t\r\n")));
        if (name == "a") {
            FinishLink();
            address_ = OneAddress(ValueOf(tag, "href"));
            in_link_ = true;
            Collect();
        } else if (name == "/a") {
            FinishLink();
        } else if (name == "h3") {
            FinishLink();
            Collect();
        } else if (name == "/h3") {
            pending_folder_ = OneLine(base::DecodeEntities(text_));
            AddGroup(WithFolder(pending_folder_));
            collects_ = false;
        } else if (name == "dl") {
            FinishLink();
            OpenFolder();
        } else if (name == "/dl") {
            FinishLink();
            CloseFolder();
        }
    }

    void Collect() {
        text_.clear();
        collects_ = true;
    }

    static std::string OneAddress(const std::string& value) {
        std::string address;
        for (const char character : value) {
            if (static_cast<unsigned char>(character) > ' ' && character != '\x7F') address += character;
        }
        return address;
    }

    void FinishLink() {
        if (!in_link_) return;
        in_link_ = collects_ = false;
        if (!IsWanted(address_) || found_.links.size() >= kMostBookmarks) {
            ++found_.skipped;
            return;
        }
        std::string name = OneLine(base::DecodeEntities(text_));
        if (name.empty()) name = OneLine(address_);
        const std::string group = folders_.empty() ? std::string() : folders_.back();
        found_.links.push_back(
            {group.empty() ? std::string(kGroupWithoutFolder) : group, std::move(name), std::move(address_)});
        AddGroup(found_.links.back().group);
        address_.clear();
    }

    std::string WithFolder(const std::string& folder) const {
        const std::string outer = folders_.empty() ? std::string() : folders_.back();
        if (outer.empty() || folder.empty()) return outer + folder;
        return std::string(
            base::Trim(base::Left(outer + std::string(kBetweenFolders) + folder, kLongestBookmarkName)));
    }

    // The outermost list has no name. Lists beyond the depth are only counted.
    void OpenFolder() {
        if (folders_.size() >= kDeepestFolder) {
            ++beyond_;
            return;
        }
        folders_.push_back(WithFolder(pending_folder_));
        pending_folder_.clear();
    }

    void CloseFolder() {
        pending_folder_.clear();
        if (beyond_ > 0) {
            --beyond_;
        } else if (!folders_.empty()) {
            folders_.pop_back();
        }
    }

    void AddGroup(const std::string& group) {
        if (group.empty() || found_.groups.size() >= kMostBookmarks) return;
        if (known_groups_.insert(group).second) found_.groups.push_back(group);
    }

    std::string_view left_;
    Bookmarks found_;
    std::unordered_set<std::string> known_groups_;
    std::vector<std::string> folders_;  // the whole names of the open ones
    std::size_t beyond_ = 0;
    std::string pending_folder_;
    std::string text_;
    std::string address_;
    bool collects_ = false;
    bool in_link_ = false;
};

}  // namespace

Bookmarks ReadBookmarks(std::string_view bytes) {
    const std::string text = TextOf(bytes);
    return Reader(text).Read();
}

std::string WriteBookmarks(const Bookmarks& bookmarks) {
    std::string file =
        "<!DOCTYPE NETSCAPE-Bookmark-file-1>\n"
        "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">\n"
        "<TITLE>Bookmarks</TITLE>\n<H1>Bookmarks</H1>\n<DL><p>\n";
    std::unordered_map<std::string_view, std::vector<const BookmarkLink*>> links_of;
    for (const BookmarkLink& link : bookmarks.links)
        links_of[link.group].push_back(&link);
    for (const std::string& group : bookmarks.groups) {
        file.append("    <DT><H3>").append(base::EncodeEntities(group)).append("</H3>\n    <DL><p>\n");
        for (const BookmarkLink* link : links_of[group]) {
            file.append("        <DT><A HREF=\"")
                .append(base::EncodeEntities(link->address))
                .append("\">")
                .append(base::EncodeEntities(link->name))
                .append("</A>\n");
        }
        file.append("    </DL><p>\n");
    }
    return file.append("</DL><p>\n");
}

}  // namespace places
